#include <geomcore/mapper/CellSimilarity.h>
#include <geomcore/mapper/LineIdSet.h>
#include <geomcore/mapper/NameRank.h>
#include <geomcore/mapper/RangeCell.h>
#include <geomcore/mapper/SimilarityRules.h>
#include <geomcore/mapper/TextSimilarity.h>

#include <QRandomGenerator>
#include <QTest>

using namespace Mapper;

class tst_Similarity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tokens_data();
    void tokens();
    void editDistancesOfLongTexts();
    void longTexts();
    void editDistances_data();
    void editDistances();
    void texts_data();
    void texts();
    void textSimilarityIsSymmetric();
    void numbers_data();
    void numbers();
    void cells_data();
    void cells();
    void ranges_data();
    void ranges();
    void rangeContainment_data();
    void rangeContainment();
    void equalRanges_data();
    void equalRanges();
    void names_data();
    void names();
    void lineIdSet();
    void lineIdSetKeepsOrder();
    void rulesFitTogether();
};

void tst_Similarity::tokens_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("letters and digits part") << QByteArray("M8") << QStringList{"8", "m"};
    QTest::newRow("decimal point stays in a number")
        << QByteArray("ISO7380-2 x 2.5") << QStringList{"2", "2.5", "7380", "iso", "x"};
    QTest::newRow("second point ends a number") << QByteArray("1.2.3") << QStringList{"1.2", "3"};
    QTest::newRow("point at the end is none") << QByteArray("12.") << QStringList{"12"};
    QTest::newRow("point at the begin is none") << QByteArray(".5") << QStringList{"5"};
    QTest::newRow("each once") << QByteArray("a A a") << QStringList{"a"};
    QTest::newRow("letters of any script") << QByteArray("Größe") << QStringList{"größe"};
    QTest::newRow("nothing but signs") << QByteArray("(-/-)") << QStringList{};
    QTest::newRow("empty") << QByteArray() << QStringList{};
}

void tst_Similarity::tokens()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, expected);
    const ComparableText comparable({text.constData(), size_t(text.size())});
    QStringList tokens;
    for (const QStringView token : comparable.tokens())
        tokens.append(token.toString());
    QCOMPARE(tokens, expected);
}

namespace {

/// The textbook's table.
int plainDistance(const QString &a, const QString &b)
{
    QList<QList<int>> table(a.size() + 1, QList<int>(b.size() + 1));
    for (int i = 0; i <= a.size(); ++i) {
        for (int j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0)
                table[i][j] = std::max(i, j);
            else
                table[i][j] = std::min({table[i - 1][j] + 1, table[i][j - 1] + 1,
                                        table[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
        }
    }
    return table[a.size()][b.size()];
}

} // namespace

void tst_Similarity::editDistancesOfLongTexts()
{
    QRandomGenerator random(5);
    const auto text = [&random](int size) {
        QString result;
        while (result.size() < size)
            result += random.bounded(4) == 0 ? QChar(0x20AC) : QChar('a' + int(random.bounded(4)));
        return result;
    };
    for (int size : {1, 63, 64, 65, 127, 128, 129, 200}) {
        for (int other : {1, 64, 128, 150}) {
            const QString a = text(size);
            const QString b = text(other);
            QCOMPARE(editDistance(a, b), plainDistance(a, b));
        }
    }
}

void tst_Similarity::longTexts()
{
    // The tokens of the whole texts count, characters of their beginning only.
    const QString begin = QString(300, 'x');
    const ComparableText first((begin + " one two three").toStdString());
    const ComparableText second((begin + " one two four").toStdString());
    QCOMPARE(first.similarity(second), 0.5 * 6 / 8 + 0.5);
    // Below what is needed an upper bound does.
    const ComparableText third("one two");
    const ComparableText fourth("six ten");
    QVERIFY(third.similarity(fourth) < 0.5);
    QCOMPARE(third.similarity(fourth, 0.9), 0.5);
    QCOMPARE(third.similarity(fourth, 0.4), third.similarity(fourth));
}

void tst_Similarity::editDistances_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("expected");
    QTest::newRow("equal") << "abc"
                           << "abc" << 0;
    QTest::newRow("replaced") << "abc"
                              << "axc" << 1;
    QTest::newRow("inserted") << "abc"
                              << "abxc" << 1;
    QTest::newRow("removed") << "abc"
                             << "ac" << 1;
    QTest::newRow("swapped") << "ab"
                             << "ba" << 2;
    QTest::newRow("empty and text") << ""
                                    << "abc" << 3;
    QTest::newRow("text and empty") << "abc"
                                    << "" << 3;
    QTest::newRow("classic") << "kitten"
                             << "sitting" << 3;
}

void tst_Similarity::editDistances()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(editDistance(a, b), "expected");
}

