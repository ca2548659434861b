#include "ScriptEngine.h"

#include "ScriptDispatch.h"
#include "ScriptObject.h"

#include <core/component/mzComCreateObject.h>
#include <core/component/mzIDispatch.h>

#include <QUrl>

#include <cmath>
#include <limits>

namespace {

/// A proxy asks its object for all that is not known to be a method. What the language itself looks
/// for in any object is no member. The engine's WeakMap keeps what it holds, so the object is found
/// by a hidden name.
constexpr auto helpers = R"js((function() {
    const hidden = Symbol();
    return {
        wrap(object, title, methods, readable) {
            const calls = Object.create(null);
            const target = {};
            for (const name of methods) {
                calls[name] = (...values) => object.call(name, values);
                target[name] = undefined;
            }
            for (const name of readable) {
                delete calls[name];
                target[name] = undefined;
            }
            const text = () => title;
            return new Proxy(target, {
                get(_, name) {
                    if (name === hidden)
                        return object;
                    if (name in calls)
                        return calls[name];
                    if (name === "toString" || name === "toJSON")
                        return text;
                    if (typeof name !== "string" || name === "valueOf" || name === "then")
                        return undefined;
                    return object.read(name);
                },
                set(_, name, value) {
                    object.write(String(name), value);
                    return true;
                },
                has(_, name) { return Object.prototype.hasOwnProperty.call(target, name); }
            });
        },
        find(value) { return value[hidden]; },
        call(object, name, values) {
            try {
                const member = object[name];
                if (typeof member !== "function")
                    return { missing: true };
                return { value: member.apply(object, values) };
            } catch (error) {
                return { error: error };
            }
        }
    };
})())js";

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
    , m_helpers(m_engine.evaluate(QString::fromLatin1(helpers)))
{
    Q_ASSERT(!m_helpers.isError());
    QJSEngine::setObjectOwnership(this, QJSEngine::CppOwnership);
    m_engine.globalObject().setProperty(
        QStringLiteral("createObject"),
        m_engine.newQObject(this).property(QStringLiteral("createObject")));
}

ScriptEngine::~ScriptEngine() = default;

mzComVariantC ScriptEngine::run(const QString &program, const QString &file,
                                std::optional<PScriptException> &exception)
{
    exception.reset();
    QStringList trace;
    const QJSValue result = m_engine.evaluate(program, file, 1, &trace);
    if (trace.isEmpty() && !result.isError())
        return fromScript(result);
    exception = exceptionOf(result);
    if (!result.isError() && !trace.isEmpty())
        exception = withPlace(*exception, trace.first());
    return {};
}

void ScriptEngine::setGlobal(const QString &name, const mzComVariantC &value)
{
    m_engine.globalObject().setProperty(name, toScript(value));
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
    return m_helpers.property(QStringLiteral("call")).call({object, name, arguments});
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

QJSValue ScriptEngine::wrap(mzIUnknown *object)
{
    if (const auto *own = dynamic_cast<ScriptDispatch *>(object); own && own->isOf(*this))
        return own->value();
    auto *const script = new ScriptObject(*this, object); // the script's collector deletes it
    const auto list = [this](const QStringList &names) {
        return m_engine.toScriptValue(names);
    };
    return m_helpers.property(QStringLiteral("wrap"))
        .call({m_engine.newQObject(script), script->title(), list(script->methods()),
               list(script->readableProperties())});
}
