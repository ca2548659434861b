#include "../support/EnglishTexts.h"

#include <geomcore/value/RangeText.h>

#include <QRandomGenerator>
#include <QTest>

#include <limits>

using namespace VKTab;

class tst_RangeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void refuses_data();
    void refuses();
    void contains_data();
    void contains();
    void containsAll_data();
    void containsAll();
    void canonicalText_data();
    void canonicalText();
    void hugeRanges();
    void countSaturates();
    void sharedStepsAreLookedAtUpToABound();
    void randomSteps();
};

void tst_RangeText::values_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("values");

    QTest::newRow("list") << "10;12;16" << QStringList{"10", "12", "16"};
    QTest::newRow("single value") << "10" << QStringList{"10"};
    QTest::newRow("steps") << "10..30/5" << QStringList{"10", "15", "20", "25", "30"};
    QTest::newRow("last step stays below the end") << "10..23/5" << QStringList{"10", "15", "20"};
    QTest::newRow("one step") << "10..10/5" << QStringList{"10"};
    QTest::newRow("step wider than the span") << "10..12/5" << QStringList{"10"};
    QTest::newRow("fractions") << "0.5..2/.5" << QStringList{"0.5", "1", "1.5", "2"};
    QTest::newRow("negative") << "-1..1/1" << QStringList{"-1", "0", "1"};
    QTest::newRow("negative fractions") << "-0.5..0.5/0.5" << QStringList{"-0.5", "0", "0.5"};
    QTest::newRow("list and steps")
        << "8;10..20/5;M60" << QStringList{"8", "10", "15", "20", "M60"};
    QTest::newRow("texts") << "M8; M10 ;1/2in" << QStringList{"M8", "M10", "1/2in"};
    QTest::newRow("values as written") << "10.0;+12;1e3" << QStringList{"10.0", "+12", "1e3"};
    QTest::newRow("a value twice") << "1;1" << QStringList{"1", "1"};
    QTest::newRow("decimal comma") << "0,5..1/0,25" << QStringList{"0.5", "0.75", "1"};
    QTest::newRow("empty") << "" << QStringList{};
    QTest::newRow("blank") << " " << QStringList{};
}

void tst_RangeText::values()
{
    QFETCH(QString, text);
    QFETCH(QStringList, values);
    const auto range = RangeText::parse(text, ',');
    QVERIFY(range);
    QCOMPARE(range->values(), values);
    QCOMPARE(range->count(), values.size());
    QCOMPARE(range->isEmpty(), values.isEmpty());
    for (qsizetype i = 0; i < values.size(); ++i) {
        QCOMPARE(range->value(i), values.at(i));
        QVERIFY(range->contains(values.at(i)));
    }
}

void tst_RangeText::refuses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");

    QTest::newRow("empty part") << "10;;12"
                                << "a value between the semicolons is empty";
    QTest::newRow("semicolon at the end") << "10;"
                                          << "a value between the semicolons is empty";
    QTest::newRow("semicolon alone") << ";"
                                     << "a value between the semicolons is empty";
    QTest::newRow("no step") << "10..50"
                             << "\"10..50\" has no step; write it as 10..50/5";
    QTest::newRow("texts around the dots")
        << "M8..M10/2"
        << "begin, end and step of \"M8..M10/2\" are to be numbers of at most 15 digits";
    QTest::newRow("no begin")
        << "..50/5"
        << "begin, end and step of \"..50/5\" are to be numbers of at most 15 digits";
    QTest::newRow("no step behind the slash")
        << "10..50/"
        << "begin, end and step of \"10..50/\" are to be numbers of at most 15 digits";
    QTest::newRow("letter in a number")
        << "10..5O/5"
        << "begin, end and step of \"10..5O/5\" are to be numbers of at most 15 digits";
    QTest::newRow("three dots")
        << "10...50/5"
        << "begin, end and step of \"10...50/5\" are to be numbers of at most 15 digits";
    QTest::newRow("step zero") << "10..50/0"
                               << "the step of \"10..50/0\" is not above 0";
    QTest::newRow("negative step") << "10..50/-5"
                                   << "the step of \"10..50/-5\" is not above 0";
    QTest::newRow("backwards") << "50..10/5"
                               << "\"50..10/5\" ends below its begin";
    QTest::newRow("sixteen digits") << "0..1234567890123456/1"
                                    << "begin, end and step of \"0..1234567890123456/1\" are to be "
                                       "numbers of at most 15 digits";
    QTest::newRow("too fine for its size")
        << "0..123456789012345/0.001"
        << "the numbers of \"0..123456789012345/0.001\" have too many digits";
}

void tst_RangeText::refuses()
{
    QFETCH(QString, text);
    QFETCH(QString, error);
    QString found;
    QVERIFY(!RangeText::parse(text, '.', &found));
    QCOMPARE(found, error);
    QVERIFY(!RangeText::parse(text));
    QVERIFY(!RangeText::isSimple(text.toStdString()));
}

void tst_RangeText::contains_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("contained");

    QTest::newRow("listed") << "10;12;16"
                            << "12" << true;
    QTest::newRow("other form of number") << "10;12;16"
                                          << "+12.0" << true;
    QTest::newRow("not listed") << "10;12;16"
                                << "11" << false;
    QTest::newRow("on a step") << "10..50/5"
                               << "35.0" << true;
    QTest::newRow("between steps") << "10..50/5"
                                   << "36" << false;
    QTest::newRow("below") << "10..50/5"
                           << "5" << false;
    QTest::newRow("above") << "10..50/5"
                           << "55" << false;
    QTest::newRow("beyond the last step") << "10..52/5"
                                          << "52" << false;
    QTest::newRow("finer than the steps") << "10..50/5"
                                          << "10.001" << false;
    QTest::newRow("on a fine step") << "0..1/0.125"
                                    << "0.375" << true;
    QTest::newRow("decimal comma") << "10..50/5"
                                   << "35,0" << true;
    QTest::newRow("text") << "M8;M10"
                          << " M8" << true;
    QTest::newRow("text by case") << "M8;M10"
                                  << "m8" << false;
    QTest::newRow("text in steps") << "10..50/5"
                                   << "M8" << false;
    QTest::newRow("nothing in nothing") << ""
                                        << "" << false;
    QTest::newRow("empty value") << "10;12"
                                 << "" << false;
}

