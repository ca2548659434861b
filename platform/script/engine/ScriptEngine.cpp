#include "ScriptEngine.h"

#include "ScriptDispatch.h"
#include "ScriptHelpers.h"
#include "ScriptObject.h"
#include "ScriptWatch.h"

#include <core/component/mzComCreateObject.h>
#include <core/component/mzIDispatch.h>
#include <script/text/scriptText.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QThread>
#include <QUrl>

#include <cmath>
#include <limits>

namespace {

bool isInt(double number)
{
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max() &&
           number == std::trunc(number);
}

/// The engine makes addresses of file names.
QString fileOf(const QString &address)
{
    const QUrl url(address);
    return url.isLocalFile() ? url.toLocalFile() : address;
}

/// Of an entry "function:line:column:file".
PScriptException withPlace(const PScriptException &exception, const QString &entry)
{
    return {exception.message, fileOf(entry.section(u':', 3)), entry.section(u':', 1, 1).toInt()};
}

/// Of the innermost call in a file: an entry "function@file:line". The helpers have no file.
PScriptException withPlaceOf(const PScriptException &exception, const QJSValue &error)
{
    const QString stack = error.property(QStringLiteral("stack")).toString();
    for (const QString &entry : stack.split(u'\n')) {
        const QString place = entry.section(u'@', 1);
        const QString file = place.section(u':', 0, -2);
        if (!file.isEmpty())
            return {exception.message, fileOf(file), place.section(u':', -1).toInt()};
    }
    return {exception.message, fileOf(error.property(QStringLiteral("fileName")).toString()),
            error.property(QStringLiteral("lineNumber")).toInt()};
}

} // namespace

ScriptEngine::ScriptEngine(QObject *parent)
    : QObject(parent)
    , m_helpers(m_engine.evaluate(QString::fromLatin1(scriptHelpers)))
{
    Q_ASSERT(!m_helpers.isError());
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    m_helpers.property(QStringLiteral("globals"))
        .call({m_engine.newQObject(this), m_engine.globalObject()});
}

ScriptEngine::~ScriptEngine() = default;

/// The time in which script code is at work, callbacks included: the outermost one has a watch.
class ScriptEngine::Run
{
public:
    explicit Run(ScriptEngine &engine)
        : m_engine(engine)
        , m_isOutermost(!engine.m_watch)
    {
        if (m_isOutermost) {
            m_engine.m_engine.setInterrupted(false);
            m_engine.m_stopped = ScriptStop::No;
            m_engine.m_watch = std::make_unique<ScriptWatch>(
                engine.m_limits, [&js = m_engine.m_engine] { js.setInterrupted(true); });
        }
        m_engine.m_watch->enterScript();
    }
    ~Run()
    {
        m_engine.m_watch->leaveScript();
        if (!m_isOutermost)
            return;
        m_engine.m_stopped = m_engine.m_watch->cause();
        m_engine.m_watch.reset();
        m_engine.m_engine.setInterrupted(false);
    }
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    [[nodiscard]] bool isStopped() const { return m_engine.m_watch->cause() != ScriptStop::No; }

private:
    ScriptEngine &m_engine;
    const bool m_isOutermost;
};

mzComVariantC ScriptEngine::run(const QString &program, const QString &file,
                                std::optional<PScriptException> &exception)
{
    exception.reset();
    if (isRunning()) {
        exception = PScriptException{scriptText("Ein anderes Skript läuft noch"), file, 0};
        return {};
    }
    m_exitStatus = 0;
    QStringList trace;
    const QJSValue result = [&] {
        const Run watched(*this);
        return m_engine.evaluate(program, file, 1, &trace);
    }();
    dropCollected();
    if (m_stopped != ScriptStop::No) {
        exception = stopException(file);
        return {};
    }
    if (trace.isEmpty() && !result.isError())
        return fromScript(result);
    exception = exceptionOf(result);
    if (!result.isError() && !trace.isEmpty())
        exception = withPlace(*exception, trace.first());
    return {};
}

std::optional<PScriptException> ScriptEngine::stopException(const QString &file) const
{
    const auto because = [&file](const QString &text) {
        return PScriptException{text, file, 0};
    };
    const auto seconds = [](std::chrono::milliseconds time) {
        return QString::number(double(time.count()) / 1000);
    };
    switch (m_stopped) {
    case ScriptStop::ByHand:
        return because(scriptText("Das Skript wurde angehalten"));
    case ScriptStop::TotalTime:
        return because(scriptText("Das Skript wurde angehalten: es brauchte mehr als %1 s")
                           .arg(seconds(m_limits.total)));
    case ScriptStop::SilentTime:
        return because(scriptText("Das Skript wurde angehalten: es rief %1 s lang kein Objekt auf")
                           .arg(seconds(m_limits.silent)));
    case ScriptStop::Memory:
        return because(
            scriptText("Das Skript wurde angehalten: es brauchte mehr als %1 MB Speicher")
                .arg(m_limits.bytes / 1'000'000));
    case ScriptStop::No:
    case ScriptStop::Exit:
        break;
    }
    return std::nullopt;
}

void ScriptEngine::stop()
{
    if (m_watch)
        m_watch->stop(ScriptStop::ByHand);
}

void ScriptEngine::setGlobal(const QString &name, const mzComVariantC &value)
{
    m_engine.globalObject().setProperty(name, toScript(value));
}

void ScriptEngine::setGlobal(const QString &name, const QStringList &values)
{
    m_engine.globalObject().setProperty(name, m_engine.toScriptValue(values));
}

