#include "SampleProxies.h"

#include <core/component/mzComExceptionC.h>
#include <core/component/mzComObjectT.h>
#include <core/component/mzComPropertyC.h>
#include <core/component/mzComVariableC.h>
#include <core/component/proxyAutoParaListC.h>

#include <QTest>

Q_DECLARE_METATYPE(mzComVariantC)

namespace shop {

/// A class whose name has a namespace.
class PartC : public proxyObjectC
{
};

} // namespace shop

namespace {

/// An interface of no proxy that answers as told and writes down what it was asked.
class Native : public mzComObjectT<mzIComNativePointer>
{
public:
    Native(void *pointer, proxyObjectC *object)
        : m_pointer(pointer)
        , m_object(object)
    {
    }
    void *getNativePointer(const char *className, const char *moduleHint) override
    {
        asked << QString(className) << QString(moduleHint);
        return m_pointer;
    }
    proxyObjectC *getObject() override
    {
        asked << QStringLiteral("object");
        return m_object;
    }

    QStringList asked;

private:
    void *m_pointer;
    proxyObjectC *m_object;
};

template<class T>
ProxyPtrT<T> made()
{
    return ProxyPtrT<T>(new T);
}

/// The code of the error that the reading throws; 0 if none.
template<class T>
int errorOf(const mzComVariantC &argument, bool required = true)
{
    try {
        static_cast<void>(proxyAutoTypeCastC(argument).get<T>(required));
        return 0;
    } catch (const mzComExceptionC &error) {
        return error.code();
    }
}

template<class T>
T valueOf(const mzComVariantC &argument)
{
    return proxyAutoTypeCastC(argument).get<T>(true);
}

} // namespace

/// How arguments of scripts turn into those of C++, and results into those of scripts.
class tst_proxyAutoTypeCastC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void plainTypes();
    void wrongPlainTypes_data();
    void wrongPlainTypes();
    void required();
    void wrappersAreStripped();
    void proxy();
    void proxyOfADerivedClass();
    void proxyOfABaseClass();
    void proxyWithNamespace();
    void proxyInWrappers();
    void noUnknown();
    void noNativePointer();
    void asksForClassAndHint();
    void nativePointerGoesFirst();
    void nativePointerLacking();
    void nothingBehindTheInterface();
    void nativePointerOfAnotherBuild();
    void callback();
    void callbackIsNoObject();
    void callbackIsNoDispatch();
    void callbackOfAProperty();
    void results();
    void resultsOfProxies();
    void writesIntoVariables();
    void list();
    void exception();
};

void tst_proxyAutoTypeCastC::cleanup()
{
    QCOMPARE(PMemManager::liveObjects(), 0);
}

void tst_proxyAutoTypeCastC::plainTypes()
{
    QCOMPARE(valueOf<int>(5), 5);
    QCOMPARE(valueOf<int>(5.0), 5);
    QCOMPARE(valueOf<bool>(true), true);
    QCOMPARE(valueOf<double>(1.5), 1.5);
    QCOMPARE(valueOf<double>(2), 2.0);
    QCOMPARE(valueOf<QString>("ß"), QStringLiteral("ß"));
    QCOMPARE(valueOf<PString>("ß"), QStringLiteral("ß"));
    QVERIFY(valueOf<mzComStringC>("ß") == mzComStringC("ß"));
    QCOMPARE(valueOf<mzComVariantC>(5).getInt(), 5);
}

void tst_proxyAutoTypeCastC::wrongPlainTypes_data()
{
    QTest::addColumn<mzComVariantC>("value");
    QTest::addColumn<QByteArray>("readable");
    QTest::newRow("nothing") << mzComVariantC() << QByteArray("");
    QTest::newRow("int") << mzComVariantC(1) << QByteArray("id");
    QTest::newRow("broken number") << mzComVariantC(1.5) << QByteArray("d");
    QTest::newRow("bool") << mzComVariantC(true) << QByteArray("b");
    QTest::newRow("text") << mzComVariantC("1") << QByteArray("t");
}

