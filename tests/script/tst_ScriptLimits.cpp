#include "../core/SampleProxies.h"

#include <core/component/mzIDispatchC.h>
#include <script/engine/ScriptEngine.h>

#include <QElapsedTimer>
#include <QTest>

#include <memory>
#include <thread>

using namespace std::chrono_literals;
using Exception = std::optional<PScriptException>;

namespace {

/// Keeps a script's object and calls it within its own call.
class CallerC : public proxyObjectC
{
public:
    int call(const mzIDispatchC &object, const QString &method)
    {
        mzComVariantC result;
        Exception exception;
        const int outcome = object.invokeAndCheck(method, {getIUnknown()}, result, exception);
        message = exception ? exception->message : QString();
        return outcome;
    }
    void wait(int milliseconds) { std::this_thread::sleep_for(milliseconds * 1ms); }
    const proxyMemberDescListS *getProxyTypeInfo() const override
    {
        static const proxyMemberDescS members[] = {
            proxyMethod<&CallerC::call>("call"),
            proxyMethod<&CallerC::wait>("wait"),
        };
        static const proxyMemberDescListS description{.className = "CallerC", .members = members};
        return &description;
    }

    QString message;
};

} // namespace

/// What keeps scripts within bounds, and what they cannot reach.
class tst_ScriptLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void endlessLoops_data();
    void endlessLoops();
    void totalTimeCountsTheScriptAlone();
    void silenceEndsWithACall();
    void memory();
    void stoppedFromAnotherThread();
    void stoppedByAWish();
    void stoppedDuringACall();
    void stoppedCallback();
    void getterWithoutEnd();
    void exits_data();
    void exits();
    void deepRecursion_data();
    void deepRecursion();
    void oneScriptAtATime();
    void reachesNothingElse();
    void prints_data();
    void prints();
    void completes_data();
    void completes();
    void hostileTexts_data();
    void hostileTexts();
    void objectsOutliveTheEngine();
    void manyEngines();

private:
    mzComVariantC run(const QString &program)
    {
        return m_engine->run(program, QStringLiteral("/scripts/test.js"), m_exception);
    }

    std::unique_ptr<ScriptEngine> m_engine;
    ProxyPtrT<CallerC> m_caller;
    Exception m_exception;
};

void tst_ScriptLimits::init()
{
    m_engine = std::make_unique<ScriptEngine>();
    m_caller = new CallerC;
    m_engine->setGlobal(QStringLiteral("caller"), m_caller.get());
    m_exception.reset();
}

void tst_ScriptLimits::cleanup()
{
    m_engine.reset();
    m_caller = nullptr;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(PMemManager::liveObjects(), 0);
}

void tst_ScriptLimits::endlessLoops_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("for") << "for (;;);";
    QTest::newRow("while") << "let i = 0; while (true) i++;";
    QTest::newRow("catches all") << "for (;;) { try { for (;;); } catch (e) {} }";
    QTest::newRow("finally") << "for (;;) { try { for (;;); } finally { continue; } }";
    QTest::newRow("calls itself by turns") << "function f() { return 1; } for (;;) f();";
    QTest::newRow("generator") << "function* g() { for (;;) yield 1; } for (const x of g()) ;";
    QTest::newRow("in a sort") << "[3, 1, 2].sort(() => { for (;;); })";
    QTest::newRow("in a replacement") << "'abc'.replace(/b/, () => { for (;;); })";
    QTest::newRow("in toString") << "print({ toString() { for (;;); } })";
}

void tst_ScriptLimits::endlessLoops()
{
    QFETCH(QString, program);
    m_engine->setLimits({.silent = 100ms});
    QElapsedTimer timer;
    timer.start();
    QVERIFY(run(program).isEmpty());
    QVERIFY(timer.elapsed() >= 100);
    QVERIFY(m_exception);
    QCOMPARE(m_exception->message,
             QStringLiteral("Das Skript wurde angehalten: es rief 0.1 s lang kein Objekt auf"));
    QCOMPARE(m_exception->file, QStringLiteral("/scripts/test.js"));
    QCOMPARE(m_engine->stopped(), ScriptStop::SilentTime);
    // The engine goes on.
    QCOMPARE(run(QStringLiteral("1 + 1")).getInt(), 2);
    QVERIFY(!m_exception);
    QCOMPARE(m_engine->stopped(), ScriptStop::No);
}

void tst_ScriptLimits::totalTimeCountsTheScriptAlone()
{
    m_engine->setLimits({.total = 150ms});
    run(QStringLiteral("caller.wait(300)"));
    QVERIFY2(!m_exception, m_exception ? qPrintable(m_exception->text()) : "");
    run(QStringLiteral("for (;;) caller.wait(0)"));
    QVERIFY(m_exception);
    QCOMPARE(m_exception->message,
             QStringLiteral("Das Skript wurde angehalten: es brauchte mehr als 0.15 s"));
    QCOMPARE(m_engine->stopped(), ScriptStop::TotalTime);
}

