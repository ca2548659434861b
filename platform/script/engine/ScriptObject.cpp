#include "ScriptObject.h"

#include "ScriptEngine.h"

#include <core/component/mzComExceptionC.h>
#include <core/component/mzIComNativePointer.h>
#include <core/component/proxyMemberDescListS.h>

namespace {

proxyObjectC *proxyOf(mzIUnknown *object)
{
    mzComPtrC native;
    if (object->queryInterface(mzIComNativePointer::iid(), native) != mzComSuccess)
        return nullptr;
    return native.as<mzIComNativePointer>()->getObject();
}

} // namespace

ScriptObject::ScriptObject(ScriptEngine &engine, mzIUnknown *object)
    : m_engine(&engine)
    , m_object(object)
    , m_proxy(proxyOf(object))
{
    if (m_proxy)
        m_proxy->addRemoteConnection();
}

ScriptObject::~ScriptObject()
{
    if (m_proxy)
        m_proxy->releaseRemoteConnection();
}

const proxyMemberDescListS *ScriptObject::type() const
{
    return m_proxy ? m_proxy->getProxyTypeInfo() : nullptr;
}

QString ScriptObject::title() const
{
    const QString name = m_proxy ? QString::fromUtf8(type()->className) : QStringLiteral("object");
    return QStringLiteral("[%1]").arg(name);
}

QStringList ScriptObject::methods() const
{
    return names(proxyMemberDescS::Method);
}

QStringList ScriptObject::readableProperties() const
{
    return names(proxyMemberDescS::PropertyRead);
}

QStringList ScriptObject::names(int kind) const
{
    QStringList result;
    for (const auto *each = type(); each; each = each->base) {
        for (const proxyMemberDescS &member : each->members) {
            if (member.kind == kind)
                result.append(QString::fromUtf8(member.name));
        }
    }
    return result;
}

QJSValue ScriptObject::read(const QString &name)
{
    return invoke(name, proxyMemberDescS::PropertyRead, {});
}

void ScriptObject::write(const QString &name, const QJSValue &value)
{
    if (m_engine)
        static_cast<void>(
            invoke(name, proxyMemberDescS::PropertyWrite, {m_engine->fromScript(value)}));
}

QJSValue ScriptObject::call(const QString &name, const QJSValue &values)
{
    if (!m_engine)
        return {};
    mzComVariantArrayC arguments;
    const uint count = values.property(QStringLiteral("length")).toUInt();
    for (uint i = 0; i < count; ++i)
        arguments.append(m_engine->fromScript(values.property(i)));
    return invoke(name, proxyMemberDescS::Method, arguments);
}

QJSValue ScriptObject::invoke(const QString &name, int kind, const mzComVariantArrayC &arguments)
{
    const QPointer<ScriptEngine> engine = m_engine;
    if (!engine)
        return {};
    mzComVariantC result;
    std::optional<PScriptException> exception;
    try {
        const mzIDispatchC object(m_object.iface());
        engine->beginCall();
        const int outcome = object.invoke(name, kind, arguments, result, exception);
        if (!engine)
            return {};
        engine->endCall();
        if (outcome == mzComSuccess)
            return engine->toScript(result);
    } catch (const mzComExceptionC &error) {
        exception = error.script();
    }
    const QString unknown = QStringLiteral("%1.%2 failed").arg(title(), name);
    engine->throwError(exception ? exception->text() : unknown);
    return {};
}
