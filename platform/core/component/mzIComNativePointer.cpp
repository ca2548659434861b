#include "mzIComNativePointer.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

const mzIIDS &mzIComNativePointer::iid()
{
    static const mzIIDS id("mzIComNativePointer");
    return id;
}

QByteArray mzComTypeInfoToName(const std::type_info &type)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
    return status == 0 ? QByteArray(name.get()) : QByteArray(type.name());
}
