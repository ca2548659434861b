#include "NativePointer.h"

#include <cstring>

NativePointer::NativePointer(proxyObjectC &object)
    : m_object(&object)
{
}

NativePointer::~NativePointer() = default;

int NativePointer::queryInterface(const mzIIDS &id, mzComPtrC &result)
{
    if (id != mzIComNativePointer::iid())
        return m_object->queryInterface(id, result);
    result = mzComPtrC(this);
    return mzComSuccess;
}

void *NativePointer::getNativePointer(const char *className, const char *moduleHint)
{
    const proxyObjectC &object = *m_object;
    // Only of the object's own class the whole object is also the start of the class's part.
    const bool fits = std::strcmp(moduleHint, mzComGetModuleHint()) == 0 &&
                      mzComTypeInfoToName(typeid(object)) == className;
    return fits ? dynamic_cast<void *>(m_object.get()) : nullptr;
}

proxyObjectC *NativePointer::getObject()
{
    return m_object.get();
}
