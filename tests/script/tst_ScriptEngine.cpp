#include "../core/SampleProxies.h"

#include <core/component/mzComPropertyC.h>
#include <core/component/mzComVariableC.h>
#include <core/component/mzIDispatchC.h>
#include <core/component/proxyFactoryC.h>
#include <core/component/prxDictionaryObjC.h>
#include <script/engine/ScriptEngine.h>

#include <QTest>

#include <memory>

using Exception = std::optional<PScriptException>;

namespace {

/// A dialog as a script has it: keeps a callback.
class DialogC : public proxyObjectC
{
public:
    void setCallback(const mzIDispatchC &object, const mzComStringC &method)
    {
        callback = object;
        name = method;
    }
    const proxyMemberDescListS *getProxyTypeInfo() const override
    {
        static const proxyMemberDescS members[] = {
            proxyMethod<&DialogC::setCallback>("SetCallback"),
        };
        static const proxyMemberDescListS description{.className = "DialogC", .members = members};
        return &description;
    }

    mzIDispatchC callback;
    mzComStringC name;
};

} // namespace

class tst_ScriptEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void values_data();
    void values();
    void wrappedValues();
    void members_data();
    void members();
    void errors_data();
    void errors();
    void unknownMethod();
    void errorIsCaughtByTheScript();
    void syntaxError();
    void thrownText();
    void objectsComeBack();
    void objectsOfTheScriptComeBack();
    void createsComponents();
    void callback();
    void callbackFails_data();
    void callbackFails();
    void callbackChangesADictionary();
    void callbackAfterTheEngine();
    void propertiesOfAScriptObject();
    void collected();

private:
    mzComVariantC run(const QString &program)
    {
        return m_engine->run(program, QStringLiteral("test.js"), m_exception);
    }
    [[nodiscard]] QString textOf(const QString &program)
    {
        mzComStringC text;
        run(program).getExt(text);
        return text.text();
    }

    std::unique_ptr<ScriptEngine> m_engine;
    ProxyPtrT<SampleC> m_object;
    Exception m_exception;
};

void tst_ScriptEngine::init()
{
    m_engine = std::make_unique<ScriptEngine>();
    m_object = new DerivedSampleC;
    m_engine->setGlobal(QStringLiteral("sample"), m_object.get());
    m_exception.reset();
}

void tst_ScriptEngine::cleanup()
{
    m_engine.reset();
    m_object = nullptr;
    QCOMPARE(PMemManager::liveObjects(), 0);
}

void tst_ScriptEngine::values_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<int>("type");
    QTest::newRow("undefined") << "undefined" << int(mzComVariantC::Empty);
    QTest::newRow("null") << "null" << int(mzComVariantC::Empty);
    QTest::newRow("bool") << "true" << int(mzComVariantC::Bool);
    QTest::newRow("int") << "4 / 2" << int(mzComVariantC::Int);
    QTest::newRow("double") << "1 / 2" << int(mzComVariantC::Double);
    QTest::newRow("too large") << "2147483648" << int(mzComVariantC::Double);
    QTest::newRow("no number") << "0 / 0" << int(mzComVariantC::Double);
    QTest::newRow("text") << "'ä'" << int(mzComVariantC::Text);
    QTest::newRow("object") << "({})" << int(mzComVariantC::Object);
    QTest::newRow("function") << "(function() {})" << int(mzComVariantC::Object);
}

void tst_ScriptEngine::values()
{
    QFETCH(QString, program);
    const mzComVariantC value = run(program);
    QVERIFY(!m_exception);
    QTEST(int(value.type()), "type");
    // And back.
    m_engine->setGlobal(QStringLiteral("given"), value);
    const QString check = value.isEmpty()
                              ? QStringLiteral("given === null")
                              : QStringLiteral("typeof given == typeof (%1)").arg(program);
    QVERIFY(run(check) == mzComVariantC(true));
}

void tst_ScriptEngine::wrappedValues()
{
    const mzComVariantC title = mzComVariantC::property(
        *new mzComPropertyC(mzIDispatchC(m_object->getIUnknown()), "title"));
    m_engine->setGlobal(QStringLiteral("title"),
                        mzComVariantC::variable(*new mzComVariableC(title)));
    QCOMPARE(textOf(QStringLiteral("title + 'n'")), QStringLiteral("Muttern"));
}

void tst_ScriptEngine::members_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("expected");
    QTest::newRow("read") << "'' + sample.number"
                          << "0";
    QTest::newRow("write") << "sample.number = 5; '' + sample.number"
                           << "5";
    QTest::newRow("derived class first") << "sample.title"
                                         << "Mutter";
    QTest::newRow("method") << "sample.join('a', 2, true)"
                            << "a/2/1";
    QTest::newRow("method of the derived class") << "sample.number = 4; '' + sample.twice()"
                                                 << "8";
    QTest::newRow("method kept") << "let f = sample.half; '' + f(3)"
                                 << "1.5";
    QTest::newRow("no object") << "String(sample.peer)"
                               << "null";
    QTest::newRow("object") << "sample.peer = sample; sample.peer.peer.number = 7;"
                               "let n = sample.number; sample.dropPeer(); '' + n"
                            << "7";
    QTest::newRow("has a property") << "String('number' in sample)"
                                    << "true";
    QTest::newRow("has a method") << "String('join' in sample)"
                                  << "true";
    QTest::newRow("has not") << "String('sum' in sample)"
                             << "false";
    QTest::newRow("has nothing of the language") << "String('toString' in sample)"
                                                 << "false";
    QTest::newRow("as text") << "'' + sample"
                             << "[DerivedSampleC]";
    QTest::newRow("as JSON") << "JSON.stringify([sample])"
                             << "[\"[DerivedSampleC]\"]";
}

