#pragma once

#include <core/component/mzIDispatchC.h>
#include <core/component/proxyObjectC.h>
#include <core/text/ProxyPtrT.h>

#include <QJSValue>
#include <QObject>
#include <QPointer>

class ScriptEngine;

/// An object of the component model in the hands of a script, which calls its members here. Holds a
/// remote connection to it until the script's collector deletes this.
class ScriptObject : public QObject
{
    Q_OBJECT

public:
    ScriptObject(ScriptEngine &engine, mzIUnknown *object);
    ~ScriptObject() override;

    [[nodiscard]] mzIUnknown *object() const { return m_object.iface(); }
    /// Null of an object that is no proxy.
    [[nodiscard]] const proxyMemberDescListS *type() const;
    /// As the script shows it.
    [[nodiscard]] QString title() const;
    /// Names that are known beforehand; none of an object that is no proxy.
    [[nodiscard]] QStringList methods() const;
    [[nodiscard]] QStringList readableProperties() const;

    Q_INVOKABLE QJSValue read(const QString &name);
    Q_INVOKABLE void write(const QString &name, const QJSValue &value);
    Q_INVOKABLE QJSValue call(const QString &name, const QJSValue &values);

private:
    [[nodiscard]] QStringList names(int kind) const;
    [[nodiscard]] QJSValue invoke(const QString &name, int kind,
                                  const mzComVariantArrayC &arguments);

    QPointer<ScriptEngine> m_engine;
    mzComPtrC m_object;
    ProxyPtrT<proxyObjectC> m_proxy; ///< null if the object is none
};