void tst_Similarity::texts_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<double>("expected");
    QTest::newRow("equal") << "M8"
                           << "M8" << 1.0;
    QTest::newRow("equal but for case and blanks") << " m8"
                                                   << "M8 " << 1.0;
    QTest::newRow("both without tokens") << "("
                                         << ")" << 0.0;
    QTest::newRow("brackets added") << "(M8)"
                                    << "M8" << 0.5 + 0.5 * (1 - 2.0 / 4);
    QTest::newRow("one token of two") << "M8"
                                      << "M9" << 0.5 * 0.5 + 0.5 * 0.5;
    QTest::newRow("nothing in common") << "abc"
                                       << "xyz" << 0.0;
}

void tst_Similarity::texts()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(double, expected);
    const ComparableText first(a.toStdString());
    const ComparableText second(b.toStdString());
    QVERIFY(qAbs(first.similarity(second) - expected) < 1e-12);
}

void tst_Similarity::textSimilarityIsSymmetric()
{
    const char *texts[] = {"M8", "M8x1", "ISO 4014", "DIN 931 - M8 x 40", "", "8.8", "Stahl"};
    for (const char *a : texts) {
        for (const char *b : texts) {
            const double there = ComparableText(a).similarity(ComparableText(b));
            QCOMPARE(ComparableText(b).similarity(ComparableText(a)), there);
            QVERIFY(there >= 0 && there <= 1);
        }
    }
}

void tst_Similarity::numbers_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<double>("expected");
    QTest::newRow("equal") << 5.0 << 5.0 << 1.0;
    QTest::newRow("both zero") << 0.0 << 0.0 << 1.0;
    QTest::newRow("five in a hundred off") << 95.0 << 100.0 << 0.8;
    QTest::newRow("the other way round") << 100.0 << 95.0 << 0.8;
    QTest::newRow("a quarter off") << 75.0 << 100.0 << 0.0;
    QTest::newRow("far off") << 1.0 << 100.0 << 0.0;
    QTest::newRow("zero and a number") << 0.0 << 0.001 << 0.0;
    QTest::newRow("different signs") << -1.0 << 1.0 << 0.0;
    QTest::newRow("both negative") << -95.0 << -100.0 << 0.8;
}

void tst_Similarity::numbers()
{
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(double, expected);
    QVERIFY(qAbs(numberSimilarity(a, b) - expected) < 1e-12);
}

void tst_Similarity::cells_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<char>("decimalChar");
    QTest::addColumn<double>("expected");
    QTest::newRow("same number written differently")
        << QByteArray("9") << QByteArray("9.0") << '.' << 1.0;
    QTest::newRow("decimal character") << QByteArray("9.5") << QByteArray("9,5") << ',' << 1.0;
    QTest::newRow("near numbers") << QByteArray("95") << QByteArray(" 100 ") << '.' << 0.8;
    QTest::newRow("number beside text")
        << QByteArray("8") << QByteArray("M8") << '.' << 0.5 * (2.0 / 3) + 0.5 * 0.5;
    QTest::newRow("texts") << QByteArray("M8") << QByteArray("(M8)") << '.' << 0.75;
    QTest::newRow("blanks around") << QByteArray("M8") << QByteArray(" M8 ") << '.' << 1.0;
}

void tst_Similarity::cells()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, cell);
    QFETCH(char, decimalChar);
    QFETCH(double, expected);
    const ComparableCell comparable({source.constData(), size_t(source.size())});
    const double similarity =
        comparable.similarity({cell.constData(), size_t(cell.size())}, decimalChar);
    QVERIFY2(qAbs(similarity - expected) < 1e-12, QByteArray::number(similarity).constData());
}

void tst_Similarity::ranges_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<QString>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("value inside") << "10;12;16"
                                  << "12.0" << 1.0;
    QTest::newRow("value outside") << "10;12;16"
                                   << "13" << 0.0;
    QTest::newRow("value of steps") << "10..50/5"
                                    << "35" << 1.0;
    QTest::newRow("equal ranges") << "10;15;20"
                                  << "10..20/5" << 1.0;
    QTest::newRow("half in common") << "10;12"
                                    << "12;14" << 0.5;
    QTest::newRow("nothing in common") << "10;12"
                                       << "13;14" << 0.0;
    QTest::newRow("no ranges, equal texts") << "10;;12"
                                            << "10;;12" << 1.0;
    QTest::newRow("no ranges, different texts") << "10;;12"
                                                << "10;12" << 0.0;
    QTest::newRow("too many values: contained") << "1..5000/1"
                                                << "7..4000/1" << 1.0;
    QTest::newRow("too many values: not contained") << "7..4000/1"
                                                    << "1..5000/1" << 0.0;
}

void tst_Similarity::ranges()
{
    QFETCH(QString, range);
    QFETCH(QString, value);
    QFETCH(double, expected);
    const std::string rangeText = range.toStdString();
    const std::string valueText = value.toStdString();
    QCOMPARE(rangeSimilarity(rangeText, '.', valueText, '.'), expected);
}