void tst_proxyAutoTypeCastC::wrongPlainTypes()
{
    QFETCH(mzComVariantC, value);
    QFETCH(QByteArray, readable);
    const auto expected = [&](char type) {
        return readable.contains(type) ? 0 : mzComTypeCast;
    };
    QCOMPARE(errorOf<int>(value), int(expected('i')));
    QCOMPARE(errorOf<double>(value), int(expected('d')));
    QCOMPARE(errorOf<bool>(value), int(expected('b')));
    QCOMPARE(errorOf<QString>(value), int(expected('t')));
    QCOMPARE(errorOf<PString>(value), int(expected('t')));
    QCOMPARE(errorOf<mzComStringC>(value), int(expected('t')));
    QCOMPARE(errorOf<mzComVariantC>(value), 0);
    QCOMPARE(errorOf<mzIDispatchC>(value), int(mzComTypeCast));
    QCOMPARE(errorOf<ProxyPtrT<SampleC>>(value), int(mzComTypeCast));
}

void tst_proxyAutoTypeCastC::required()
{
    const proxyAutoTypeCastC nothing{mzComVariantC()};
    QCOMPARE(nothing.get<int>(false), 0);
    QCOMPARE(nothing.get<bool>(false), false);
    QCOMPARE(nothing.get<QString>(false), QString());
    QVERIFY(nothing.get<mzComStringC>(false).isEmpty());
    QVERIFY(nothing.get<ProxyPtrT<SampleC>>(false).isNull());
    QVERIFY(!nothing.get<mzIDispatchC>(false).isValid());
    QCOMPARE(errorOf<int>({}), int(mzComTypeCast));
    QCOMPARE(errorOf<int>("x", false), int(mzComTypeCast));
    QCOMPARE(errorOf<ProxyPtrT<SampleC>>("x", false), int(mzComTypeCast));
}

void tst_proxyAutoTypeCastC::wrappersAreStripped()
{
    QCOMPARE(valueOf<int>(mzComVariantC::variable(*new mzComVariableC(5))), 5);
    const auto object = made<SampleC>();
    const mzComVariantC title =
        mzComVariantC::property(*new mzComPropertyC(mzIDispatchC(object->getIUnknown()), "title"));
    QCOMPARE(valueOf<QString>(title), QStringLiteral("Schraube"));
    const mzComVariantC lost =
        mzComVariantC::property(*new mzComPropertyC(mzIDispatchC(object->getIUnknown()), "lost"));
    QCOMPARE(errorOf<QString>(lost), int(mzComFailed));
}

void tst_proxyAutoTypeCastC::proxy()
{
    const auto object = made<SampleC>();
    {
        const mzComVariantC argument(object.get());
        QCOMPARE(object->refCount(), 2);
        {
            const auto converted = valueOf<ProxyPtrT<SampleC>>(argument);
            QVERIFY(converted == object);
            QCOMPARE(object->refCount(), 3);
            QCOMPARE(PMemManager::liveObjects(), 1);
        }
        QCOMPARE(object->refCount(), 2);
    }
    QCOMPARE(object->refCount(), 1);
}

void tst_proxyAutoTypeCastC::proxyOfADerivedClass()
{
    // Its own name is another one, so it is found by the cast.
    const auto object = made<DerivedSampleC>();
    const auto converted = valueOf<ProxyPtrT<SampleC>>(object.get());
    QCOMPARE(converted.get(), object.get());
    QCOMPARE(object->refCount(), 2);
    QVERIFY(valueOf<ProxyPtrT<DerivedSampleC>>(object.get()) == object);
    QCOMPARE(valueOf<ProxyPtrT<proxyObjectC>>(object.get()).get(), object.get());
}

void tst_proxyAutoTypeCastC::proxyOfABaseClass()
{
    const auto object = made<SampleC>();
    QCOMPARE(errorOf<ProxyPtrT<DerivedSampleC>>(object.get()), int(mzComTypeCast));
    QCOMPARE(errorOf<ProxyPtrT<OtherC>>(object.get()), int(mzComTypeCast));
    QCOMPARE(object->refCount(), 1);
}

void tst_proxyAutoTypeCastC::proxyWithNamespace()
{
    QCOMPARE(mzComTypeInfoToName(typeid(shop::PartC)), QByteArray("shop::PartC"));
    QCOMPARE(mzComTypeInfoToName(typeid(SampleC)), QByteArray("SampleC"));
    QCOMPARE(mzComTypeInfoToName(typeid(int)), QByteArray("int"));
    const auto object = made<shop::PartC>();
    QVERIFY(valueOf<ProxyPtrT<shop::PartC>>(object.get()) == object);
    mzComPtrC native;
    QCOMPARE(object->queryInterface(mzIComNativePointer::iid(), native), 0);
    auto *const interface = native.as<mzIComNativePointer>();
    QCOMPARE(interface->getNativePointer("PartC", mzComGetModuleHint()), nullptr);
    QCOMPARE(interface->getNativePointer("shop::PartC", mzComGetModuleHint()), object.get());
}

