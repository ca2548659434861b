#include "../support/SlotOrder.h"
#include "SampleProxies.h"

#include <core/component/mzComCreateObject.h>
#include <core/component/mzComPropertyC.h>
#include <core/component/mzComPtrC.h>
#include <core/component/mzComVariantArrayC.h>
#include <core/component/mzIComNativePointer.h>
#include <core/component/proxyFactoryC.h>

#include <QTest>

#include <set>
#include <thread>
#include <vector>

using Exception = std::optional<PScriptException>;
using Row = proxyMemberDescS;

Q_DECLARE_METATYPE(mzComVariantArrayC)

class tst_proxyObjectC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void slotOrder();
    void goesWithItsLastReference();
    void countsOnAllThreads();
    void interfaces_data();
    void interfaces();
    void unknownInterface();
    void rowsOfAProperty();
    void rowsOfADescription();
    void descriptionOfTheBase();
    void builtOnce();
    void readWriteAndMethodOfAProperty();
    void objectProperty();
    void numberOfArguments();
    void baseChain();
    void errors_data();
    void errors();
    void errorChangesNothing();
    void successForgetsAnEarlierError();
    void argumentThatCannotBeRead();
    void argumentsAreReadLastToFirst();
    void livesThroughTheCall();
    void ownThread();
    void proxyCast();
    void callGoesToTheObjectOfTheCast();
    void remoteConnections();
    void createdById();
    void notCreated_data();
    void notCreated();

private:
    /// What a call gives: its code and what it leaves.
    struct Outcome
    {
        int code = 0;
        mzComVariantC result = 7;
        Exception exception = PScriptException{QStringLiteral("earlier"), {}, 0};
    };
    static Outcome call(proxyObjectC &object, const mzComStringC &name, int kind,
                        const mzComVariantArrayC &arguments = {})
    {
        Outcome outcome;
        outcome.code =
            object.invokeByName(name, kind, arguments, outcome.result, outcome.exception);
        return outcome;
    }
};

namespace {

QString textOf(const mzComVariantC &value)
{
    mzComStringC text;
    return value.getExt(text) == 0 ? QString(text.text()) : QStringLiteral("no text");
}

template<class Class>
ProxyPtrT<Class> made()
{
    return ProxyPtrT<Class>(new Class);
}

} // namespace

void tst_proxyObjectC::cleanup()
{
    QCOMPARE(SampleC::alive, 0);
    QCOMPARE(PMemManager::liveObjects(), 0);
}

void tst_proxyObjectC::slotOrder()
{
    QCOMPARE(slotOf(&proxyObjectC::queryInterface), 0);
    QCOMPARE(slotOf(&proxyObjectC::addRef), 1);
    QCOMPARE(slotOf(&proxyObjectC::release), 2);
    QCOMPARE(slotOf(&proxyObjectC::invokeByName), 3);
    QCOMPARE(slotOf(&proxyObjectC::getStickyThreadId), 4);
    QCOMPARE(slotOf(&proxyObjectC::proxyCast), 5);
    QCOMPARE(slotOf(&proxyObjectC::getProxyTypeInfo), 6);
    // The destructor takes two.
    QCOMPARE(slotOf(&proxyObjectC::addRemoteConnection), 9);
    QCOMPARE(slotOf(&proxyObjectC::releaseRemoteConnection), 10);
    // A script class overrides, and adds nothing.
    QCOMPARE(slotOf(&SampleC::getProxyTypeInfo), 6);
    QCOMPARE(slotOf(&mzIUnknown::release), 2);
    QCOMPARE(slotOf(&mzIDispatch::invokeByName), 3);
}

void tst_proxyObjectC::goesWithItsLastReference()
{
    auto *const object = new SampleC;
    QCOMPARE(object->refCount(), 0);
    QCOMPARE(PMemManager::liveObjects(), 1);
    QCOMPARE(object->addRef(), 1);
    QCOMPARE(object->addRef(), 2);
    QCOMPARE(object->release(), 1);
    QCOMPARE(SampleC::alive, 1);
    QCOMPARE(object->release(), 0);
    QCOMPARE(SampleC::alive, 0);
}

