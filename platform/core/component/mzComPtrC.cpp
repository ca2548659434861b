#include "mzComPtrC.h"

mzComPtrC::mzComPtrC(const mzIUnknown *object)
    : m_object(const_cast<mzIUnknown *>(object))
{
    if (m_object)
        m_object->addRef();
}

mzComPtrC::~mzComPtrC()
{
    if (m_object)
        m_object->release();
}