void tst_proxyAutoTypeCastC::proxyInWrappers()
{
    const auto object = made<SampleC>();
    const auto peer = made<SampleC>();
    object->setPeer(peer);
    const mzComVariantC property =
        mzComVariantC::property(*new mzComPropertyC(mzIDispatchC(object->getIUnknown()), "peer"));
    const mzComVariantC variable = mzComVariantC::variable(*new mzComVariableC(property));
    QVERIFY(valueOf<ProxyPtrT<SampleC>>(variable) == peer);
    QCOMPARE(peer->refCount(), 2);
}

void tst_proxyAutoTypeCastC::noUnknown()
{
    QCOMPARE(errorOf<ProxyPtrT<SampleC>>({}), int(mzComTypeCast));
    QCOMPARE(errorOf<ProxyPtrT<SampleC>>("table"), int(mzComTypeCast));
}

void tst_proxyAutoTypeCastC::noNativePointer()
{
    auto *const variable = new mzComVariableC;
    const mzComVariantC argument(static_cast<mzIUnknown *>(variable)); // as an object
    QCOMPARE(argument.type(), mzComVariantC::Object);
    QCOMPARE(errorOf<ProxyPtrT<SampleC>>(argument), int(mzComTypeCast));
    QCOMPARE(variable->refCount(), 1);
}

void tst_proxyAutoTypeCastC::asksForClassAndHint()
{
    const auto object = made<SampleC>();
    auto *const native = new Native(nullptr, object.get());
    const mzComVariantC argument(static_cast<mzIUnknown *>(native));
    QVERIFY(valueOf<ProxyPtrT<SampleC>>(argument) == object);
    const QStringList expected{QStringLiteral("SampleC"), QString(mzComGetModuleHint()),
                               QStringLiteral("object")};
    QCOMPARE(native->asked, expected);
    QCOMPARE(native->refCount(), 1);
}

void tst_proxyAutoTypeCastC::nativePointerGoesFirst()
{
    const auto first = made<SampleC>();
    const auto second = made<SampleC>();
    auto *const native = new Native(first.get(), second.get());
    const mzComVariantC argument(static_cast<mzIUnknown *>(native));
    QVERIFY(valueOf<ProxyPtrT<SampleC>>(argument) == first);
    QCOMPARE(native->asked.size(), 2); // the object behind it was not needed
    QCOMPARE(first->refCount(), 1);
}

void tst_proxyAutoTypeCastC::nativePointerLacking()
{
    const auto object = made<DerivedSampleC>();
    const mzComVariantC argument(static_cast<mzIUnknown *>(new Native(nullptr, object.get())));
    QCOMPARE(valueOf<ProxyPtrT<SampleC>>(argument).get(), object.get());
    QCOMPARE(errorOf<ProxyPtrT<OtherC>>(argument), int(mzComTypeCast));
    QCOMPARE(object->refCount(), 1);
}

void tst_proxyAutoTypeCastC::nothingBehindTheInterface()
{
    const mzComVariantC argument(static_cast<mzIUnknown *>(new Native(nullptr, nullptr)));
    QCOMPARE(errorOf<ProxyPtrT<SampleC>>(argument), int(mzComTypeCast));
}

void tst_proxyAutoTypeCastC::nativePointerOfAnotherBuild()
{
    const auto object = made<SampleC>();
    mzComPtrC found;
    QCOMPARE(object->queryInterface(mzIComNativePointer::iid(), found), 0);
    auto *const native = found.as<mzIComNativePointer>();
    QCOMPARE(native->getNativePointer("SampleC", mzComGetModuleHint()), object.get());
    QCOMPARE(native->getNativePointer("SampleC", "mz/0"), nullptr);
    QCOMPARE(native->getNativePointer("DerivedSampleC", mzComGetModuleHint()), nullptr);
    QCOMPARE(native->getNativePointer("proxyObjectC", mzComGetModuleHint()), nullptr);
    QCOMPARE(native->getObject(), object.get());
    QCOMPARE(object->refCount(), 2);
}

