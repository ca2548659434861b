#include "SampleProxies.h"

#include <core/component/mzComExceptionC.h>
#include <core/component/mzComPropertyC.h>
#include <core/component/mzComVariableC.h>
#include <core/component/mzComVariantArrayC.h>
#include <core/component/mzComVariantC.h>

#include <QTest>

#include <limits>

Q_DECLARE_METATYPE(mzComVariantC)

/// Values of scripts: variants, their lists, texts, interface ids and counted interface pointers.
class tst_mzComVariantC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void types_data();
    void types();
    void values_data();
    void values();
    void resultStaysOnFailure();
    void objects();
    void nullObjects();
    void equal_data();
    void equal();
    void variable();
    void property();
    void propertyThatCannotBeRead();
    void wrappersInACircle();
    void arrays();
    void arraysAsTextList();
    void texts();
    void interfaceIds();
    void pointers();
};

namespace {

ProxyPtrT<SampleC> sample()
{
    return ProxyPtrT<SampleC>(new SampleC);
}

} // namespace

void tst_mzComVariantC::cleanup()
{
    QCOMPARE(PMemManager::liveObjects(), 0);
}

void tst_mzComVariantC::types_data()
{
    QTest::addColumn<mzComVariantC>("value");
    QTest::addColumn<int>("type");
    QTest::newRow("nothing") << mzComVariantC() << int(mzComVariantC::Empty);
    QTest::newRow("bool") << mzComVariantC(false) << int(mzComVariantC::Bool);
    QTest::newRow("int") << mzComVariantC(0) << int(mzComVariantC::Int);
    QTest::newRow("double") << mzComVariantC(0.0) << int(mzComVariantC::Double);
    QTest::newRow("QString") << mzComVariantC(QString()) << int(mzComVariantC::Text);
    QTest::newRow("PString") << mzComVariantC(PString("x")) << int(mzComVariantC::Text);
    QTest::newRow("mzComStringC") << mzComVariantC(mzComStringC()) << int(mzComVariantC::Text);
    QTest::newRow("literal") << mzComVariantC("x") << int(mzComVariantC::Text);
}

void tst_mzComVariantC::types()
{
    QFETCH(mzComVariantC, value);
    QTEST(int(value.type()), "type");
    QCOMPARE(value.isEmpty(), value.type() == mzComVariantC::Empty);
    QCOMPARE(value.getIUnknown(), nullptr);
    QCOMPARE(value.reference(), nullptr);
    QCOMPARE(value.skipVariable().type(), value.type());
    QCOMPARE(value.skipVariableAndProps().type(), value.type());
}

void tst_mzComVariantC::values_data()
{
    QTest::addColumn<mzComVariantC>("value");
    QTest::addColumn<int>("getInt");
    QTest::addColumn<bool>("isInt");
    QTest::addColumn<bool>("isDouble");
    QTest::addColumn<bool>("isBool");
    QTest::addColumn<bool>("isText");
    const auto row = [](const char *title, const mzComVariantC &value, int number,
                        const QByteArray &readable) {
        QTest::newRow(title) << value << number << readable.contains('i') << readable.contains('d')
                             << readable.contains('b') << readable.contains('t');
    };
    row("nothing", {}, 0, "");
    row("one", 1, 1, "id");
    row("negative", -7, -7, "id");
    row("whole double", 1.0, 1, "id");
    row("broken double", 1.5, 0, "d");
    row("largest", double(std::numeric_limits<int>::max()), std::numeric_limits<int>::max(), "id");
    row("too large", 2147483648.0, 0, "d");
    row("smallest", -2147483648.0, std::numeric_limits<int>::min(), "id");
    row("too small", -2147483649.0, 0, "d");
    row("infinite", std::numeric_limits<double>::infinity(), 0, "d");
    row("no number", std::numeric_limits<double>::quiet_NaN(), 0, "d");
    // A script that answers true does not answer 1.
    row("true", true, 0, "b");
    row("false", false, 0, "b");
    row("text", "a", 0, "t");
    row("number as text", "1", 0, "t");
    row("empty text", "", 0, "t");
}

