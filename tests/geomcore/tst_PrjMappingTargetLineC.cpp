#include <geomcore/records/PrjMappingTargetLineC.h>

#include <QTest>

using Combinations = QList<QPair<QString, int>>;

class tst_PrjMappingTargetLineC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsAnUnknownLine()
    {
        const PrjMappingTargetLineC line;
        QCOMPARE(line.getTargetLineId(), -1);
        QCOMPARE(line.getState(), PRJMAPPING::ToCheck);
        QCOMPARE(line.getExtended(), QString());
        QVERIFY(!line.getConflict());
        QVERIFY(line == PrjMappingTargetLineC(-1, PRJMAPPING::ToCheck, ""));
    }

    void keepsWhatItIsGiven()
    {
        const PrjMappingTargetLineC line(17, PRJMAPPING::Mapped, "any text");
        QCOMPARE(line.getTargetLineId(), 17);
        QCOMPARE(line.getState(), PRJMAPPING::Mapped);
        QCOMPARE(line.getExtended(), QString("any text"));
        QVERIFY(line.getVarsetList().isEmpty());
    }

    void addVarsetAppendsARow()
    {
        PrjMappingTargetLineC line(17, PRJMAPPING::Verified, QString());
        line.addVarset("{D=4}{L=10}", 3);
        QCOMPARE(line.getExtended(), QString("{D=4}{L=10} -> 3"));
        const PrjMappingTargetLineC before = line;
        line.addVarset("{D=5}{L=10}", -1);
        QCOMPARE(line.getExtended(), QString("{D=4}{L=10} -> 3\n{D=5}{L=10} -> -1"));
        QCOMPARE(line.getVarsetList(), (Combinations{{"{D=4}{L=10}", 3}, {"{D=5}{L=10}", -1}}));
        QCOMPARE(line.getTargetLineId(), 17);
        QCOMPARE(line.getState(), PRJMAPPING::Verified);
        QCOMPARE(before.getExtended(), QString("{D=4}{L=10} -> 3"));
    }

    void clearVarsetListEmptiesTheText()
    {
        PrjMappingTargetLineC line(17, PRJMAPPING::Mapped, "note\n{D=4} -> 3");
        line.clearVarsetList();
        QCOMPARE(line.getExtended(), QString());
        QVERIFY(line.getVarsetList().isEmpty());
        line.addVarset("{D=4}", 5);
        QCOMPARE(line.getExtended(), QString("{D=4} -> 5"));
        QCOMPARE(line.getTargetLineId(), 17);
    }

    void rowBehindAFinalLineFeed()
    {
        PrjMappingTargetLineC line(17, PRJMAPPING::Mapped, "note\n");
        line.addVarset("{D=4}", 5);
        QCOMPARE(line.getExtended(), QString("note\n{D=4} -> 5"));
    }

    void rowsAreRead_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Combinations>("list");
        QTest::newRow("empty") << "" << Combinations{};
        QTest::newRow("one") << "{D=4} -> 17" << Combinations{{"{D=4}", 17}};
        QTest::newRow("empty value") << "{D=} -> 17" << Combinations{{"{D=}", 17}};
        QTest::newRow("rows that say nothing are passed over")
            << "note\n{D=4} -> 1\n{D=5}\n{D=6} -> x\n\n{D=7} -> 2"
            << Combinations{{"{D=4}", 1}, {"{D=7}", 2}};
        QTest::newRow("arrow inside a value")
            << "{T=a -> 5} -> 6" << Combinations{{"{T=a -> 5}", 6}};
        QTest::newRow("escaped signs")
            << "{A\\=\\{=\\}\\\\} -> 6" << Combinations{{"{A\\=\\{=\\}\\\\}", 6}};
        QTest::newRow("equals sign in a value") << "{A=b=c} -> 6" << Combinations{{"{A=b=c}", 6}};
        QTest::newRow("blanks between groups")
            << "{A=1} {B=2} -> 6" << Combinations{{"{A=1} {B=2}", 6}};
        QTest::newRow("no groups") << " -> 6" << Combinations{};
        QTest::newRow("group without value") << "{A} -> 6" << Combinations{};
        QTest::newRow("group left open") << "{A=1 -> 6" << Combinations{};
        QTest::newRow("text outside of a group") << "{A=1}x -> 6" << Combinations{};
        QTest::newRow("brace inside a group") << "{A={1} -> 6" << Combinations{};
        QTest::newRow("line beyond an int") << "{A=1} -> 99999999999" << Combinations{};
        QTest::newRow("line feed of another system") << "{A=1} -> 6\r\n{A=2} -> 7\r\n"
                                                     << Combinations{{"{A=1}", 6}, {"{A=2}", 7}};
    }
    void rowsAreRead()
    {
        QFETCH(QString, text);
        QFETCH(Combinations, list);
        const PrjMappingTargetLineC line(1, PRJMAPPING::Mapped, text);
        QCOMPARE(line.getVarsetList(), list);
        QCOMPARE(line.getExtended(), text);
    }

    void equality()
    {
        const PrjMappingTargetLineC line(1, PRJMAPPING::Mapped, "a");
        QVERIFY(line == PrjMappingTargetLineC(1, PRJMAPPING::Mapped, "a"));
        QVERIFY(!(line == PrjMappingTargetLineC(2, PRJMAPPING::Mapped, "a")));
        QVERIFY(!(line == PrjMappingTargetLineC(1, PRJMAPPING::Verified, "a")));
        QVERIFY(!(line == PrjMappingTargetLineC(1, PRJMAPPING::Mapped, "b")));
        QVERIFY(!(line == PrjMappingTargetLineC(1, PRJMAPPING::Mapped, true, line.extendedText())));
    }
};

QTEST_GUILESS_MAIN(tst_PrjMappingTargetLineC)
#include "tst_PrjMappingTargetLineC.moc"