void tst_proxyObjectC::countsOnAllThreads()
{
    const auto object = made<SampleC>();
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&object] {
            for (int i = 0; i < 10000; ++i) {
                object->addRef();
                object->addRef();
                object->release();
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(object->refCount(), 40001);
    for (int i = 0; i < 40000; ++i)
        object->release();
}

void tst_proxyObjectC::interfaces_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("own");
    QTest::newRow("unknown") << QByteArray("mzIUnknown") << true;
    QTest::newRow("dispatch") << QByteArray("mzIDispatch") << true;
    QTest::newRow("native pointer") << QByteArray("mzIComNativePointer") << false;
}

void tst_proxyObjectC::interfaces()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, own);
    const auto object = made<SampleC>();
    mzComPtrC found;
    QCOMPARE(object->queryInterface(mzIIDS(name.constData()), found), 0);
    QVERIFY(found.isValid());
    QCOMPARE(found.iface() == object->getIUnknown(), own);
    QCOMPARE(object->refCount(), 2);
    // From each interface all others can be had.
    for (const char *other : {"mzIUnknown", "mzIDispatch", "mzIComNativePointer"}) {
        mzComPtrC second;
        QCOMPARE(found->queryInterface(mzIIDS(other), second), 0);
        QVERIFY(second.isValid());
    }
    mzComPtrC unknown;
    QCOMPARE(found->queryInterface(mzIUnknown::iid(), unknown), 0);
    QCOMPARE(unknown.iface(), object->getIUnknown());
    unknown = {};
    found = {};
    QCOMPARE(object->refCount(), 1);
}

void tst_proxyObjectC::unknownInterface()
{
    const auto object = made<SampleC>();
    mzComPtrC found(object->getIUnknown());
    QCOMPARE(object->queryInterface(mzIIDS("mziunknown"), found), int(mzComNoInterface));
    QVERIFY(!found.isValid());
    QCOMPARE(object->refCount(), 1);
}

void tst_proxyObjectC::rowsOfAProperty()
{
    const std::span<const Row> rows = SampleC::getStaticProxyTypeInfo()->members;
    const int kinds[] = {2, 4, 1};
    const int counts[] = {0, 1, 1};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(rows[i].name, "number");
        QCOMPARE(rows[i].kind, kinds[i]);
        QCOMPARE(rows[i].argumentCount, counts[i]);
        QVERIFY(rows[i].signature() ==
                (i == 0 ? typeid(&SampleC::number) : typeid(&SampleC::setNumber)));
        QVERIFY(QByteArray(rows[i].file).endsWith("SampleProxies.h"));
        QCOMPARE(rows[i].line, rows[0].line + i);
    }
    QVERIFY(rows[1].invoker == rows[2].invoker);
    QVERIFY(rows[0].invoker != rows[1].invoker);
}

void tst_proxyObjectC::rowsOfADescription()
{
    const proxyMemberDescListS *const type = DerivedSampleC::getStaticProxyTypeInfo();
    QCOMPARE(type->className, "DerivedSampleC");
    QCOMPARE(type->base, SampleC::getStaticProxyTypeInfo());
    QCOMPARE(type->members.size(), std::size_t(2));
    QCOMPARE(type->componentId, nullptr);
    QVERIFY(!type->creator);
    QVERIFY(QByteArray(type->file).endsWith("SampleProxies.h"));
    QCOMPARE_GT(type->line, 0);
    QCOMPARE(SampleC::getStaticProxyTypeInfo()->base, proxyObjectC::getStaticProxyTypeInfo());
    QCOMPARE(made<DerivedSampleC>()->getProxyTypeInfo(), type);
}

