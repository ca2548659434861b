#pragma once

#include <core/component/mzComVariantC.h>
#include <core/message/PScriptException.h>

#include <QJSEngine>
#include <QObject>

#include <optional>

/// Runs scripts that use the objects of the component model by their members' names, and hands the
/// scripts' own objects to the model. Scripts have the function createObject(id), which makes a
/// component. An unknown member is an error of the script, read or written.
///
/// A name that is both a property and a method is the property. Each time an object comes to the
/// script it is another JavaScript object, so `===` does not compare them. One thread.
class ScriptEngine : public QObject
{
    Q_OBJECT

public:
    explicit ScriptEngine(QObject *parent = nullptr);
    ~ScriptEngine() override;

    /// Gives the value of the last statement. After an error it is empty and the exception is
    /// there.
    mzComVariantC run(const QString &program, const QString &file,
                      std::optional<PScriptException> &exception);
    /// Names a value for all scripts.
    void setGlobal(const QString &name, const mzComVariantC &value);

    /// Lets go of the objects that no script can reach any more: at the next turn of the event
    /// loop.
    void collectGarbage() { m_engine.collectGarbage(); }

    /// Wrappers are stripped; throws mzComExceptionC if a property cannot be read.
    [[nodiscard]] QJSValue toScript(const mzComVariantC &value);
    /// Whole numbers come as int; objects and functions as objects to be called by name.
    [[nodiscard]] mzComVariantC fromScript(const QJSValue &value);
    /// Makes the running script fail.
    void throwError(const QString &message);
    /// Calls the object's function, whatever the script throws meanwhile: gives an object with
    /// either "value", "error" or "missing".
    [[nodiscard]] QJSValue callSafely(const QJSValue &object, const QString &name,
                                      const QJSValue &arguments);
    [[nodiscard]] QJSValue newArray(int size) { return m_engine.newArray(uint(size)); }
    [[nodiscard]] static PScriptException exceptionOf(const QJSValue &error);

    /// For scripts.
    Q_INVOKABLE QJSValue createObject(const QString &id);

private:
    [[nodiscard]] QJSValue wrap(mzIUnknown *object);

    QJSEngine m_engine;
    QJSValue m_helpers;
};
