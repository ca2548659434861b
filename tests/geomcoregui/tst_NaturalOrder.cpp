#include <geomcoregui/table/NaturalOrder.h>

#include <QTest>

#include <algorithm>
#include <array>
#include <string>

class tst_NaturalOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void compare_data()
    {
        QTest::addColumn<QByteArray>("a");
        QTest::addColumn<QByteArray>("b");
        QTest::addColumn<int>("expected");
        const auto row = [](const char *a, const char *b, int expected) {
            QTest::addRow("%s, %s", a, b) << QByteArray(a) << QByteArray(b) << expected;
        };
        row("", "", 0);
        row("", "a", -1);
        row("a", "A", 0);
        row("M8", "m10", -1);
        row("M10", "m8", 1);
        row("a01", "a1", 0);
        row("a1b", "a01c", -1);
        row("a9", "a09b", -1);
        row("x12345678901234567890", "x12345678901234567891", -1);
        row("x99999999999999999999", "x100000000000000000000", -1);
        row("a", "a1", -1);
        row("1a", "a", -1);
        row("z", "ä", -1);
    }
    void compare()
    {
        QFETCH(QByteArray, a);
        QFETCH(QByteArray, b);
        QFETCH(int, expected);
        const auto sign = [](int order) {
            return order < 0 ? -1 : int(order > 0);
        };
        QCOMPARE(sign(naturalCompare(a.toStdString(), b.toStdString())), expected);
        QCOMPARE(sign(naturalCompare(b.toStdString(), a.toStdString())), -expected);
    }

    void order_data()
    {
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<char>("decimal");
        QTest::addColumn<bool>("leading");
        QTest::newRow("numbers before texts")
            << QStringList{"-2.5", "0", "2", "10", "1e3", "a2", "a10", "b"} << '.' << false;
        QTest::newRow("decimal comma") << QStringList{"1.234", "1,25", "1,5", "12"} << ',' << false;
        QTest::newRow("lists count by their begin")
            << QStringList{"5", "5;6", "10..50/5", "12;16", "100", "x"} << '.' << true;
        QTest::newRow("lists as texts")
            << QStringList{"5", "100", "5;6", "10..50/5", "12;16", "x"} << '.' << false;
        QTest::newRow("sign without digits is a text")
            << QStringList{"-1;2", "-", "a"} << '.' << true;
    }
    void order()
    {
        QFETCH(QStringList, expected);
        QFETCH(char, decimal);
        QFETCH(bool, leading);
        std::vector<std::string> texts;
        for (const QString &text : expected)
            texts.push_back(text.toStdString());
        std::vector<NaturalKey> keys;
        for (size_t i = texts.size(); i-- > 0;)
            keys.emplace_back(quint32(i), texts[i], decimal, leading);
        std::sort(keys.begin(), keys.end());
        QStringList sorted;
        for (const NaturalKey &key : keys)
            sorted.append(expected.at(key.id()));
        QCOMPARE(sorted, expected);
    }

    void equalNumbersAreEqual()
    {
        const NaturalKey a(0, "1.0", '.', false);
        const NaturalKey b(1, "1.00", '.', false);
        QVERIFY(!(a < b) && !(b < a));
    }
};

QTEST_GUILESS_MAIN(tst_NaturalOrder)
#include "tst_NaturalOrder.moc"