void tst_proxyObjectC::descriptionOfTheBase()
{
    const proxyMemberDescListS *const type = proxyObjectC::getStaticProxyTypeInfo();
    QCOMPARE(type->className, "proxyObjectC");
    QCOMPARE(type->base, nullptr);
    QVERIFY(type->members.empty());
    QCOMPARE(type->componentId, nullptr);
    QVERIFY(!type->creator);
    QCOMPARE(made<OtherC>()->getProxyTypeInfo(), type);
}

void tst_proxyObjectC::builtOnce()
{
    /// First used by all threads at once.
    struct Late
    {
        static const proxyMemberDescListS *description()
        {
            static const proxyMemberDescListS result{.className = name(), .line = __LINE__};
            return &result;
        }
        static const char *name()
        {
            ++built();
            return "Late";
        }
        static std::atomic<int> &built()
        {
            static std::atomic<int> count{0};
            return count;
        }
    };
    std::vector<const proxyMemberDescListS *> found(4);
    std::vector<std::thread> threads;
    for (const proxyMemberDescListS *&each : found)
        threads.emplace_back([&each] { each = Late::description(); });
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(std::set(found.begin(), found.end()).size(), std::size_t(1));
    QCOMPARE(Late::built().load(), 1);
}

void tst_proxyObjectC::readWriteAndMethodOfAProperty()
{
    const auto object = made<SampleC>();
    const Outcome written = call(*object, "number", Row::PropertyWrite, {5});
    QCOMPARE(written.code, 0);
    QCOMPARE(written.result.getInt(), 1);
    QVERIFY(!written.exception);
    QCOMPARE(call(*object, "number", Row::PropertyRead).result.getInt(), 5);
    QCOMPARE(call(*object, "number", Row::Method, {6}).result.getInt(), 1);
    QCOMPARE(call(*object, "number", Row::PropertyRead).result.getInt(), 6);
    QCOMPARE(textOf(call(*object, "title", Row::PropertyRead).result), QStringLiteral("Schraube"));
}

void tst_proxyObjectC::objectProperty()
{
    const auto object = made<SampleC>();
    const auto peer = made<SampleC>();
    QVERIFY(call(*object, "peer", Row::PropertyRead).result.isEmpty());
    // A setter without a result gives 1 as well.
    QCOMPARE(call(*object, "peer", Row::PropertyWrite, {peer.get()}).result.getInt(), 1);
    QCOMPARE(peer->refCount(), 2);
    {
        const Outcome read = call(*object, "peer", Row::PropertyRead);
        QCOMPARE(read.result.type(), mzComVariantC::Object);
        QCOMPARE(read.result.getIUnknown(), peer->getIUnknown());
        QCOMPARE(peer->refCount(), 3);
    }
    QCOMPARE(peer->refCount(), 2);
    QCOMPARE(call(*object, "dropPeer", Row::Method).result.getInt(), 1);
    QCOMPARE(peer->refCount(), 1);
    QVERIFY(call(*object, "peer", Row::PropertyRead).result.isEmpty());
}

void tst_proxyObjectC::numberOfArguments()
{
    const auto object = made<SampleC>();
    const Outcome three = call(*object, "join", Row::Method, {"a", 2, true});
    QCOMPARE(textOf(three.result), QStringLiteral("a/2/1"));
    double half = 0;
    QCOMPARE(call(*object, "half", Row::Method, {3}).result.getExt(half), 0);
    QCOMPARE(half, 1.5);
}

void tst_proxyObjectC::baseChain()
{
    const auto object = made<DerivedSampleC>();
    QCOMPARE(call(*object, "number", Row::PropertyWrite, {21}).code, 0);
    QCOMPARE(call(*object, "twice", Row::Method).result.getInt(), 42);
    QCOMPARE(textOf(call(*object, "title", Row::PropertyRead).result), QStringLiteral("Mutter"));
    const auto base = made<SampleC>();
    QCOMPARE(call(*base, "twice", Row::Method).code, int(mzComUnknownMember));
}