void tst_mzComVariantC::values()
{
    QFETCH(mzComVariantC, value);
    int whole = 0;
    double number = 0;
    bool truth = false;
    mzComStringC text;
    QTEST(value.getInt(), "getInt");
    QTEST(value.getExt(whole) == 0, "isInt");
    QCOMPARE(whole, value.getInt());
    QTEST(value.getExt(number) == 0, "isDouble");
    QTEST(value.getExt(truth) == 0, "isBool");
    QTEST(value.getExt(text) == 0, "isText");
}

void tst_mzComVariantC::resultStaysOnFailure()
{
    int whole = 5;
    double number = 5.5;
    bool truth = true;
    mzComStringC text("x");
    const mzComVariantC nothing;
    QCOMPARE(nothing.getExt(whole), int(mzComTypeCast));
    QCOMPARE(nothing.getExt(number), int(mzComTypeCast));
    QCOMPARE(nothing.getExt(truth), int(mzComTypeCast));
    QCOMPARE(nothing.getExt(text), int(mzComTypeCast));
    QCOMPARE(whole, 5);
    QCOMPARE(number, 5.5);
    QCOMPARE(truth, true);
    QVERIFY(text == mzComStringC("x"));
    QCOMPARE(mzComVariantC("Größe").getExt(text), 0);
    QCOMPARE(text.text(), QStringLiteral("Größe"));
}

void tst_mzComVariantC::objects()
{
    const auto object = sample();
    mzComVariantC value(object.get());
    QCOMPARE(value.type(), mzComVariantC::Object);
    QCOMPARE(value.getIUnknown(), object->getIUnknown());
    QCOMPARE(object->refCount(), 2);
    QVERIFY(value == mzComVariantC(object->getIUnknown()));
    QVERIFY(!(value == mzComVariantC(sample().get())));
    {
        const mzComVariantC copy = value;
        QCOMPARE(object->refCount(), 3);
        QCOMPARE(copy.skipVariableAndProps().getIUnknown(), object->getIUnknown());
    }
    QCOMPARE(object->refCount(), 2);
    value = 3;
    QCOMPARE(object->refCount(), 1);
    value.set(object->getIUnknown());
    QCOMPARE(value.getIUnknown(), object->getIUnknown());
    QCOMPARE(object->refCount(), 2);
    int whole = 0;
    mzComStringC text;
    QVERIFY(value.getExt(whole) != 0);
    QVERIFY(value.getExt(text) != 0);
    QCOMPARE(value.getInt(), 0);
}

void tst_mzComVariantC::nullObjects()
{
    QVERIFY(mzComVariantC(static_cast<const proxyObjectC *>(nullptr)).isEmpty());
    QVERIFY(mzComVariantC(static_cast<const SampleC *>(nullptr)).isEmpty());
    QVERIFY(mzComVariantC(static_cast<const mzIUnknown *>(nullptr)).isEmpty());
    mzComVariantC value("x");
    value.set(nullptr);
    QVERIFY(value.isEmpty());
}

void tst_mzComVariantC::equal_data()
{
    QTest::addColumn<mzComVariantC>("a");
    QTest::addColumn<mzComVariantC>("b");
    QTest::addColumn<bool>("expected");
    const auto row = [](const char *title, const mzComVariantC &a, const mzComVariantC &b,
                        bool expected) {
        QTest::newRow(title) << a << b << expected;
    };
    row("nothing", {}, {}, true);
    row("nothing and empty text", {}, "", false);
    row("nothing and 0", {}, 0, false);
    row("numbers", 2, 2.0, true);
    row("other numbers", 2, 2.5, false);
    row("number and bool", 1, true, false);
    row("number and text", 1, "1", false);
    row("texts", "a", QStringLiteral("a"), true);
    row("other case", "a", "A", false);
    row("bools", true, true, true);
    row("other bools", true, false, false);
    row("nothing and an object", {}, static_cast<const mzIUnknown *>(nullptr), true);
}