void tst_ScriptLimits::silenceEndsWithACall()
{
    m_engine->setLimits({.silent = 200ms});
    run(QStringLiteral("const end = Date.now() + 500; while (Date.now() < end) caller.wait(0)"));
    QVERIFY2(!m_exception, m_exception ? qPrintable(m_exception->text()) : "");
}

void tst_ScriptLimits::memory()
{
    m_engine->setLimits({.silent = 60s, .bytes = 60'000'000});
    run(QStringLiteral("const all = []; for (;;) all.push(new Array(1000).fill(all.length))"));
    QVERIFY(m_exception);
    QCOMPARE(m_exception->message,
             QStringLiteral("Das Skript wurde angehalten: es brauchte mehr als 60 MB Speicher"));
    QCOMPARE(m_engine->stopped(), ScriptStop::Memory);
}

void tst_ScriptLimits::stoppedFromAnotherThread()
{
    std::atomic<bool> begun = false;
    m_engine->setPrinter([&](const QString &) { begun = true; });
    std::thread other([&] {
        while (!begun)
            std::this_thread::sleep_for(1ms);
        m_engine->stop();
    });
    run(QStringLiteral("print('begun'); for (;;);"));
    other.join();
    QVERIFY(m_exception);
    QCOMPARE(m_exception->message, QStringLiteral("Das Skript wurde angehalten"));
    QCOMPARE(m_engine->stopped(), ScriptStop::ByHand);
    m_engine->stop(); // of nothing
    QCOMPARE(run(QStringLiteral("7")).getInt(), 7);
}

void tst_ScriptLimits::stoppedByAWish()
{
    std::atomic<bool> wish = true;
    m_engine->setLimits({.wish = &wish});
    run(QStringLiteral("for (;;);"));
    QCOMPARE(m_engine->stopped(), ScriptStop::ByHand);
    wish = false;
    QCOMPARE(run(QStringLiteral("7")).getInt(), 7);
}

/// By who looks after other things meanwhile.
void tst_ScriptLimits::stoppedDuringACall()
{
    int breaths = 0;
    m_engine->setBreath([&] {
        if (++breaths == 2)
            m_engine->stop();
    });
    run(QStringLiteral("for (;;) caller.wait(1)"));
    QCOMPARE(m_engine->stopped(), ScriptStop::ByHand);
    QCOMPARE(breaths, 2);
}

void tst_ScriptLimits::stoppedCallback()
{
    m_engine->setLimits({.silent = 100ms});
    const mzIDispatchC object(run(QStringLiteral("({ f() { for (;;); } })")).getIUnknown());
    mzComVariantC result;
    QCOMPARE(object.invokeAndCheck("f", {}, result, m_exception), int(mzComFailed));
    QVERIFY(m_exception);
    QCOMPARE(m_exception->message, QStringLiteral("Das Skript wurde angehalten"));
    // Within a call of the script both end.
    run(QStringLiteral("caller.call({ f() { for (;;); } }, 'f'); print('on'); for (;;);"));
    QCOMPARE(m_engine->stopped(), ScriptStop::SilentTime);
    QCOMPARE(m_caller->message, QStringLiteral("Das Skript wurde angehalten"));
}

void tst_ScriptLimits::getterWithoutEnd()
{
    m_engine->setLimits({.silent = 100ms});
    const mzIDispatchC object(run(QStringLiteral("({ get n() { for (;;); } })")).getIUnknown());
    mzComVariantC result;
    object.invoke("n", proxyMemberDescS::PropertyRead, {}, result, m_exception);
    QCOMPARE(m_engine->stopped(), ScriptStop::SilentTime);
}

void tst_ScriptLimits::exits_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<int>("status");
    QTest::newRow("none") << "1" << 0;
    QTest::newRow("done") << "exit(); print('no')" << 0;
    QTest::newRow("status") << "exit(7); print('no')" << 7;
    QTest::newRow("caught") << "try { exit(7); } catch (e) { print('no'); } print('no')" << 7;
    QTest::newRow("finally") << "try { exit(7); } finally { print('no'); }" << 7;
    QTest::newRow("in a function") << "(() => { for (;;) exit(3); })(); print('no')" << 3;
    QTest::newRow("in a callback") << "caller.call({ f() { exit(4); } }, 'f'); print('no')" << 4;
    QTest::newRow("twice") << "exit(3); exit(4)" << 3;
}