void tst_proxyObjectC::errors_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("kind");
    QTest::addColumn<mzComVariantArrayC>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *title, const char *member, int kind,
                        const mzComVariantArrayC &arguments, int code, const char *message) {
        QTest::newRow(title) << QString(member) << kind << arguments << code << QString(message);
    };
    row("no such method", "sum", Row::Method, {}, mzComUnknownMember,
        "DerivedSampleC has no method \"sum\"");
    row("other case", "Join", Row::Method, {"a", 1, true}, mzComUnknownMember,
        "DerivedSampleC has no method \"Join\"");
    row("part of a name", "joi", Row::Method, {"a", 1, true}, mzComUnknownMember,
        "DerivedSampleC has no method \"joi\"");
    row("no name", "", Row::Method, {}, mzComUnknownMember, "DerivedSampleC has no method \"\"");
    row("place holder", "%1", Row::Method, {}, mzComUnknownMember,
        "DerivedSampleC has no method \"%1\"");
    row("method is no property", "join", Row::PropertyRead, {}, mzComUnknownMember,
        "DerivedSampleC has no property \"join\" that can be read");
    row("property is no method", "title", Row::Method, {}, mzComUnknownMember,
        "DerivedSampleC has no method \"title\"");
    row("read only", "title", Row::PropertyWrite, {"x"}, mzComUnknownMember,
        "DerivedSampleC has no property \"title\" that can be written");
    row("sum of kinds", "number", Row::Method | Row::PropertyRead, {}, mzComUnknownMember,
        "DerivedSampleC has no method \"number\"");
    row("too many", "twice", Row::Method, {1}, mzComWrongArgumentCount,
        "DerivedSampleC.twice takes no arguments, not 1");
    row("too few", "join", Row::Method, {"a", 1}, mzComWrongArgumentCount,
        "DerivedSampleC.join takes 3 arguments, not 2");
    row("one", "half", Row::Method, {}, mzComWrongArgumentCount,
        "DerivedSampleC.half takes 1 argument, not 0");
    row("count before type", "join", Row::Method, {1}, mzComWrongArgumentCount,
        "DerivedSampleC.join takes 3 arguments, not 1");
    row("write without a value", "number", Row::PropertyWrite, {}, mzComWrongArgumentCount,
        "DerivedSampleC.number takes 1 argument, not 0");
    row("text for a number", "number", Row::PropertyWrite, {"5"}, mzComTypeCast,
        "DerivedSampleC.number: argument 1 is of the wrong type");
    row("text for an object", "peer", Row::Method, {"peer"}, mzComTypeCast,
        "DerivedSampleC.peer: argument 1 is of the wrong type");
    row("nothing for an object", "peer", Row::Method, {mzComVariantC()}, mzComTypeCast,
        "DerivedSampleC.peer: argument 1 is of the wrong type");
    row("second of three", "join", Row::Method, {"a", "b", true}, mzComTypeCast,
        "DerivedSampleC.join: argument 2 is of the wrong type");
    row("thrown by the member", "fail", Row::Method, {}, mzComTypeCast,
        "DerivedSampleC.fail: a value is of the wrong type");
}

void tst_proxyObjectC::errors()
{
    QFETCH(QString, member);
    QFETCH(int, kind);
    QFETCH(mzComVariantArrayC, arguments);
    const auto object = made<DerivedSampleC>();
    const Outcome outcome = call(*object, member, kind, arguments);
    QTEST(outcome.code, "code");
    QVERIFY(outcome.result.isEmpty());
    QVERIFY(outcome.exception);
    QTEST(outcome.exception->message, "message");
    QCOMPARE(outcome.exception->file, QString());
    QCOMPARE(outcome.exception->line, 0);
    QCOMPARE(object->refCount(), 1);
}

