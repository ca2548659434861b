#include "proxyAutoTypeCastC.h"

#include "mzIComReference.h"

namespace {

template<class T>
void readValue(const mzComVariantC &argument, T &result)
{
    if (argument.skipVariableAndProps().getExt(result) != mzComSuccess)
        proxyObjectC::throwAutoTypeCastException();
}

} // namespace

void proxyAutoTypeCastC::read(int &result) const
{
    readValue(m_argument, result);
}

void proxyAutoTypeCastC::read(bool &result) const
{
    readValue(m_argument, result);
}

void proxyAutoTypeCastC::read(double &result) const
{
    readValue(m_argument, result);
}

void proxyAutoTypeCastC::read(mzComStringC &result) const
{
    readValue(m_argument, result);
}

void proxyAutoTypeCastC::read(QString &result) const
{
    mzComStringC text;
    readValue(m_argument, text);
    result = text.text();
}

void proxyAutoTypeCastC::read(PString &result) const
{
    mzComStringC text;
    readValue(m_argument, text);
    result = text.text();
}

void proxyAutoTypeCastC::read(mzComVariantC &result) const
{
    result = m_argument.skipVariableAndProps();
}

void proxyAutoTypeCastC::read(mzIDispatchC &result) const
{
    const mzComVariantC object = m_argument.skipVariable();
    result = mzIDispatchC(object.getIUnknown());
    if (!result.isValid())
        proxyObjectC::throwAutoTypeCastException();
}

mzComPtrC proxyAutoTypeCastC::nativeInterface() const
{
    const mzComVariantC object = m_argument.skipVariableAndProps();
    mzIUnknown *const unknown = object.getIUnknown();
    mzComPtrC result;
    if (!unknown || unknown->queryInterface(mzIComNativePointer::iid(), result) != mzComSuccess)
        proxyObjectC::throwAutoTypeCastException();
    return result;
}

void proxyAutoTypeCastC::write(const mzComVariantC &value)
{
    if (m_result)
        *m_result = value;
    else if (m_argument.type() == mzComVariantC::Variable)
        m_argument.reference()->write(value);
}
