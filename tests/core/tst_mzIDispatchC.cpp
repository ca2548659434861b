#include "SampleProxies.h"

#include <core/component/mzComObjectT.h>
#include <core/component/mzComPropertyC.h>
#include <core/component/mzComVariableC.h>
#include <core/component/mzIDispatchC.h>

#include <QTest>

#include <functional>

using Exception = std::optional<PScriptException>;

namespace {

/// An object of a script that answers as told.
class Script : public mzComObjectT<mzIDispatch>
{
public:
    using Answer = std::function<int(mzComVariantC &, Exception &)>;
    explicit Script(Answer answer)
        : m_answer(std::move(answer))
    {
    }
    int invokeByName(const mzComStringC &name, int kind, const mzComVariantArrayC &arguments,
                     mzComVariantC &result, Exception &exception) override
    {
        called << QStringLiteral("%1 %2 %3").arg(name.text()).arg(kind).arg(arguments.size());
        return m_answer(result, exception);
    }
    quintptr getStickyThreadId() const override { return 0; }

    QStringList called;

private:
    Answer m_answer;
};

} // namespace

/// Calls of objects by name, those of scripts included.
class tst_mzIDispatchC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void empty();
    void ofAnObject();
    void ofAnObjectThatCannotBeCalled();
    void callsAMethod();
    void leavesTheResult();
    void failsWithAnException();
    void failsWithoutAnException();
    void succeedsInSpiteOfAnException();
    void forgetsTheFormerCall();
    void wrappedResult();
    void wrappedResultThatCannotBeRead();
    void errorOfTheModel();
    void livesThroughTheCall();

private:
    mzComVariantC m_result;
    Exception m_exception;
};

void tst_mzIDispatchC::cleanup()
{
    m_result = {};
    m_exception.reset();
    QCOMPARE(PMemManager::liveObjects(), 0);
}

void tst_mzIDispatchC::empty()
{
    const mzIDispatchC nothing;
    QVERIFY(!nothing.isValid());
    QCOMPARE(nothing.iface(), nullptr);
    m_result = 5;
    m_exception = PScriptException{QStringLiteral("earlier"), {}, 0};
    QCOMPARE(nothing.invokeAndCheck("update", {}, m_result, m_exception), int(mzComNoInterface));
    QVERIFY(m_result.isEmpty());
    QVERIFY(!m_exception);
}

void tst_mzIDispatchC::ofAnObject()
{
    const ProxyPtrT<SampleC> object(new SampleC);
    {
        const mzIDispatchC dispatch(object->getIUnknown());
        QVERIFY(dispatch.isValid());
        QCOMPARE(object->refCount(), 2);
        const mzIDispatchC copy = dispatch;
        QCOMPARE(object->refCount(), 3);
        QVERIFY(copy == dispatch);
        QCOMPARE(copy->getStickyThreadId(), object->getStickyThreadId());
    }
    QCOMPARE(object->refCount(), 1);
}

void tst_mzIDispatchC::ofAnObjectThatCannotBeCalled()
{
    const mzComPtrC variable(new mzComVariableC);
    QVERIFY(!mzIDispatchC(variable.iface()).isValid());
    QVERIFY(!mzIDispatchC(nullptr).isValid());
}

void tst_mzIDispatchC::callsAMethod()
{
    auto *const script = new Script([](mzComVariantC &, Exception &) { return 0; });
    const mzIDispatchC dispatch(script);
    QCOMPARE(dispatch.invokeAndCheck("update", {1, "b"}, m_result, m_exception), 0);
    QCOMPARE(script->called, QStringList{QStringLiteral("update 1 2")});
    QVERIFY(m_result.isEmpty());
    QVERIFY(!m_exception);
}

void tst_mzIDispatchC::leavesTheResult()
{
    const mzIDispatchC dispatch(new Script([](mzComVariantC &result, Exception &) {
        result = 1;
        return 0;
    }));
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), 0);
    QCOMPARE(m_result.getInt(), 1);
}

void tst_mzIDispatchC::failsWithAnException()
{
    const mzIDispatchC dispatch(new Script([](mzComVariantC &result, Exception &exception) {
        result = 1;
        exception = PScriptException{QStringLiteral("boom"), QStringLiteral("plm.js"), 3};
        return 17;
    }));
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), 17);
    QVERIFY(m_result.isEmpty());
    QVERIFY(m_exception);
    QCOMPARE(m_exception->text(), QStringLiteral("plm.js:3: boom"));
}

void tst_mzIDispatchC::failsWithoutAnException()
{
    const mzIDispatchC dispatch(new Script([](mzComVariantC &result, Exception &) {
        result = 1;
        return -1;
    }));
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), -1);
    QVERIFY(m_result.isEmpty());
    QVERIFY(!m_exception);
}

/// One that the script dealt with.
void tst_mzIDispatchC::succeedsInSpiteOfAnException()
{
    const mzIDispatchC dispatch(new Script([](mzComVariantC &result, Exception &exception) {
        result = 1;
        exception = PScriptException{QStringLiteral("boom"), {}, 0};
        return 0;
    }));
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), 0);
    QCOMPARE(m_result.getInt(), 1);
    QVERIFY(!m_exception);
}

void tst_mzIDispatchC::forgetsTheFormerCall()
{
    const mzIDispatchC dispatch(new Script([](mzComVariantC &, Exception &) { return 0; }));
    m_result = 5;
    m_exception = PScriptException{QStringLiteral("earlier"), {}, 0};
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), 0);
    QVERIFY(m_result.isEmpty());
    QVERIFY(!m_exception);
}

void tst_mzIDispatchC::wrappedResult()
{
    const mzIDispatchC dispatch(new Script([](mzComVariantC &result, Exception &) {
        result = mzComVariantC::variable(*new mzComVariableC(1));
        return 0;
    }));
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), 0);
    QCOMPARE(m_result.getInt(), 1);
}

void tst_mzIDispatchC::wrappedResultThatCannotBeRead()
{
    const mzIDispatchC dispatch(new Script([](mzComVariantC &result, Exception &) {
        result = mzComVariantC::property(*new mzComPropertyC({}, "gone"));
        return 0;
    }));
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), int(mzComFailed));
    QVERIFY(m_result.isEmpty());
    QCOMPARE(m_exception->message, QStringLiteral("Property \"gone\" cannot be read"));
}

void tst_mzIDispatchC::errorOfTheModel()
{
    const ProxyPtrT<SampleC> object(new SampleC);
    const mzIDispatchC dispatch(object->getIUnknown());
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), int(mzComUnknownMember));
    QCOMPARE(m_exception->message, QStringLiteral("SampleC has no method \"update\""));
    // Properties are not called.
    QCOMPARE(dispatch.invokeAndCheck("title", {}, m_result, m_exception), int(mzComUnknownMember));
    QCOMPARE(dispatch.invokeAndCheck("half", {3}, m_result, m_exception), 0);
    QVERIFY(!m_exception);
}

void tst_mzIDispatchC::livesThroughTheCall()
{
    mzIDispatchC dispatch;
    auto *const script = new Script([&dispatch](mzComVariantC &result, Exception &) {
        dispatch = {};
        result = "done";
        return 0;
    });
    dispatch = mzIDispatchC(script);
    QCOMPARE(dispatch.invokeAndCheck("update", {}, m_result, m_exception), 0);
    QCOMPARE(m_result.type(), mzComVariantC::Text);
    QVERIFY(!dispatch.isValid());
}

QTEST_GUILESS_MAIN(tst_mzIDispatchC)
#include "tst_mzIDispatchC.moc"