void tst_Similarity::rangeContainment_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("expected");
    QTest::newRow("single value") << "10;12;16"
                                  << "12" << true;
    QTest::newRow("decimal character of the range") << "10,5;12"
                                                    << "10.5" << true;
    QTest::newRow("value outside") << "10;12;16"
                                   << "11" << false;
    QTest::newRow("all of a source range") << "10;12;16"
                                           << "16;10" << true;
    QTest::newRow("part of a source range") << "10;12;16"
                                            << "10;11" << false;
    QTest::newRow("steps in steps") << "10..50/5"
                                    << "20..40/10" << true;
    QTest::newRow("text value") << "M8;M10"
                                << "M10" << true;
    QTest::newRow("empty range holds nothing") << ""
                                               << "10" << false;
    QTest::newRow("range holds no missing value") << "10;12"
                                                  << "" << false;
    QTest::newRow("no range") << "10;;12"
                              << "10" << false;
}

void tst_Similarity::rangeContainment()
{
    QFETCH(QString, range);
    QFETCH(QString, value);
    const std::string rangeText = range.toStdString();
    const std::string valueText = value.toStdString();
    QTEST(rangeContains(rangeText, ',', valueText, '.'), "expected");
}

void tst_Similarity::equalRanges_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("expected");
    QTest::newRow("order does not matter") << "10;12"
                                           << "12;10" << true;
    QTest::newRow("written differently") << "10..20/5"
                                         << "10;15.0;20" << true;
    QTest::newRow("one contains the other") << "10;12;16"
                                            << "10;12" << false;
    QTest::newRow("no ranges but equal") << ";;"
                                         << ";;" << true;
}

void tst_Similarity::equalRanges()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    const std::string first = a.toStdString();
    const std::string second = b.toStdString();
    QTEST(sameRange(first, '.', second, '.'), "expected");
}

void tst_Similarity::names_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("expected");
    QTest::newRow("same path, same catalog") << "cat/a/b.prj"
                                             << "cat/a/b.prj" << 3;
    QTest::newRow("same path, other catalog") << "old/a/b.prj"
                                              << "new/a/b.prj" << 3;
    QTest::newRow("backslash") << "old\\a\\b.prj"
                               << "new/a/b.prj" << 3;
    QTest::newRow("leading separator") << "/old/a/b.prj"
                                       << "new/a/b.prj" << 3;
    QTest::newRow("moved") << "cat/a/b.prj"
                           << "cat/c/b.prj" << 2;
    QTest::newRow("case and signs") << "cat/iso7380-2.prj"
                                    << "cat/x/ISO7380_2.prj" << 2;
    QTest::newRow("ending does not count") << "cat/a/b.prj"
                                           << "cat/c/b.PRX" << 2;
    QTest::newRow("other name") << "cat/a/b.prj"
                                << "cat/a/c.prj" << 1;
    QTest::newRow("names of signs only") << "cat/a/--.prj"
                                         << "cat/a/++.prj" << 1;
    QTest::newRow("digits differ") << "cat/din931.prj"
                                   << "cat/din933.prj" << 1;
}

void tst_Similarity::names()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    QTEST(int(nameRank(source, target)), "expected");
}

void tst_Similarity::lineIdSet()
{
    LineIdSet set;
    for (int id : {0, 1, 63, 64, 4095, 4096, 1000000, -1, -5000})
        QVERIFY(set.insert(id));
    for (int id : {0, 1, 63, 64, 4095, 4096, 1000000, -1, -5000}) {
        QVERIFY(set.contains(id));
        QVERIFY(!set.insert(id));
    }
    for (int id : {2, 62, 65, 4097, 999999, -2, -5001})
        QVERIFY(!set.contains(id));
    set.clear();
    QVERIFY(!set.contains(1));
    QVERIFY(set.insert(1));
    static_assert(!std::is_copy_constructible_v<LineIdSet>, "a set points into itself");
}

void tst_Similarity::lineIdSetKeepsOrder()
{
    LineIdSet set;
    for (int id : {7, 5000, 3, 7, 4999})
        set.insert(id);
    QCOMPARE(set.inOrder(), (std::vector<int>{7, 5000, 3, 4999}));
}

void tst_Similarity::rulesFitTogether()
{
    // What is proposed is nearer to equal than to nothing, also by its place alone.
    QVERIFY(SimilarThreshold > 0.5 && SimilarThreshold <= 1);
    QVERIFY(ClearMargin > 0 && ClearMargin < SimilarThreshold);
    QVERIFY(SimilarThreshold - OrderWeight >= 0.5);
}

QTEST_GUILESS_MAIN(tst_Similarity)
#include "tst_Similarity.moc"
