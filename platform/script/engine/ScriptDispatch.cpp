#include "ScriptDispatch.h"

#include "ScriptEngine.h"

#include <core/component/mzComExceptionC.h>
#include <core/component/mzComVariantArrayC.h>
#include <core/component/proxyMemberDescListS.h>

#include <QThread>

ScriptDispatch::ScriptDispatch(ScriptEngine &engine, const QJSValue &value)
    : m_engine(&engine)
    , m_value(value)
    , m_thread(reinterpret_cast<quintptr>(QThread::currentThreadId()))
{
}

ScriptDispatch::~ScriptDispatch() = default;

int ScriptDispatch::invokeByName(const mzComStringC &name, int kind,
                                 const mzComVariantArrayC &arguments, mzComVariantC &result,
                                 std::optional<PScriptException> &exception)
{
    const mzComPtrC self(this); // the script may drop the last other reference
    result = {};
    exception.reset();
    if (!m_engine)
        return mzComFailed;
    try {
        if (kind == proxyMemberDescS::Method)
            return call(name, arguments, result, exception);
        if (kind == proxyMemberDescS::PropertyWrite)
            m_engine->write(m_value, name.text(), arguments[0]);
        else
            result = m_engine->fromScript(m_engine->read(m_value, name.text()));
        return mzComSuccess;
    } catch (const mzComExceptionC &error) {
        exception = error.script();
        return error.code();
    }
}

int ScriptDispatch::call(const QString &name, const mzComVariantArrayC &arguments,
                         mzComVariantC &result, std::optional<PScriptException> &exception)
{
    QJSValue values = m_engine->newArray(arguments.size());
    for (int i = 0; i < arguments.size(); ++i)
        values.setProperty(quint32(i), m_engine->toScript(arguments[i]));
    const QJSValue outcome = m_engine->callSafely(m_value, name, values);
    if (outcome.hasProperty(QStringLiteral("value"))) {
        result = m_engine->fromScript(outcome.property(QStringLiteral("value")));
        return mzComSuccess;
    }
    if (outcome.hasProperty(QStringLiteral("missing"))) {
        exception = PScriptException{
            QStringLiteral("The script's object has no function \"%1\"").arg(name), {}, 0};
        return mzComUnknownMember;
    }
    exception = ScriptEngine::exceptionOf(outcome.property(QStringLiteral("error")));
    return mzComFailed;
}
