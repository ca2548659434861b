#include <geomcore/value/CanonicalNumber.h>
#include <geomcore/value/CellKey.h>

#include <QRandomGenerator>
#include <QTest>

using namespace VKTab;

class tst_CanonicalNumber : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equal_data();
    void equal();
    void differ_data();
    void differ();
    void isText_data();
    void isText();
    void toText_data();
    void toText();
    void textsAreReadAgain();
    void toDouble();
    void randomForms();
    void keys_data();
    void keys();
};

namespace {

std::optional<CanonicalNumber> parse(const QString &text, char decimalChar = ',')
{
    const QByteArray utf8 = text.toUtf8();
    return CanonicalNumber::parse({utf8.constData(), size_t(utf8.size())}, decimalChar);
}

} // namespace

void tst_CanonicalNumber::equal_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");

    QTest::newRow("trailing zero") << "9.0"
                                   << "9";
    QTest::newRow("trailing zeros") << "9.00"
                                    << "9.0";
    QTest::newRow("plus sign") << "+9"
                               << "9";
    QTest::newRow("decimal comma") << "9,0"
                                   << "9.0";
    QTest::newRow("comma in a fraction") << "18,95"
                                         << "18.95";
    QTest::newRow("negative zero") << "-0"
                                   << "0";
    QTest::newRow("zeros alone") << "0.000"
                                 << "00";
    QTest::newRow("zero with an exponent") << "0e99999"
                                           << "0";
    QTest::newRow("exponent") << "1e3"
                              << "1000";
    QTest::newRow("capital exponent") << "1.5E+2"
                                      << "150";
    QTest::newRow("negative exponent") << "25e-1"
                                       << "2.5";
    QTest::newRow("leading zeros") << "007"
                                   << "7";
    QTest::newRow("leading zeros of a fraction") << "0.0050"
                                                 << "5e-3";
    QTest::newRow("no digit before the point") << ".5"
                                               << "0.5";
    QTest::newRow("no digit behind the point") << "5."
                                               << "5";
    QTest::newRow("blanks around") << " 9\t"
                                   << "9";
    QTest::newRow("rounded sum") << "0.30000000000000004"
                                 << "0.3";
    QTest::newRow("rounded up to a power of ten") << "9.9999999999"
                                                  << "10";
    QTest::newRow("half away from zero") << "1.0000000005"
                                         << "1.000000001";
    QTest::newRow("negative half") << "-1.0000000005"
                                   << "-1.000000001";
    QTest::newRow("long fraction") << "12.8316097327394"
                                   << "12.83160973";
    QTest::newRow("ten digits") << "1234567.890"
                                << "1234567.89";
    QTest::newRow("integer of fourteen digits") << "12345678901234"
                                                << "12345678901234.0";
    QTest::newRow("very long fraction") << "1." + QString(5000, u'3') << "1.333333333";
    QTest::newRow("many leading zeros") << QString(5000, u'0') + "1"
                                        << "1";
    QTest::newRow("many trailing zeros behind the point") << "1." + QString(5000, u'0') << "1";
}

void tst_CanonicalNumber::equal()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QVERIFY(parse(a));
    QVERIFY(parse(b));
    QCOMPARE(parse(a)->packed(), parse(b)->packed());
}

void tst_CanonicalNumber::differ_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");

    QTest::newRow("sign") << "-9"
                          << "9";
    QTest::newRow("tenth digit") << "1.234567891"
                                 << "1.234567892";
    QTest::newRow("power of ten") << "9"
                                  << "90";
    QTest::newRow("fraction") << "9"
                              << "0.9";
    QTest::newRow("long integers") << "12345678901"
                                   << "12345678902";
    QTest::newRow("just below the half") << "1.00000000049"
                                         << "1.000000001";
}

void tst_CanonicalNumber::differ()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QVERIFY(parse(a));
    QVERIFY(parse(b));
    QVERIFY(!(*parse(a) == *parse(b)));
}

void tst_CanonicalNumber::isText_data()
{
    QTest::addColumn<QString>("text");

    for (const char *text :
         {"",     " ",     "M8",    "1 1/4in",  "#10",  "(M14)",  "1/2",    "ST4.2",
          "6 mm", "1.2.3", "1,2,3", "--1",      "+-1",  ".",      ",",      "-",
          "+",    "e5",    "1e",    "1e+",      "1e5x", "1e1.5",  "0x10",   "inf",
          "nan",  "1 000", "10;12", "10..50/5", "١",    "1e9000", "1e-9000"})
        QTest::newRow(text) << QString::fromUtf8(text);
    QTest::newRow("empty") << "";
    QTest::newRow("fifteen digits") << "123456789012345";
    QTest::newRow("a thousand digits") << QString(1000, u'7');
    QTest::newRow("an exponent beyond any integer") << "1e99999999999999999999";
}

void tst_CanonicalNumber::isText()
{
    QFETCH(QString, text);
    QVERIFY(!parse(text));
}

