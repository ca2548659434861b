#include "mzComPropertyC.h"

#include "mzComExceptionC.h"
#include "proxyMemberDescListS.h"

mzComPropertyC::mzComPropertyC(const mzIDispatchC &object, const mzComStringC &name)
    : m_object(object)
    , m_name(name)
{
}

mzComPropertyC::~mzComPropertyC() = default;

mzComVariantC mzComPropertyC::read()
{
    mzComVariantC result;
    std::optional<PScriptException> exception;
    if (m_object.invoke(m_name, proxyMemberDescS::PropertyRead, {}, result, exception) == 0)
        return result;
    const QString text = QStringLiteral("Property \"%1\" cannot be read").arg(m_name.text());
    throw mzComExceptionC(mzComFailed, exception.value_or(PScriptException{text, {}, 0}));
}

int mzComPropertyC::write(const mzComVariantC &value)
{
    mzComVariantC result;
    std::optional<PScriptException> exception;
    return m_object.invoke(m_name, proxyMemberDescS::PropertyWrite, {value}, result, exception);
}