void tst_proxyObjectC::errorChangesNothing()
{
    const auto object = made<SampleC>();
    const auto peer = made<SampleC>();
    const auto other = made<OtherC>();
    call(*object, "peer", Row::PropertyWrite, {peer.get()});
    QCOMPARE(call(*object, "peer", Row::PropertyWrite, {other.get()}).code, int(mzComTypeCast));
    QVERIFY(object->peer() == peer);
    QCOMPARE(peer->refCount(), 2);
    QCOMPARE(other->refCount(), 1);
}

void tst_proxyObjectC::successForgetsAnEarlierError()
{
    const auto object = made<SampleC>();
    const Outcome outcome = call(*object, "number", Row::PropertyRead);
    QCOMPARE(outcome.code, 0);
    QVERIFY(!outcome.exception);
}

/// The reader's error is told as it is.
void tst_proxyObjectC::argumentThatCannotBeRead()
{
    const auto object = made<SampleC>();
    const auto other = made<OtherC>();
    const mzComVariantC argument =
        mzComVariantC::property(*new mzComPropertyC(mzIDispatchC(other->getIUnknown()), "number"));
    const Outcome outcome = call(*object, "number", Row::PropertyWrite, {argument});
    QCOMPARE(outcome.code, int(mzComFailed));
    QVERIFY(outcome.result.isEmpty());
    QCOMPARE(outcome.exception->message,
             QStringLiteral("proxyObjectC has no property \"number\" that can be read"));
}

void tst_proxyObjectC::argumentsAreReadLastToFirst()
{
    // All three are wrong; the first one that is read is told.
    const auto object = made<SampleC>();
    const Outcome outcome = call(*object, "join", Row::Method, {1, "b", "c"});
    QCOMPARE(outcome.exception->message,
             QStringLiteral("SampleC.join: argument 3 is of the wrong type"));
}

void tst_proxyObjectC::livesThroughTheCall()
{
    // The only reference to it is its own, which the call drops.
    auto *const object = new SampleC;
    object->setPeer(ProxyPtrT<SampleC>(object));
    QCOMPARE(object->refCount(), 1);
    const Outcome outcome = call(*object, "dropPeer", Row::Method);
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.result.getInt(), 1);
    QCOMPARE(SampleC::alive, 0);
}

void tst_proxyObjectC::ownThread()
{
    const auto object = made<SampleC>();
    QCOMPARE(object->getStickyThreadId(), reinterpret_cast<quintptr>(QThread::currentThreadId()));
    Outcome outcome;
    std::thread([&] { outcome = call(*object, "number", Row::PropertyWrite, {5}); }).join();
    QCOMPARE(outcome.code, int(mzComWrongThread));
    QCOMPARE(outcome.exception->message,
             QStringLiteral("SampleC.number: called on another thread"));
    QCOMPARE(object->number(), 0);
}

void tst_proxyObjectC::proxyCast()
{
    const auto object = made<DerivedSampleC>();
    for (const auto *type :
         {DerivedSampleC::getStaticProxyTypeInfo(), SampleC::getStaticProxyTypeInfo(),
          proxyObjectC::getStaticProxyTypeInfo()})
        QCOMPARE(object->proxyCast(type), object.get());
    QCOMPARE(object->proxyCast(nullptr), nullptr);
    const auto base = made<SampleC>();
    QCOMPARE(base->proxyCast(DerivedSampleC::getStaticProxyTypeInfo()), nullptr);
    QCOMPARE(base->refCount(), 1);
}

void tst_proxyObjectC::callGoesToTheObjectOfTheCast()
{
    /// Shows the members of another object as its own.
    class Front : public proxyObjectC
    {
    public:
        explicit Front(const ProxyPtrT<SampleC> &object)
            : m_object(object)
        {
        }
        proxyObjectC *proxyCast(const proxyMemberDescListS *) override { return m_object.get(); }
        const proxyMemberDescListS *getProxyTypeInfo() const override
        {
            return SampleC::getStaticProxyTypeInfo();
        }

    private:
        ProxyPtrT<SampleC> m_object;
    };
    const auto object = made<SampleC>();
    const ProxyPtrT<Front> front(new Front(object));
    QCOMPARE(call(*front, "number", Row::PropertyWrite, {3}).code, 0);
    QCOMPARE(object->number(), 3);
    const ProxyPtrT<Front> nothing(new Front(nullptr));
    QCOMPARE(call(*nothing, "number", Row::PropertyRead).code, int(mzComUnknownMember));
}