void tst_CanonicalNumber::toText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("zero") << "-0.0"
                          << "0";
    QTest::newRow("integer") << "9.0"
                             << "9";
    QTest::newRow("negative fraction") << "-18,950"
                                       << "-18.95";
    QTest::newRow("thousand") << "1e3"
                              << "1000";
    QTest::newRow("small") << "5e-3"
                           << "0.005";
    QTest::newRow("large") << "1.5e20"
                           << "1.5e20";
    QTest::newRow("tiny") << "1e-20"
                          << "1e-20";
    QTest::newRow("rounded") << "12.8316097327394"
                             << "12.83160973";
    QTest::newRow("all behind the point") << ".5"
                                          << "0.5";
    QTest::newRow("one digit before the point") << "2.5"
                                                << "2.5";
    QTest::newRow("longest integer") << "1e13"
                                     << "10000000000000";
    QTest::newRow("first with an exponent") << "1e14"
                                            << "1e14";
    QTest::newRow("rounded up to one more digit") << "99999999999999.5"
                                                  << "1e14";
    QTest::newRow("integer with all digits") << "-12345678901234"
                                             << "-12345678901234";
    QTest::newRow("all digits with an exponent") << "12345678901234e6"
                                                 << "12345678901234e6";
    QTest::newRow("all digits of a fraction") << "12345678901234e-3"
                                              << "12345678901234e-3";
    QTest::newRow("smallest in plain notation") << "1e-15"
                                                << "0.000000000000001";
    QTest::newRow("first with a negative exponent") << "1e-16"
                                                    << "1e-16";
}

void tst_CanonicalNumber::toText()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(QString::fromStdString(parse(text)->toText()), expected);
    QCOMPARE(parse(expected)->packed(), parse(text)->packed());
}

/// Of any number that can be read.
void tst_CanonicalNumber::textsAreReadAgain()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 20000; ++round) {
        const qint64 digits = random.bounded(quint64(1) << random.bounded(1, 46));
        const QString text = QStringLiteral("%1e%2").arg(digits).arg(random.bounded(-40, 40));
        const auto number = parse(text);
        if (!number) // more digits than it may have
            continue;
        const QString again = QString::fromStdString(number->toText());
        QVERIFY2(parse(again) && parse(again)->packed() == number->packed(),
                 qPrintable(text + " as " + again));
    }
}

void tst_CanonicalNumber::toDouble()
{
    QCOMPARE(parse("18,95")->toDouble(), 18.95);
    QCOMPARE(parse("-1.5e20")->toDouble(), -1.5e20);
    QCOMPARE(parse("0")->toDouble(), 0.0);
    QCOMPARE(parse("0.1")->toDouble(), 0.1);
}

void tst_CanonicalNumber::randomForms()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 20000; ++round) {
        const qint64 digits = random.bounded(1000000);
        const int scale = random.bounded(5);
        QString text = QString::number(digits).rightJustified(scale + 1, u'0');
        if (scale > 0)
            text.insert(text.size() - scale, u'.');
        const QString exponent = QStringLiteral("%1e%2").arg(digits).arg(-scale);
        const QString padded =
            QStringLiteral("  +00%1%2").arg(text, scale > 0 ? QStringLiteral("000") : QString());
        QVERIFY2(parse(text), qPrintable(text));
        QCOMPARE(parse(exponent)->packed(), parse(text)->packed());
        QCOMPARE(parse(padded)->packed(), parse(text)->packed());
        QCOMPARE(parse(text)->toDouble(), text.toDouble());
    }
}

void tst_CanonicalNumber::keys_data()
{
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<bool>("missing");
    QTest::addColumn<bool>("asText");
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<bool>("equal");

    QTest::newRow("numbers by value")
        << QByteArray("9.0") << false << false << QByteArray("9") << true;
    QTest::newRow("numbers as texts")
        << QByteArray("9.0") << false << true << QByteArray("9") << false;
    QTest::newRow("trimmed text") << QByteArray(" M8") << false << false << QByteArray("M8 ")
                                  << true;
    QTest::newRow("text counts blanks")
        << QByteArray(" M8") << false << true << QByteArray("M8") << false;
    QTest::newRow("case counts") << QByteArray("m8") << false << false << QByteArray("M8") << false;
    QTest::newRow("missing is no text")
        << QByteArray("") << true << false << QByteArray("") << false;
    QTest::newRow("number is no text")
        << QByteArray("9") << false << false << QByteArray("9 mm") << false;
}

void tst_CanonicalNumber::keys()
{
    QFETCH(QByteArray, a);
    QFETCH(bool, missing);
    QFETCH(bool, asText);
    QFETCH(QByteArray, b);
    QFETCH(bool, equal);
    const CompareMode mode = asText ? CompareMode::Text : CompareMode::Number;
    const CellKey first({a.constData(), size_t(a.size())}, mode, '.', missing);
    const CellKey second({b.constData(), size_t(b.size())}, mode, '.', false);
    QCOMPARE(first == second, equal);
    QCOMPARE(first.hash() == second.hash(), equal);
    QVERIFY(first == first);
}

QTEST_GUILESS_MAIN(tst_CanonicalNumber)
#include "tst_CanonicalNumber.moc"