void tst_ScriptLimits::exits()
{
    QFETCH(QString, program);
    QStringList printed;
    m_engine->setPrinter([&](const QString &line) { printed << line; });
    run(program);
    QVERIFY2(!m_exception, m_exception ? qPrintable(m_exception->text()) : "");
    QTEST(m_engine->exitStatus(), "status");
    QCOMPARE(printed, QStringList());
}

void tst_ScriptLimits::deepRecursion_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("function") << "function f() { return f() + 1; }\nf()";
    QTest::newRow("through an object")
        << "const o = { f(c) { if (c.call(o, 'f') != 0) throw new RangeError('deep'); } };\n"
           "if (caller.call(o, 'f') != 0) throw new RangeError('deep')";
    QTest::newRow("toString") << "const o = { toString() { return '' + o; } };\nprint(o)";
    QTest::newRow("JSON") << "let a = []; for (let i = 0; i < 100000; ++i) a = [a];\n"
                             "JSON.stringify(a); throw new RangeError('no')";
}

void tst_ScriptLimits::deepRecursion()
{
    QFETCH(QString, program);
    run(program);
    QVERIFY(m_exception);
    QVERIFY2(m_exception->message.startsWith(QLatin1StringView("RangeError")),
             qPrintable(m_exception->message));
    QCOMPARE(m_exception->file, QStringLiteral("/scripts/test.js"));
    QVERIFY(m_exception->line == 1 || m_exception->line == 2);
    QCOMPARE(run(QStringLiteral("1 + 1")).getInt(), 2);
}

void tst_ScriptLimits::oneScriptAtATime()
{
    Exception inner;
    m_engine->setPrinter([&](const QString &) {
        m_engine->run(QStringLiteral("1"), QStringLiteral("second.js"), inner);
    });
    run(QStringLiteral("print(1)"));
    QVERIFY(!m_exception);
    QVERIFY(inner);
    QCOMPARE(inner->text(), QStringLiteral("second.js: Ein anderes Skript läuft noch"));
}

/// What scripts have is the language and these.
void tst_ScriptLimits::reachesNothingElse()
{
    const QJSEngine plain;
    QSet<QString> expected{"caller", "console", "createObject", "exit", "print"};
    const QStringList names = m_engine->completions(QString());
    for (const QString &name : names) {
        if (!plain.globalObject().hasProperty(name))
            QVERIFY2(expected.remove(name), qPrintable(name));
    }
    QVERIFY(expected.isEmpty());
    for (const char *name : {"Qt", "XMLHttpRequest", "require", "process", "gc", "importScripts"})
        QCOMPARE(run(QStringLiteral("typeof %1").arg(QLatin1StringView(name))), "undefined");
    run(QStringLiteral("import('file:///etc/passwd')"));
    QVERIFY(m_exception);
    // Nor is the engine behind what is there.
    QCOMPARE(
        run(QStringLiteral("[createObject, print, exit, console, caller].map(each =>"
                           "    Object.getOwnPropertyNames(each).concat("
                           "    Object.getOwnPropertySymbols(each)).join()).join(' ')")),
        run(QStringLiteral("[a => 1, (...a) => 1, a => 1, {log: 1, info: 1, warn: 1, error: 1},"
                           "{call: 1, wait: 1}].map(each =>"
                           "    Object.getOwnPropertyNames(each).join()).join(' ')")));
}

void tst_ScriptLimits::prints_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << "print()"
                             << "";
    QTest::newRow("values") << "print('a', 1, true, null, undefined, [1, 2])"
                            << "a 1 true null undefined 1,2";
    QTest::newRow("console") << "console.log('a', 'b')"
                             << "a b";
    QTest::newRow("object") << "print(caller)"
                            << "[CallerC]";
    QTest::newRow("symbol") << "print(Symbol('x'))"
                            << "Symbol(x)";
    QTest::newRow("lines") << "print('a\\nb')"
                           << "a\nb";
}

void tst_ScriptLimits::prints()
{
    QFETCH(QString, program);
    QStringList printed;
    m_engine->setPrinter([&](const QString &line) { printed << line; });
    run(program);
    QVERIFY2(!m_exception, m_exception ? qPrintable(m_exception->text()) : "");
    QTEST(printed.join(u'|'), "expected");
}

void tst_ScriptLimits::completes_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("expected");
    QTest::newRow("global") << "let a = cre"
                            << "createObject";
    QTest::newRow("members") << "caller."
                             << "call,wait";
    QTest::newRow("member") << "print(caller.w"
                            << "wait";
    QTest::newRow("deep") << "thing.part.le"
                          << "left,length";
    QTest::newRow("of every object") << "thing.hasOwn"
                                     << "";
    QTest::newRow("text") << "thing.name.toUpp"
                          << "toUpperCase";
    QTest::newRow("unknown") << "nothing."
                             << "";
    QTest::newRow("of nothing") << "thing.none.x"
                                << "";
    QTest::newRow("throws") << "thing.bad."
                            << "";
    QTest::newRow("never ends") << "thing.slow."
                                << "";
    QTest::newRow("behind a call") << "f().w"
                                   << "";
    QTest::newRow("in a text") << "'createO"
                               << "createObject";
}