void tst_mzComVariantC::equal()
{
    QFETCH(mzComVariantC, a);
    QFETCH(mzComVariantC, b);
    QTEST(a == b, "expected");
    QTEST(b == a, "expected");
}

void tst_mzComVariantC::variable()
{
    auto *const inner = new mzComVariableC(4);
    auto *const outer = new mzComVariableC(mzComVariantC::variable(*inner));
    const mzComVariantC value = mzComVariantC::variable(*outer);
    QCOMPARE(value.type(), mzComVariantC::Variable);
    QVERIFY(!value.isEmpty());
    QCOMPARE(value.getInt(), 0);
    QCOMPARE(value.reference(), outer);
    QCOMPARE(value.getIUnknown(), outer);
    QCOMPARE(value.skipVariable().getInt(), 4);
    QCOMPARE(value.skipVariableAndProps().getInt(), 4);
    QCOMPARE(inner->write("x"), 0);
    QCOMPARE(value.skipVariable().type(), mzComVariantC::Text);
    QCOMPARE(inner->refCount(), 1);
    QCOMPARE(outer->refCount(), 1);
}

void tst_mzComVariantC::property()
{
    const auto object = sample();
    object->setNumber(8);
    auto *const property =
        new mzComPropertyC(mzIDispatchC(object->getIUnknown()), QStringLiteral("number"));
    const mzComVariantC value = mzComVariantC::property(*property);
    QCOMPARE(value.type(), mzComVariantC::Property);
    QCOMPARE(value.getIUnknown(), property);
    QVERIFY(value == mzComVariantC::property(*property));
    QVERIFY(!(value == mzComVariantC::variable(*property)));
    QVERIFY(!(value == mzComVariantC(property)));
    QVERIFY(!(value == mzComVariantC(8)));
    QCOMPARE(value.skipVariable().type(), mzComVariantC::Property);
    QCOMPARE(value.skipVariableAndProps().getInt(), 8);
    const mzComVariantC variable = mzComVariantC::variable(*new mzComVariableC(value));
    QCOMPARE(variable.skipVariable().type(), mzComVariantC::Property);
    QCOMPARE(variable.skipVariableAndProps().getInt(), 8);
    QCOMPARE(property->write(9), 0);
    QCOMPARE(object->number(), 9);
    QCOMPARE(property->write("x"), int(mzComTypeCast));
    QCOMPARE(object->number(), 9);
    QCOMPARE(object->refCount(), 2);
}

void tst_mzComVariantC::propertyThatCannotBeRead()
{
    const auto object = sample();
    const auto message = [](const mzIDispatchC &of) {
        auto *const property = new mzComPropertyC(of, "gone");
        try {
            static_cast<void>(mzComVariantC::property(*property).skipVariableAndProps());
        } catch (const mzComExceptionC &error) {
            return QString(QStringLiteral("%1: %2").arg(error.code()).arg(error.what()));
        }
        return QString();
    };
    QCOMPARE(
        message(mzIDispatchC(object->getIUnknown())),
        QStringLiteral("%1: SampleC has no property \"gone\" that can be read").arg(mzComFailed));
    QCOMPARE(message({}), QStringLiteral("%1: Property \"gone\" cannot be read").arg(mzComFailed));
}

void tst_mzComVariantC::wrappersInACircle()
{
    auto *const variable = new mzComVariableC;
    const mzComVariantC value = mzComVariantC::variable(*variable);
    variable->write(value);
    QVERIFY(value.skipVariable().isEmpty());
    QVERIFY(value.skipVariableAndProps().isEmpty());
    variable->write({});
}

