#include "LibraryMetaTypes.h"

#include <QMetaType>

#include <dlfcn.h>

namespace {

/// Qt numbers types from QMetaType::User on and does not tell the last number; no process comes
/// near this many.
constexpr int maximumTypes = 1 << 16;

/// Where the library begins in which an object lies; null if it lies in none.
const void *libraryOf(const void *object)
{
    Dl_info info{};
    return dladdr(object, &info) ? info.dli_fbase : nullptr;
}

} // namespace

LibraryMetaTypes::~LibraryMetaTypes()
{
    static const char inThisLibrary = 0;
    const void *const library = libraryOf(&inThisLibrary);
    for (int id = QMetaType::User + 1; id <= QMetaType::User + maximumTypes; ++id) {
        if (!QMetaType::isRegistered(id))
            continue;
        const QMetaType type(id);
        if (libraryOf(type.iface()) == library)
            QMetaType::unregisterMetaType(type);
    }
}
