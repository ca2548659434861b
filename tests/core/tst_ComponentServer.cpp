#include <core/component/mzComServerC.h>
#include <core/component/mzComServerStateEventC.h>
#include <core/component/proxyAutoRegisterT.h>
#include <core/component/proxyFactoryC.h>
#include <core/message/PMessage.h>

#include <QStringList>
#include <QTest>

class tst_ComponentServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void events_data();
    void events();
    void order();
    void startsAndStopsOnce();
    void joinsARunningServer();
    void joinsOnce();
    void leavesWithItsObject();
    void mayLeaveWhileItIsTold();
    void baseDoesNothing();
    void registersClass();
    void findsClasses();
};

namespace {

/// Writes down what it is told.
class Member : public mzComServerStateEventC
{
public:
    Member(int events, const QString &name, QStringList &calls)
        : mzComServerStateEventC(events)
        , m_name(name)
        , m_calls(calls)
    {
    }

    int serverStart() override
    {
        m_calls << m_name + QStringLiteral(" start");
        return 0;
    }
    void serverDone() override { m_calls << m_name + QStringLiteral(" done"); }

private:
    QString m_name;
    QStringList &m_calls;
};

/// A class that scripts can create by an id.
struct ScriptClass
{
    static const proxyMemberDescListS *getStaticProxyTypeInfo()
    {
        static const proxyMemberDescListS description{.className = "prxTest",
                                                      .componentId = "tests.component",
                                                      .file = __FILE__,
                                                      .line = __LINE__};
        return &description;
    }
};

constexpr int startAndStop = 0x50;

} // namespace

void tst_ComponentServer::cleanup()
{
    mzComServerC::instance().stop();
    QVERIFY(mzComServerC::instance().members().isEmpty());
    QVERIFY(proxyFactoryC::instance().classes().isEmpty());
}

void tst_ComponentServer::events_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<QStringList>("expected");
    const QString start = QStringLiteral("a start");
    const QString done = QStringLiteral("a done");
    QTest::newRow("start and stop") << 0x50 << QStringList{start, done};
    QTest::newRow("start") << 0x10 << QStringList{start};
    QTest::newRow("stop") << 0x40 << QStringList{done};
    QTest::newRow("neither") << 0 << QStringList();
}

void tst_ComponentServer::events()
{
    QFETCH(int, wanted);
    QStringList calls;
    Member member(wanted, QStringLiteral("a"), calls);
    member.init();
    QVERIFY(calls.isEmpty());
    mzComServerC::instance().start();
    mzComServerC::instance().stop();
    QTEST(calls, "expected");
}

void tst_ComponentServer::order()
{
    QStringList calls;
    Member a(startAndStop, QStringLiteral("a"), calls);
    Member b(startAndStop, QStringLiteral("b"), calls);
    b.init();
    a.init();
    mzComServerC::instance().start();
    mzComServerC::instance().stop();
    QCOMPARE(calls.join(u','), QStringLiteral("b start,a start,a done,b done"));
}

void tst_ComponentServer::startsAndStopsOnce()
{
    QStringList calls;
    Member a(startAndStop, QStringLiteral("a"), calls);
    a.init();
    mzComServerC::instance().stop();
    QVERIFY(calls.isEmpty());
    mzComServerC::instance().start();
    mzComServerC::instance().start();
    QVERIFY(mzComServerC::instance().isRunning());
    QCOMPARE(calls.size(), 1);
    mzComServerC::instance().stop();
    mzComServerC::instance().stop();
    QVERIFY(!mzComServerC::instance().isRunning());
    QCOMPARE(calls.size(), 2);
}

void tst_ComponentServer::joinsARunningServer()
{
    QStringList calls;
    mzComServerC::instance().start();
    Member a(startAndStop, QStringLiteral("a"), calls);
    QVERIFY(calls.isEmpty());
    a.init();
    QCOMPARE(calls, QStringList{QStringLiteral("a start")});
}

void tst_ComponentServer::joinsOnce()
{
    QStringList calls;
    mzComServerC::instance().start();
    Member a(startAndStop, QStringLiteral("a"), calls);
    a.init();
    a.init();
    QCOMPARE(calls.size(), 1);
    QCOMPARE(mzComServerC::instance().members().size(), 1);
}

void tst_ComponentServer::leavesWithItsObject()
{
    QStringList calls;
    {
        Member a(startAndStop, QStringLiteral("a"), calls);
        a.init();
    }
    mzComServerC::instance().start();
    QVERIFY(calls.isEmpty());
}

void tst_ComponentServer::mayLeaveWhileItIsTold()
{
    /// Takes another one out of the server.
    class Leaver : public mzComServerStateEventC
    {
    public:
        explicit Leaver(mzComServerStateEventC &other)
            : mzComServerStateEventC(startAndStop)
            , m_other(other)
        {
        }
        int serverStart() override
        {
            mzComServerC::instance().leave(m_other);
            return 0;
        }

    private:
        mzComServerStateEventC &m_other;
    };
    QStringList calls;
    Member other(startAndStop, QStringLiteral("other"), calls);
    Leaver leaver(other);
    leaver.init();
    other.init();
    mzComServerC::instance().start();
    QVERIFY(calls.isEmpty());
}

void tst_ComponentServer::baseDoesNothing()
{
    mzComServerStateEventC base(startAndStop);
    QCOMPARE(base.events(), startAndStop);
    QCOMPARE(base.serverStart(), 0);
    base.serverDone();
}

void tst_ComponentServer::registersClass()
{
    proxyAutoRegisterT<ScriptClass> registrar(startAndStop);
    registrar.init();
    QVERIFY(proxyFactoryC::instance().classes().isEmpty());
    mzComServerC::instance().start();
    QCOMPARE(proxyFactoryC::instance().classes(),
             QList<const proxyMemberDescListS *>{ScriptClass::getStaticProxyTypeInfo()});
    QCOMPARE(registrar.serverStart(), 0);
    QCOMPARE(proxyFactoryC::instance().classes().size(), 1);
    mzComServerC::instance().stop();
    QCOMPARE(proxyFactoryC::instance().classes().size(), 1);
}

void tst_ComponentServer::findsClasses()
{
    proxyFactoryC &factory = proxyFactoryC::instance();
    const proxyMemberDescListS inner{.className = "prxInner", .file = __FILE__, .line = __LINE__};
    factory.registerClass(&inner);
    factory.registerClass(ScriptClass::getStaticProxyTypeInfo());
    QCOMPARE(factory.findClass(QStringLiteral("prxInner")), &inner);
    QCOMPARE(factory.findClass(QStringLiteral("prxTest")), ScriptClass::getStaticProxyTypeInfo());
    QCOMPARE(factory.findClass(QStringLiteral("prxtest")), nullptr);
    QCOMPARE(factory.findComponent(QStringLiteral("tests.component")),
             ScriptClass::getStaticProxyTypeInfo());
    QCOMPARE(factory.findComponent(QStringLiteral("prxTest")), nullptr);
    QCOMPARE(factory.findComponent(QString()), nullptr);
    factory.unregisterClass(&inner);
    factory.unregisterClass(ScriptClass::getStaticProxyTypeInfo());
    QCOMPARE(factory.findClass(QStringLiteral("prxInner")), nullptr);
}

QTEST_GUILESS_MAIN(tst_ComponentServer)
#include "tst_ComponentServer.moc"