void tst_ScriptEngine::members()
{
    QFETCH(QString, program);
    const QString result = textOf(program);
    QVERIFY2(!m_exception, m_exception ? qPrintable(m_exception->text()) : "");
    QTEST(result, "expected");
}

void tst_ScriptEngine::errors_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown member") << "sample.sum"
                                    << "DerivedSampleC has no property \"sum\" that can be read";
    QTest::newRow("unknown property")
        << "sample.sum = 1"
        << "DerivedSampleC has no property \"sum\" that can be written";
    QTest::newRow("read only") << "sample.title = 'x'"
                               << "DerivedSampleC has no property \"title\" that can be written";
    QTest::newRow("number of arguments") << "sample.join('a')"
                                         << "DerivedSampleC.join takes 3 arguments, not 1";
    QTest::newRow("text for an object") << "sample.peer = 'x'"
                                        << "DerivedSampleC.peer: argument 1 is of the wrong type";
    QTest::newRow("script's object for an object")
        << "sample.peer = {}"
        << "DerivedSampleC.peer: argument 1 is of the wrong type";
    QTest::newRow("unknown component") << "createObject('x.y')"
                                       << "There is no component \"x.y\" that can be made";
}

void tst_ScriptEngine::errors()
{
    QFETCH(QString, program);
    QFETCH(QString, message);
    const mzComVariantC result = run(u'\n' + program);
    QVERIFY(result.isEmpty());
    QVERIFY(m_exception);
    QCOMPARE(m_exception->message, QStringLiteral("Error: ") + message);
    QCOMPARE(m_exception->file, QStringLiteral("test.js"));
    QCOMPARE(m_exception->line, 2);
    // The engine goes on.
    QCOMPARE(run(QStringLiteral("1 + 1")).getInt(), 2);
    QVERIFY(!m_exception);
}

/// The engine says on top that it could not call it.
void tst_ScriptEngine::unknownMethod()
{
    QVERIFY(run(QStringLiteral("sample.sum()")).isEmpty());
    QVERIFY(m_exception);
    const QString cause = QStringLiteral("DerivedSampleC has no property \"sum\"");
    QVERIFY2(m_exception->message.contains(cause), qPrintable(m_exception->message));
    QCOMPARE(m_exception->file, QStringLiteral("test.js"));
    QCOMPARE(m_exception->line, 1);
}

void tst_ScriptEngine::errorIsCaughtByTheScript()
{
    const QString program =
        QStringLiteral("let t = ''; try { sample.twice(1); } catch (e) { t = e.message; } t");
    QCOMPARE(textOf(program), QStringLiteral("DerivedSampleC.twice takes no arguments, not 1"));
    QVERIFY(!m_exception);
}

void tst_ScriptEngine::syntaxError()
{
    QVERIFY(run(QStringLiteral("let a = ;")).isEmpty());
    QVERIFY(m_exception);
    QVERIFY(m_exception->message.startsWith(QStringLiteral("SyntaxError")));
    QCOMPARE(m_exception->line, 1);
}

void tst_ScriptEngine::thrownText()
{
    QVERIFY(run(QStringLiteral("\n\nthrow 'genug'")).isEmpty());
    QVERIFY(m_exception);
    QCOMPARE(m_exception->message, QStringLiteral("genug"));
    QCOMPARE(m_exception->line, 3);
    QCOMPARE(m_exception->file, QStringLiteral("test.js"));
}

void tst_ScriptEngine::objectsComeBack()
{
    QCOMPARE(run(QStringLiteral("sample")).getIUnknown(), m_object->getIUnknown());
    const auto peer = ProxyPtrT<SampleC>(new SampleC);
    m_engine->setGlobal(QStringLiteral("peer"), peer.get());
    QVERIFY(run(QStringLiteral("sample.peer = peer")).getIUnknown() == peer->getIUnknown());
    QVERIFY(m_object->peer() == peer);
    m_object->dropPeer();
}

void tst_ScriptEngine::objectsOfTheScriptComeBack()
{
    m_engine->setGlobal(QStringLiteral("b"), run(QStringLiteral("var a = {n: 1}; a")));
    QVERIFY(run(QStringLiteral("a === b")) == mzComVariantC(true));
}

void tst_ScriptEngine::createsComponents()
{
    proxyFactoryC::instance().registerClass(SampleC::getStaticProxyTypeInfo());
    const QString program = QStringLiteral("let s = createObject('tests.sample'); s.number = 3;"
                                           "s.number + createObject('tests.sample').number");
    QCOMPARE(run(program).getInt(), 3);
    proxyFactoryC::instance().unregisterClass(SampleC::getStaticProxyTypeInfo());
}

