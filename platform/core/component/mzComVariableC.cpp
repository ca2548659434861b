#include "mzComVariableC.h"

mzComVariableC::mzComVariableC(const mzComVariantC &value)
    : m_value(value)
{
}

mzComVariableC::~mzComVariableC() = default;

mzComVariantC mzComVariableC::read()
{
    return m_value;
}

int mzComVariableC::write(const mzComVariantC &value)
{
    m_value = value;
    return mzComSuccess;
}