void tst_mzComVariantC::arrays()
{
    mzComVariantArrayC array;
    QCOMPARE(array.size(), 0);
    array.append("a");
    array.append(2);
    QCOMPARE(array.size(), 2);
    QCOMPARE(array[1].getInt(), 2);
    QVERIFY(array[2].isEmpty());
    QVERIFY(array[-1].isEmpty());
    const mzComVariantArrayC copy = array;
    array.append(3);
    QCOMPARE(copy.size(), 2);
    array.replace(1, 20);
    array.replace(3, 30);
    array.replace(-1, 30);
    QCOMPARE(array.size(), 3);
    QCOMPARE(array[1].getInt(), 20);
    QCOMPARE(copy[1].getInt(), 2);
    array.remove(3);
    array.remove(-1);
    QCOMPARE(array.size(), 3);
    array.remove(0);
    QCOMPARE(array.size(), 2);
    QCOMPARE(array[0].getInt(), 20);
    const auto object = sample();
    const mzComVariantArrayC two{object->getIUnknown(), static_cast<proxyObjectC *>(nullptr)};
    QCOMPARE(two[0].getIUnknown(), object->getIUnknown());
    QVERIFY(two[1].isEmpty());
}

void tst_mzComVariantC::arraysAsTextList()
{
    QCOMPARE(mzComVariantArrayC().toQStringList(), QStringList());
    const mzComVariantArrayC array{"a", 2, QStringLiteral("ü"), mzComVariantC(), ""};
    const QStringList expected{QStringLiteral("a"), {}, QStringLiteral("ü"), {}, {}};
    QCOMPARE(array.toQStringList(), expected);
}

void tst_mzComVariantC::texts()
{
    const mzComStringC text(QStringLiteral("Länge"));
    const QString q = text;
    const QString direct(text);
    const PString p = text;
    const PString directP(text);
    for (const QString &each : {q, direct, QString(p), QString(directP)})
        QCOMPARE(each, QStringLiteral("Länge"));
    QVERIFY(text == mzComStringC("Länge"));
    QVERIFY(text == mzComStringC(PString("Länge")));
    QVERIFY(!(text == mzComStringC("länge")));
    QVERIFY(mzComStringC().isEmpty());
    QVERIFY(!text.isEmpty());
}

void tst_mzComVariantC::interfaceIds()
{
    const QByteArray sameName("mzIDispatch");
    QVERIFY(mzIIDS(sameName.constData()) == mzIDispatch::iid());
    QVERIFY(!(mzIIDS("mzIDispatc") == mzIDispatch::iid()));
    QVERIFY(!(mzIUnknown::iid() == mzIDispatch::iid()));
    QCOMPARE(mzIComNativePointer::iid().name(), "mzIComNativePointer");
    QCOMPARE(mzIComReference::iid().name(), "mzIComReference");
    QCOMPARE(mzIUnknown::iid().name(), "mzIUnknown");
    QCOMPARE(&mzIDispatch::iid(), &mzIDispatch::iid());
}

void tst_mzComVariantC::pointers()
{
    QVERIFY(!mzComPtrC().isValid());
    QCOMPARE(mzComPtrC().iface(), nullptr);
    const auto object = sample();
    mzComPtrC pointer(object->getIUnknown());
    QVERIFY(pointer.isValid());
    QCOMPARE(pointer.iface(), object->getIUnknown());
    QCOMPARE(object->refCount(), 2);
    const mzComPtrC copy = pointer;
    QCOMPARE(object->refCount(), 3);
    mzComPtrC moved = std::move(pointer);
    QCOMPARE(object->refCount(), 3);
    QVERIFY(moved == copy);
    moved = moved.iface(); // to itself
    QCOMPARE(object->refCount(), 3);
    QCOMPARE(moved->addRef(), 4);
    object->release();
    mzIUnknown *const raw = moved.detach();
    QCOMPARE(raw, object->getIUnknown());
    QVERIFY(!moved.isValid());
    QCOMPARE(object->refCount(), 3);
    QCOMPARE(raw->release(), 2);
}

QTEST_GUILESS_MAIN(tst_mzComVariantC)
#include "tst_mzComVariantC.moc"