void tst_ScriptEngine::callback()
{
    const ProxyPtrT<DialogC> dialog(new DialogC);
    m_engine->setGlobal(QStringLiteral("dialog"), dialog.get());
    run(QStringLiteral("let plm = { factor: 3, update(a, b) { return a * this.factor + b; } };"
                       "dialog.SetCallback(plm, 'update')"));
    QVERIFY(!m_exception);
    mzComVariantC result;
    QCOMPARE(dialog->callback.invokeAndCheck(dialog->name, {4, "x"}, result, m_exception), 0);
    QVERIFY(result == "12x");
    QVERIFY(!m_exception);
    dialog->callback = {};
}

void tst_ScriptEngine::callbackFails_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("line");
    QTest::newRow("throws an error") << "throw new Error('boom')"
                                     << "Error: boom" << 2;
    QTest::newRow("throws a text") << "throw 'boom'"
                                   << "boom" << 0;
    QTest::newRow("unknown variable") << "return nothing"
                                      << "ReferenceError: nothing is not defined" << 2;
    QTest::newRow("error of the model")
        << "sample.twice(1)"
        << "Error: DerivedSampleC.twice takes no arguments, not 1" << 2;
}

void tst_ScriptEngine::callbackFails()
{
    QFETCH(QString, body);
    const mzIDispatchC plm(run(QStringLiteral("({ update() {\n%1\n} })").arg(body)).getIUnknown());
    QVERIFY(plm.isValid());
    mzComVariantC result;
    QCOMPARE(plm.invokeAndCheck("update", {}, result, m_exception), int(mzComFailed));
    QVERIFY(result.isEmpty());
    QVERIFY(m_exception);
    QTEST(m_exception->message, "message");
    QTEST(m_exception->line, "line");
    QCOMPARE(plm.invokeAndCheck("create", {}, result, m_exception), int(mzComUnknownMember));
    QCOMPARE(m_exception->message,
             QStringLiteral("The script's object has no function \"create\""));
    QCOMPARE(run(QStringLiteral("1 + 1")).getInt(), 2);
}

void tst_ScriptEngine::callbackChangesADictionary()
{
    const ProxyPtrT<prxDictionaryObjC> dictionary(new prxDictionaryObjC);
    dictionary->addObj("NAME", "alt");
    dictionary->addObj("WEG", "");
    const mzIDispatchC plm(run(QStringLiteral("({ update(values, table) {"
                                              "  values.addObj('NAME', values.item('NAME') + '!');"
                                              "  values.remove('WEG');"
                                              "  values.addObj('TABLE', String(table));"
                                              "  return 0; } })"))
                               .getIUnknown());
    mzComVariantC result;
    const mzComVariantArrayC arguments{dictionary->getIUnknown(),
                                       static_cast<const proxyObjectC *>(nullptr)};
    QCOMPARE(plm.invokeAndCheck("update", arguments, result, m_exception), 0);
    QVERIFY(!result.isEmpty());
    QCOMPARE(dictionary->getKeyArray().toQStringList().join(u','), QStringLiteral("NAME,TABLE"));
    QCOMPARE(dictionary->getItemArray().toQStringList().join(u','), QStringLiteral("alt!,null"));
}

void tst_ScriptEngine::callbackAfterTheEngine()
{
    const mzIDispatchC plm(run(QStringLiteral("({ update() { return 1; } })")).getIUnknown());
    m_engine.reset();
    mzComVariantC result;
    QCOMPARE(plm.invokeAndCheck("update", {}, result, m_exception), int(mzComFailed));
    QVERIFY(result.isEmpty());
    QVERIFY(!m_exception);
}

void tst_ScriptEngine::propertiesOfAScriptObject()
{
    const mzIDispatchC object(run(QStringLiteral("({ n: 4 })")).getIUnknown());
    mzComVariantC result;
    QCOMPARE(object.invoke("n", proxyMemberDescS::PropertyRead, {}, result, m_exception), 0);
    QCOMPARE(result.getInt(), 4);
    QCOMPARE(object.invoke("m", proxyMemberDescS::PropertyWrite, {"x"}, result, m_exception), 0);
    QCOMPARE(object.invoke("m", proxyMemberDescS::PropertyRead, {}, result, m_exception), 0);
    QVERIFY(result == "x");
}

/// What the script forgets goes once the engine collects.
void tst_ScriptEngine::collected()
{
    ProxyPtrT<SampleC> object(new SampleC);
    m_engine->setGlobal(QStringLiteral("other"), object.get());
    SampleC *const kept = object.get();
    object = nullptr;
    QCOMPARE(SampleC::alive, 2);
    QCOMPARE(kept->number(), 0);
    run(QStringLiteral("other = null"));
    m_engine->collectGarbage();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(SampleC::alive, 1);
}

QTEST_GUILESS_MAIN(tst_ScriptEngine)
#include "tst_ScriptEngine.moc"
