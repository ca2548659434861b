#pragma once

#include "ScriptLimits.h"

#include <core/component/mzComVariantC.h>
#include <core/message/PScriptException.h>

#include <QHash>
#include <QJSEngine>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class ScriptObject;
class ScriptWatch;
struct proxyMemberDescListS;

/// Runs scripts that use the objects of the component model by their members' names, and hands the
/// scripts' own objects to the model. Scripts have the language itself and the functions
/// createObject(id), which makes a component, print(...), also as console.log(...), and
/// exit(status); nothing else leads out of the engine. An unknown member is an error of the script,
/// read or written.
///
/// A name that is both a property and a method is the property. Each time an object comes to the
/// script it is another JavaScript object, so `===` does not compare them. One thread, but for
/// stop().
///
/// Limits hold for a run() and for each call that C++ makes into a script afterwards. A search by a
/// regular expression cannot be stopped before it ends.
class ScriptEngine : public QObject
{
    Q_OBJECT

public:
    explicit ScriptEngine(QObject *parent = nullptr);
    ~ScriptEngine() override;

    void setLimits(const ScriptLimits &limits) { m_limits = limits; }
    /// Takes what scripts print, a line at a time; without one it is lost.
    void setPrinter(const std::function<void(const QString &)> &printer) { m_printer = printer; }
    /// Called when a script calls an object, every 50 ms at most: to look after other things, such
    /// as a wish to stop.
    void setBreath(const std::function<void()> &breath) { m_breath = breath; }

    /// Gives the value of the last statement. After an error it is empty and the exception is
    /// there; so it is after a stop, but not after exit(). Refused while a script runs.
    mzComVariantC run(const QString &program, const QString &file,
                      std::optional<PScriptException> &exception);
    [[nodiscard]] bool isRunning() const { return m_watch != nullptr; }
    /// Why the last run ended before its end.
    [[nodiscard]] ScriptStop stopped() const { return m_stopped; }
    /// Of exit(), 0 without it.
    [[nodiscard]] int exitStatus() const { return m_exitStatus; }
    /// Ends what runs, as soon as the script's own code is at work again. Any thread, as long as
    /// the script's thread does not end the run meanwhile.
    void stop();

    /// Names a value for all scripts.
    void setGlobal(const QString &name, const mzComVariantC &value);
    void setGlobal(const QString &name, const QStringList &values);
    /// What the name before the cursor at the end of a line may become, sorted: globals, or what
    /// the object before the last dot has.
    [[nodiscard]] QStringList completions(const QString &line);

    /// Lets go of the objects that no script can reach any more: at the next turn of the event
    /// loop; without one, by the next run.
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
    /// Accessors that the script wrote run here.
    [[nodiscard]] QJSValue read(const QJSValue &object, const QString &name);
    void write(QJSValue &object, const QString &name, const mzComVariantC &value);
    [[nodiscard]] QJSValue newArray(int size) { return m_engine.newArray(uint(size)); }
    [[nodiscard]] static PScriptException exceptionOf(const QJSValue &error);

    /// Round a call of an object by the script: the script's time stands still.
    void beginCall();
    void endCall();

    /// For scripts.
    Q_INVOKABLE QJSValue createObject(const QString &id);
    Q_INVOKABLE void print(const QString &line);
    Q_INVOKABLE void exit(int status);

private:
    class Run;

    [[nodiscard]] QJSValue wrap(mzIUnknown *object);
    [[nodiscard]] QJSValue typeOf(const ScriptObject &object);
    static void dropCollected();
    [[nodiscard]] std::optional<PScriptException> stopException(const QString &file) const;

    QJSEngine m_engine;
    QJSValue m_helpers;
    QHash<const proxyMemberDescListS *, QJSValue> m_types; ///< names, made once a class
    ScriptLimits m_limits;
    std::function<void(const QString &)> m_printer;
    std::function<void()> m_breath;
    std::chrono::steady_clock::time_point m_lastBreath;
    std::unique_ptr<ScriptWatch> m_watch; ///< while script code is at work
    ScriptStop m_stopped = ScriptStop::No;
    int m_exitStatus = 0;
};