void tst_RangeText::contains()
{
    QFETCH(QString, range);
    QFETCH(QString, value);
    QFETCH(bool, contained);
    QCOMPARE(RangeText::parse(range)->contains(value, ','), contained);
}

void tst_RangeText::containsAll_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<QString>("part");
    QTest::addColumn<bool>("contained");

    QTest::newRow("list in list") << "10;12;16;20"
                                  << "20;12.0" << true;
    QTest::newRow("one is missing") << "10;12;16;20"
                                    << "20;13" << false;
    QTest::newRow("list in steps") << "10..50/5"
                                   << "15;20" << true;
    QTest::newRow("steps in steps") << "10..50/5"
                                    << "20..40/10" << true;
    QTest::newRow("steps beside steps") << "10..50/10"
                                        << "20..40/5" << false;
    QTest::newRow("shifted steps") << "10..50/5"
                                   << "11..41/5" << false;
    QTest::newRow("steps in a list") << "10;15;20;25"
                                     << "10..20/5" << true;
    QTest::newRow("steps in two parts") << "10..20/5;25..40/5"
                                        << "15..30/5" << true;
    QTest::newRow("the same") << "8;10..50/5;M60"
                              << "8;10..50/5;M60" << true;
    QTest::newRow("nothing in anything") << "10"
                                         << "" << true;
    QTest::newRow("anything in nothing") << ""
                                         << "10" << false;
    QTest::newRow("single step in single value") << "10"
                                                 << "10..11/5" << true;
}

void tst_RangeText::containsAll()
{
    QFETCH(QString, range);
    QFETCH(QString, part);
    QFETCH(bool, contained);
    QCOMPARE(RangeText::parse(range)->containsAll(*RangeText::parse(part)), contained);
}

void tst_RangeText::canonicalText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("canonical");

    QTest::newRow("numbers") << "10.0; +12;1e1"
                             << "10;12;10";
    QTest::newRow("decimal comma") << "1,50;2"
                                   << "1.5;2";
    QTest::newRow("steps") << "10.0 .. 52.0 / 5.0"
                           << "10..50/5";
    QTest::newRow("texts") << " M8 ;M10"
                           << "M8;M10";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_RangeText::canonicalText()
{
    QFETCH(QString, text);
    QFETCH(QString, canonical);
    QCOMPARE(RangeText::parse(text, ',')->canonicalText(), canonical);
    QCOMPARE(RangeText::parse(canonical)->canonicalText(), canonical);
}

void tst_RangeText::hugeRanges()
{
    const auto range = RangeText::parse(u"0..100000000/0.0001");
    QVERIFY(range);
    QCOMPARE(range->count(), 1000000000001);
    QCOMPARE(range->value(1000000000000), QStringLiteral("100000000"));
    QVERIFY(range->contains(u"99999999.9999"));
    QVERIFY(!range->contains(u"99999999.99995"));
    QVERIFY(range->containsAll(*RangeText::parse(u"0..100000000/0.0002")));
    QVERIFY(!RangeText::parse(u"1;2")->containsAll(*range));
    QCOMPARE(range->value(range->count()), QString());
}

void tst_RangeText::countSaturates()
{
    QStringList pieces;
    for (int i = 0; i < 20000; ++i)
        pieces.append("0..900000000000000/1");
    const auto range = RangeText::parse(pieces.join(u';'));
    QVERIFY(range);
    QCOMPARE(range->count(), std::numeric_limits<qint64>::max());
    QCOMPARE(range->value(1), "1");
}

void tst_RangeText::sharedStepsAreLookedAtUpToABound()
{
    const auto halves = RangeText::parse(u"0..100000000000/2;1..100000000000/2");
    QVERIFY(halves->containsAll(*RangeText::parse(u"0..99999/1")));
    QVERIFY(!halves->containsAll(*RangeText::parse(u"0..99999999999/1")));
}

void tst_RangeText::randomSteps()
{
    QRandomGenerator random(5);
    for (int round = 0; round < 500; ++round) {
        const int scale = random.bounded(1, 1000);
        const int from = random.bounded(-500, 500);
        const int step = random.bounded(1, 60);
        const int to = from + random.bounded(0, 2000);
        const auto number = [scale](int value) {
            return QString::number(double(value) / (scale % 2 ? 1 : 4), 'f', scale % 2 ? 0 : 2);
        };
        const QString text =
            QStringLiteral("%1..%2/%3").arg(number(from), number(to), number(step));
        const auto range = RangeText::parse(text);
        QVERIFY2(range, qPrintable(text));
        qint64 index = 0;
        for (int value = from; value <= to; ++value) {
            const bool onStep = (value - from) % step == 0;
            QCOMPARE(range->contains(number(value)), onStep);
            if (onStep)
                QCOMPARE(range->value(index++).toDouble(), number(value).toDouble());
        }
        QCOMPARE(range->count(), index);
    }
}

QTEST_GUILESS_MAIN(tst_RangeText)
#include "tst_RangeText.moc"
