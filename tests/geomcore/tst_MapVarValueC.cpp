#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/expression/toTabVarValues.h>

#include <QTest>

class tst_MapVarValueC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultHasNothing()
    {
        const MapVarValueC value;
        QCOMPARE(value.getName(), QString());
        QVERIFY(value.getValue().isNull());
        QVERIFY(!value.isNumeric());
    }

    void equality_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("numeric");
        QTest::addColumn<bool>("equal");
        QTest::newRow("same text") << "a b"
                                   << "a b" << false << true;
        QTest::newRow("other text") << "a b"
                                    << "a  b" << false << false;
        QTest::newRow("letter case") << "a"
                                     << "A" << false << false;
        QTest::newRow("texts that read as the same number") << "9"
                                                            << "9.0" << false << false;
        QTest::newRow("same number") << "9"
                                     << "9.0" << true << true;
        QTest::newRow("within the tolerance") << "1000000000"
                                              << "1000000001" << true << true;
        QTest::newRow("beyond the tolerance") << "1000000000"
                                              << "1000000002" << true << false;
        QTest::newRow("other number") << "9"
                                      << "8" << true << false;
        QTest::newRow("numeric variables with texts") << "10;12"
                                                      << "10;12" << true << true;
        QTest::newRow("number and text") << "10"
                                         << "10;12" << true << false;
        QTest::newRow("no values") << ""
                                   << "" << true << true;
        QTest::newRow("no value and zero") << ""
                                           << "0" << true << false;
    }
    void equality()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(bool, numeric);
        MapVarValueC first, second;
        first.setName("A");
        first.setValue(VKTab::Value(a));
        first.setNumeric(numeric);
        second.setName("B");
        second.setValue(VKTab::Value(b));
        second.setNumeric(numeric);
        QTEST(first == second, "equal");
        QTEST(second == first, "equal");
    }

    void oneNumericAloneComparesTexts()
    {
        MapVarValueC number, text;
        number.setValue(VKTab::Value(9));
        number.setNumeric(true);
        text.setValue(VKTab::Value("9.0"));
        QVERIFY(!(number == text));
        text.setValue(VKTab::Value("9"));
        QVERIFY(number == text);
    }

    void toTabVarValue()
    {
        MapVarValueC value;
        value.setName("D");
        value.setValue(VKTab::Value("12.5"));
        value.setNumeric(true);
        QVERIFY(value.toTabVarValue() == TabVarValue("D", "12.5", "", 0, 1));
    }

    void valuesToFind()
    {
        QHash<QString, MapVarValueC> varset;
        for (const char *const name : {"A", "B", "C"}) {
            MapVarValueC value;
            value.setName(name);
            value.setValue(VKTab::Value(name));
            varset.insert(name, value);
        }
        const QList<TabVarValue> values = toTabVarValues(varset);
        QCOMPARE(values.size(), 3);
        qsizetype place = 0;
        for (const MapVarValueC &value : varset) // the order of the hash
            QCOMPARE(values[place++].getName(), value.getName());
        QVERIFY(toTabVarValues({}).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_MapVarValueC)
#include "tst_MapVarValueC.moc"