void tst_proxyObjectC::remoteConnections()
{
    auto object = made<SampleC>();
    SampleC *const kept = object.get();
    QCOMPARE(kept->releaseRemoteConnection(), 0);
    QCOMPARE(kept->refCount(), 1);
    QCOMPARE(kept->addRemoteConnection(), 1);
    QCOMPARE(kept->addRemoteConnection(), 2);
    QCOMPARE(kept->refCount(), 3);
    object = nullptr;
    QCOMPARE(SampleC::alive, 1);
    QCOMPARE(kept->releaseRemoteConnection(), 1);
    QCOMPARE(kept->releaseRemoteConnection(), 0);
    QCOMPARE(SampleC::alive, 0);
}

void tst_proxyObjectC::createdById()
{
    proxyFactoryC::instance().registerClass(SampleC::getStaticProxyTypeInfo());
    mzComPtrC object;
    QCOMPARE(mzComCreateObject("tests.sample", mzIDispatch::iid(), object), 0);
    QVERIFY(object.isValid());
    QCOMPARE(SampleC::alive, 1);
    mzComPtrC second;
    QCOMPARE(mzComCreateObject("tests.sample", mzIDispatch::iid(), second), 0);
    QVERIFY(!(second == object));
    mzComVariantC result;
    Exception exception;
    QCOMPARE(
        object.as<mzIDispatch>()->invokeByName("title", Row::PropertyRead, {}, result, exception),
        0);
    QCOMPARE(textOf(result), QStringLiteral("Schraube"));
    object = {};
    QCOMPARE(SampleC::alive, 1);
    proxyFactoryC::instance().unregisterClass(SampleC::getStaticProxyTypeInfo());
}

void tst_proxyObjectC::notCreated_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<QByteArray>("interface");
    QTest::addColumn<int>("code");
    const QByteArray dispatch = "mzIDispatch";
    QTest::newRow("unknown id") << QByteArray("tests.other") << dispatch
                                << int(mzComUnknownComponent);
    QTest::newRow("class name") << QByteArray("SampleC") << dispatch << int(mzComUnknownComponent);
    QTest::newRow("no creator") << QByteArray("tests.fixed") << dispatch << int(mzComNotCreatable);
    QTest::newRow("failed") << QByteArray("tests.failing") << dispatch << int(mzComNotCreatable);
    QTest::newRow("interface") << QByteArray("tests.sample") << QByteArray("mzIOther")
                               << int(mzComNoInterface);
}

void tst_proxyObjectC::notCreated()
{
    const proxyMemberDescListS fixed{.className = "Fixed", .componentId = "tests.fixed"};
    const proxyMemberDescListS failing{
        .className = "Failing", .componentId = "tests.failing", .creator = []() -> proxyObjectC * {
            return nullptr;
        }};
    const proxyMemberDescListS *const types[] = {SampleC::getStaticProxyTypeInfo(), &fixed,
                                                 &failing};
    for (const auto *type : types)
        proxyFactoryC::instance().registerClass(type);
    QFETCH(QByteArray, id);
    QFETCH(QByteArray, interface);
    const auto former = made<OtherC>();
    mzComPtrC object(former->getIUnknown());
    QTEST(mzComCreateObject(id.constData(), mzIIDS(interface.constData()), object), "code");
    QVERIFY(!object.isValid());
    QCOMPARE(former->refCount(), 1);
    QCOMPARE(SampleC::alive, 0);
    for (const auto *type : types)
        proxyFactoryC::instance().unregisterClass(type);
}

QTEST_GUILESS_MAIN(tst_proxyObjectC)
#include "tst_proxyObjectC.moc"