void tst_proxyAutoTypeCastC::callback()
{
    const auto object = made<SampleC>();
    for (const mzComVariantC &argument :
         {mzComVariantC(object.get()),
          mzComVariantC::variable(*new mzComVariableC(mzComVariantC(object.get())))}) {
        const auto converted = valueOf<mzIDispatchC>(argument);
        QVERIFY(converted.isValid());
        QCOMPARE(converted.iface(), object.get());
    }
    QCOMPARE(object->refCount(), 1);
}

void tst_proxyAutoTypeCastC::callbackIsNoObject()
{
    QCOMPARE(errorOf<mzIDispatchC>("function"), int(mzComTypeCast));
    QCOMPARE(errorOf<mzIDispatchC>({}), int(mzComTypeCast));
}

void tst_proxyAutoTypeCastC::callbackIsNoDispatch()
{
    const mzComVariantC argument(static_cast<mzIUnknown *>(new mzComVariableC));
    QCOMPARE(errorOf<mzIDispatchC>(argument), int(mzComTypeCast));
}

/// Only variables are stripped for a callback.
void tst_proxyAutoTypeCastC::callbackOfAProperty()
{
    const auto object = made<SampleC>();
    object->setPeer(made<SampleC>());
    const mzComVariantC property =
        mzComVariantC::property(*new mzComPropertyC(mzIDispatchC(object->getIUnknown()), "peer"));
    QCOMPARE(errorOf<ProxyPtrT<SampleC>>(property), 0);
    QCOMPARE(errorOf<mzIDispatchC>(property), int(mzComTypeCast));
}

void tst_proxyAutoTypeCastC::results()
{
    mzComVariantC value;
    proxyAutoTypeCastC result(&value);
    result.set(5);
    QCOMPARE(value.type(), mzComVariantC::Int);
    QCOMPARE(value.getInt(), 5);
    result.set(true);
    QCOMPARE(value.type(), mzComVariantC::Bool);
    result.set(1.5);
    QCOMPARE(value.type(), mzComVariantC::Double);
    result.set(QStringLiteral("x"));
    QCOMPARE(value.type(), mzComVariantC::Text);
    result.set(PString("y"));
    QCOMPARE(valueOf<QString>(value), QStringLiteral("y"));
    result.set(mzComStringC("z"));
    QCOMPARE(valueOf<QString>(value), QStringLiteral("z"));
    result.set<int>(6);
    QCOMPARE(value.getInt(), 6);
}

void tst_proxyAutoTypeCastC::resultsOfProxies()
{
    mzComVariantC value;
    proxyAutoTypeCastC result(&value);
    const auto object = made<SampleC>();
    result.set(object);
    QCOMPARE(value.getIUnknown(), object->getIUnknown());
    QCOMPARE(object->refCount(), 2);
    result.set(ProxyPtrT<SampleC>());
    QVERIFY(value.isEmpty());
    QCOMPARE(object->refCount(), 1);
}

void tst_proxyAutoTypeCastC::writesIntoVariables()
{
    auto *const variable = new mzComVariableC(1);
    proxyAutoTypeCastC argument(mzComVariantC::variable(*variable));
    argument.set(2);
    QCOMPARE(variable->read().getInt(), 2);
    QCOMPARE(argument.get<int>(), 2);
    proxyAutoTypeCastC plain{mzComVariantC(1)};
    plain.set(2);
    QCOMPARE(plain.get<int>(), 1);
}

void tst_proxyAutoTypeCastC::list()
{
    proxyAutoParaListC arguments({1, "b"});
    QCOMPARE(arguments.size(), 2);
    QCOMPARE(arguments.lastIndex(), -1);
    QCOMPARE(arguments[1].get<QString>(true), QStringLiteral("b"));
    QCOMPARE(arguments.lastIndex(), 1);
    QCOMPARE(arguments[0].get<int>(true), 1);
    QCOMPARE(arguments.lastIndex(), 0);
    QCOMPARE(arguments[2].get<int>(false), 0);
}

void tst_proxyAutoTypeCastC::exception()
{
    try {
        proxyObjectC::throwAutoTypeCastException();
    } catch (const std::exception &error) {
        QCOMPARE(error.what(), "wrong type");
        const auto &own = dynamic_cast<const mzComExceptionC &>(error);
        QCOMPARE(own.code(), mzComTypeCast);
        QCOMPARE(own.script().text(), QStringLiteral("wrong type"));
        return;
    }
}

QTEST_GUILESS_MAIN(tst_proxyAutoTypeCastC)
#include "tst_proxyAutoTypeCastC.moc"