void tst_ScriptLimits::completes()
{
    QFETCH(QString, line);
    m_engine->setLimits({.silent = 100ms});
    run(QStringLiteral(
        "var thing = { part: { left: 1, length: 2, 'le x': 3 }, name: 'n', none: null,"
        "  get bad() { throw 1; }, get slow() { for (;;); } }"));
    QVERIFY(!m_exception);
    QTEST(m_engine->completions(line).join(u','), "expected");
}

void tst_ScriptLimits::hostileTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("quotes") << QStringLiteral("it's \"so\" `x` ${1}");
    QTest::newRow("backslashes") << QStringLiteral("\\n\\u0041\\");
    QTest::newRow("NUL") << QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    QTest::newRow("places") << QStringLiteral("%1 %2 %n %%");
    QTest::newRow("planes") << QString::fromUcs4(U"\u00e4\u4e2d\U0001f529\U0010fffd");
    QTest::newRow("half a pair") << QString(QChar(0xd800)) + u'x';
    QTest::newRow("line ends") << QStringLiteral("a\r\nb\u2028c\u2029");
    QTest::newRow("long") << QString(100'000, u'x');
    QTest::newRow("prototype") << QStringLiteral("__proto__");
    QTest::newRow("number") << QStringLiteral("0");
}

/// As value, as name of a member and as name of a property.
void tst_ScriptLimits::hostileTexts()
{
    QFETCH(QString, text);
    const ProxyPtrT<SampleC> sample(new SampleC);
    m_engine->setGlobal(QStringLiteral("sample"), sample.get());
    m_engine->setGlobal(QStringLiteral("text"), mzComVariantC(text));
    QCOMPARE(run(QStringLiteral("sample.join(text, 1, false)")), text + QStringLiteral("/1/0"));
    QVERIFY(!m_exception);
    QCOMPARE(
        run(QStringLiteral("let t = ''; try { sample[text]; } catch (e) { t = e.message; } t")),
        QStringLiteral("SampleC has no property \"") + text +
            QStringLiteral("\" that can be read"));
    QCOMPARE(run(QStringLiteral("try { sample[text] = 1; } catch (e) { t = e.message; } t")),
             QStringLiteral("SampleC has no property \"") + text +
                 QStringLiteral("\" that can be written"));
    run(QStringLiteral("throw new Error(text)"));
    QVERIFY(m_exception);
    QCOMPARE(m_exception->message, QStringLiteral("Error: ") + text);
    if (text != QLatin1StringView("__proto__"))
        QVERIFY(run(QStringLiteral("const o = {}; o[text] = text; o")).getIUnknown());
    static_cast<void>(m_engine->completions(text));
}

void tst_ScriptLimits::objectsOutliveTheEngine()
{
    ProxyPtrT<SampleC> sample(new SampleC);
    m_engine->setGlobal(QStringLiteral("sample"), sample.get());
    const mzIDispatchC kept(
        run(QStringLiteral("({ s: sample, f() { return this.s.number; } })")).getIUnknown());
    m_engine.reset();
    QCOMPARE(sample->refCount(), 1);
    QCOMPARE(sample->number(), 0);
    mzComVariantC result;
    QCOMPARE(kept.invokeAndCheck("f", {}, result, m_exception), int(mzComFailed));
    QCOMPARE(kept.invoke("s", proxyMemberDescS::PropertyRead, {}, result, m_exception),
             int(mzComFailed));
}

/// Objects of one engine in another.
void tst_ScriptLimits::manyEngines()
{
    ScriptEngine other;
    other.setGlobal(QStringLiteral("theirs"),
                    run(QStringLiteral("({ n: 3, f(n) { return n + 1; } })")));
    Exception exception;
    mzComVariantC result;
    const mzIDispatchC back(
        other.run(QStringLiteral("theirs"), QStringLiteral("other.js"), exception).getIUnknown());
    QVERIFY(!exception);
    QCOMPARE(back.invokeAndCheck("f", {4}, result, exception), 0);
    QCOMPARE(result.getInt(), 5);
    QCOMPARE(other.run(QStringLiteral("theirs.n"), QStringLiteral("other.js"), exception), 3);
    m_engine.reset();
    other.run(QStringLiteral("theirs.n"), QStringLiteral("other.js"), exception);
    QVERIFY(exception);
    QCOMPARE(exception->message, QStringLiteral("Error: [object].n failed"));
}

QTEST_GUILESS_MAIN(tst_ScriptLimits)
#include "tst_ScriptLimits.moc"
