#include <geomcore/value/MidentClass.h>

#include <QTest>

class tst_MidentClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesOneGroupAVariable();
    void writes_data();
    void writes();
    void readsBackWhatItWrote_data();
    void readsBackWhatItWrote();
    void splits_data();
    void splits();
    void refuses_data();
    void refuses();
    void writesPlacesOnDemand();
    void entriesOutOfRangeAreEmpty();
};

namespace {

TabVarValue value(const QString &name, const QString &text)
{
    return {name, text, QString(), 0, 1};
}

QString written(const QString &name, const QString &text)
{
    return MidentClass::varValuListToString({value(name, text)}, '{', '}', false);
}

} // namespace

void tst_MidentClass::writesOneGroupAVariable()
{
    MidentClass ident;
    QCOMPARE(ident.CountVars(), 0);
    QCOMPARE(ident.MakeVarvalueString(), "");
    ident.AddVarValue("L", "12");
    ident.AddVarValue("D", "M8");
    QCOMPARE(ident.CountVars(), 2);
    QCOMPARE(ident.MakeVarvalueString(), "{L=12}{D=M8}");
    QCOMPARE(
        MidentClass::varValuListToString({value("L", "12"), value("D", "M8")}, '{', '}', false),
        "{L=12}{D=M8}");
}

void tst_MidentClass::writes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("group");

    QTest::newRow("plain") << "L"
                           << "12"
                           << "{L=12}";
    QTest::newRow("empty value") << "L"
                                 << ""
                                 << "{L=}";
    QTest::newRow("blanks stay") << "L"
                                 << " 1 2 "
                                 << "{L= 1 2 }";
    QTest::newRow("equals sign") << "L"
                                 << "a=b"
                                 << "{L=a\\=b}";
    QTest::newRow("braces") << "L"
                            << "{a}"
                            << "{L=\\{a\\}}";
    QTest::newRow("backslash") << "L"
                               << "a\\b"
                               << "{L=a\\\\b}";
    QTest::newRow("in the name") << "{="
                                 << "1"
                                 << "{\\{\\==1}";
}

void tst_MidentClass::writes()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QTEST(written(name, text), "group");
}

void tst_MidentClass::readsBackWhatItWrote_data()
{
    writes_data();
}

void tst_MidentClass::readsBackWhatItWrote()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    MidentClass ident;
    QVERIFY(ident.SplitVarValue(written("first", "1") + written(name, text)));
    QCOMPARE(ident.CountVars(), 2);
    QCOMPARE(ident.GetVarName(1), name);
    QCOMPARE(ident.GetVarValue(1), text);
}

void tst_MidentClass::splits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("nothing") << "" << QStringList();
    QTest::newRow("blanks only") << "  \t" << QStringList();
    QTest::newRow("blanks between groups") << " {A=1} \n {B=2}  " << QStringList{"A=1", "B=2"};
    QTest::newRow("with places") << "{A=1=2=3}" << QStringList{"A=1"};
    QTest::newRow("escaped letter") << "{A=\\x}" << QStringList{"A=x"};
}

void tst_MidentClass::splits()
{
    QFETCH(QString, text);
    MidentClass ident;
    QVERIFY(ident.SplitVarValue(text));
    QStringList entries;
    for (int i = 0; i < ident.CountVars(); ++i)
        entries.append(ident.GetVarName(i) + '=' + ident.GetVarValue(i));
    QTEST(entries, "entries");
}

void tst_MidentClass::refuses_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no group") << "A=1";
    QTest::newRow("text between groups") << "{A=1},{B=2}";
    QTest::newRow("not closed") << "{A=1";
    QTest::newRow("ends in an escape") << "{A=1\\";
    QTest::newRow("brace inside") << "{A={1}";
    QTest::newRow("no value") << "{A}";
    QTest::newRow("place without count") << "{A=1=2}";
    QTest::newRow("place is no number") << "{A=1=x=3}";
    QTest::newRow("too many parts") << "{A=1=2=3=4}";
    QTest::newRow("lone closing brace") << "}";
}

void tst_MidentClass::refuses()
{
    QFETCH(QString, text);
    MidentClass ident;
    ident.AddVarValue("old", "1");
    QVERIFY(!ident.SplitVarValue(text));
    QCOMPARE(ident.CountVars(), 0);
}

void tst_MidentClass::writesPlacesOnDemand()
{
    const TabVarValue placed("A", "1", "mm", 2, 5);
    QCOMPARE(MidentClass::varValuListToString({placed}, '{', '}', true), "{A=1=2=5}");
    QCOMPARE(MidentClass::varValuListToString({placed}, '{', '}', false), "{A=1}");
    QCOMPARE(MidentClass::varValuListToString({placed}, '[', ']', false), "[A=1]");
    QCOMPARE(placed.getUnit(), "mm");
}

void tst_MidentClass::entriesOutOfRangeAreEmpty()
{
    MidentClass ident;
    ident.AddVarValue("A", "1");
    QCOMPARE(ident.GetVarName(1), "");
    QCOMPARE(ident.GetVarValue(-1), "");
}

QTEST_GUILESS_MAIN(tst_MidentClass)
#include "tst_MidentClass.moc"