QStringList ScriptEngine::completions(const QString &line)
{
    static const QRegularExpression end(
        QStringLiteral(R"(([A-Za-z_$][\w$]*\.)*[A-Za-z_$]?[\w$]*$)"));
    QStringList path = end.match(line).captured().split(u'.');
    const QString begin = path.takeLast();
    if (isRunning())
        return {};
    const Run watched(*this);
    const QJSValue found = m_helpers.property(QStringLiteral("names"))
                               .call({m_engine.globalObject(), m_engine.toScriptValue(path)});
    QStringList result;
    const uint count = found.isArray() ? found.property(QStringLiteral("length")).toUInt() : 0;
    for (uint i = 0; i < count; ++i) {
        const QString name = found.property(i).toString();
        if (name.startsWith(begin) && end.match(name).captured() == name)
            result.append(name);
    }
    result.sort();
    return result;
}

QJSValue ScriptEngine::toScript(const mzComVariantC &value)
{
    const mzComVariantC plain = value.skipVariableAndProps();
    bool truth = false;
    double number = 0;
    mzComStringC text;
    if (plain.getExt(truth) == mzComSuccess)
        return truth;
    if (plain.getExt(number) == mzComSuccess)
        return number;
    if (plain.getExt(text) == mzComSuccess)
        return QString(text.text());
    mzIUnknown *const object = plain.getIUnknown();
    return object ? wrap(object) : QJSValue(QJSValue::NullValue);
}

mzComVariantC ScriptEngine::fromScript(const QJSValue &value)
{
    if (value.isUndefined() || value.isNull())
        return {};
    if (value.isBool())
        return value.toBool();
    if (value.isNumber()) {
        const double number = value.toNumber();
        return isInt(number) ? mzComVariantC(int(number)) : mzComVariantC(number);
    }
    if (!value.isObject())
        return value.toString();
    const QJSValue found = m_helpers.property(QStringLiteral("find")).call({value});
    if (const auto *object = qobject_cast<ScriptObject *>(found.toQObject()))
        return object->object();
    return new ScriptDispatch(*this, value);
}

void ScriptEngine::throwError(const QString &message)
{
    m_engine.throwError(message);
}

QJSValue ScriptEngine::callSafely(const QJSValue &object, const QString &name,
                                  const QJSValue &arguments)
{
    const Run watched(*this);
    QJSValue outcome = m_helpers.property(QStringLiteral("call")).call({object, name, arguments});
    if (!watched.isStopped())
        return outcome;
    QJSValue stopped = m_engine.newObject();
    stopped.setProperty(QStringLiteral("error"), scriptText("Das Skript wurde angehalten"));
    return stopped;
}

QJSValue ScriptEngine::read(const QJSValue &object, const QString &name)
{
    const Run watched(*this);
    return object.property(name);
}

void ScriptEngine::write(QJSValue &object, const QString &name, const mzComVariantC &value)
{
    const QJSValue written = toScript(value);
    const Run watched(*this);
    object.setProperty(name, written);
}

void ScriptEngine::beginCall()
{
    if (m_watch)
        m_watch->leaveScript();
    const auto now = std::chrono::steady_clock::now();
    if (now - m_lastBreath < std::chrono::milliseconds(50))
        return;
    dropCollected();
    if (m_breath)
        m_breath();
    m_lastBreath = std::chrono::steady_clock::now();
}

/// What the collector found waits for the event loop; a program without one would keep it all.
void ScriptEngine::dropCollected()
{
    if (QThread::currentThread()->loopLevel() == 0)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ScriptEngine::endCall()
{
    if (m_watch)
        m_watch->enterScript();
}

PScriptException ScriptEngine::exceptionOf(const QJSValue &error)
{
    const PScriptException result{error.toString(), {}, 0};
    return error.isError() ? withPlaceOf(result, error) : result;
}

QJSValue ScriptEngine::createObject(const QString &id)
{
    mzComPtrC object;
    if (mzComCreateObject(id.toUtf8().constData(), mzIDispatch::iid(), object) == mzComSuccess)
        return toScript(object.iface());
    throwError(QStringLiteral("There is no component \"%1\" that can be made").arg(id));
    return {};
}

void ScriptEngine::print(const QString &line)
{
    beginCall();
    if (m_printer)
        m_printer(line);
    endCall();
}

void ScriptEngine::exit(int status)
{
    m_exitStatus = status;
    if (m_watch)
        m_watch->stop(ScriptStop::Exit);
}

QJSValue ScriptEngine::wrap(mzIUnknown *object)
{
    if (const auto *own = dynamic_cast<ScriptDispatch *>(object); own && own->isOf(*this))
        return own->value();
    auto *const script = new ScriptObject(*this, object); // the script's collector deletes it
    const QJSValue known = m_engine.newQObject(script);
    if (!known.isQObject()) { // no room left on the stack
        delete script;
        return {};
    }
    return m_helpers.property(QStringLiteral("wrap")).call({known, typeOf(*script)});
}

QJSValue ScriptEngine::typeOf(const ScriptObject &object)
{
    const auto found = m_types.constFind(object.type());
    if (found != m_types.constEnd())
        return *found;
    const auto list = [this](const QStringList &names) {
        return m_engine.toScriptValue(names);
    };
    QJSValue type =
        m_helpers.property(QStringLiteral("type"))
            .call({object.title(), list(object.methods()), list(object.readableProperties())});
    if (!type.isError())
        m_types.insert(object.type(), type);
    return type;
}
