#include <geomcore/value/Value.h>

#include <QTest>

#include <limits>

using namespace VKTab;

class tst_Value : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void becomesText_data();
    void becomesText();
    void readsAsNumber_data();
    void readsAsNumber();
    void tellsEmptyFromNull();
    void comparesKindAndContent();
};

void tst_Value::becomesText_data()
{
    QTest::addColumn<Value>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("null") << Value() << QString();
    QTest::newRow("integer") << Value(12) << "12";
    QTest::newRow("negative") << Value(-12) << "-12";
    QTest::newRow("large integer")
        << Value(std::numeric_limits<qint64>::min()) << "-9223372036854775808";
    QTest::newRow("fraction") << Value(0.1) << "0.1";
    QTest::newRow("whole number") << Value(12.0) << "12";
    QTest::newRow("no negative zero") << Value(-0.0) << "0";
    QTest::newRow("all digits") << Value(1.0 / 3) << "0.3333333333333333";
    QTest::newRow("large without exponent") << Value(123456789012345.0) << "123456789012345";
    QTest::newRow("beyond that with one") << Value(1e20) << "1e+20";
    QTest::newRow("small with one") << Value(1e-9) << "1e-09";
    QTest::newRow("text as it is") << Value(QString(" 09,50 ")) << " 09,50 ";
    QTest::newRow("umlaut") << Value("Länge") << QString::fromUtf8("Länge");
}

void tst_Value::becomesText()
{
    QFETCH(Value, value);
    QTEST(value.toString(), "text");
}

void tst_Value::readsAsNumber_data()
{
    QTest::addColumn<Value>("value");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<double>("number");

    QTest::newRow("null") << Value() << false << 0.0;
    QTest::newRow("integer") << Value(12) << true << 12.0;
    QTest::newRow("fraction") << Value(0.5) << true << 0.5;
    QTest::newRow("text") << Value("9.50") << true << 9.5;
    QTest::newRow("blanks around") << Value(" 9\t") << true << 9.0;
    QTest::newRow("plus sign") << Value("+9") << true << 9.0;
    QTest::newRow("two signs") << Value("+-9") << false << 0.0;
    QTest::newRow("lone plus") << Value("+") << false << 0.0;
    QTest::newRow("exponent") << Value("1e3") << true << 1000.0;
    QTest::newRow("decimal comma") << Value("9,5") << false << 0.0;
    QTest::newRow("more behind") << Value("9 mm") << false << 0.0;
    QTest::newRow("empty") << Value("") << false << 0.0;
    QTest::newRow("infinity") << Value("inf") << false << 0.0;
    QTest::newRow("no number") << Value("nan") << false << 0.0;
    QTest::newRow("too large") << Value("1e999") << false << 0.0;
    QTest::newRow("text beyond ASCII") << Value("½") << false << 0.0;
}

void tst_Value::readsAsNumber()
{
    QFETCH(Value, value);
    QTEST(value.number().has_value(), "isNumber");
    QTEST(value.number().value_or(0.0), "number");
}

void tst_Value::tellsEmptyFromNull()
{
    QVERIFY(Value().isNull() && Value().isEmpty());
    QVERIFY(!Value("").isNull() && Value("").isEmpty());
    QVERIFY(!Value(QString()).isNull() && Value(QString()).isEmpty());
    QVERIFY(!Value(0).isEmpty());
    QVERIFY(Value(0).isNumber() && Value(0.5).isNumber() && !Value("0").isNumber());
}

void tst_Value::comparesKindAndContent()
{
    QCOMPARE(Value(1), Value(qint64(1)));
    QCOMPARE(Value("a"), Value(QString("a")));
    QVERIFY(!(Value(1) == Value("1")));
    QVERIFY(!(Value() == Value("")));
    QVERIFY(!(Value("9") == Value("9.0")));
}

QTEST_GUILESS_MAIN(tst_Value)
#include "tst_Value.moc"
