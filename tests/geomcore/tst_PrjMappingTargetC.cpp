#include "RecordSamples.h"

#include <core/json/PJsonValue.h>
#include <geomcore/records/PrjMappingC.h>
#include <geomcore/records/PrjMappingTargetC.h>
#include <geomcore/records/ReleaseMappingC.h>

#include <QTest>

namespace {

/// Counts how many of it live.
class CountedCondition : public VarsetConditionI
{
public:
    explicit CountedCondition(bool holding = true)
        : m_holding(holding)
    {
        ++living;
    }
    ~CountedCondition() override { --living; }
    bool holds(const QHash<QString, MapVarValueC> &) const override { return m_holding; }
    bool holds(const VKTab::LineView &) const override { return m_holding; }
    std::shared_ptr<const VKTab::Program> program() const override { return {}; }
    QString getCondition() const override { return QStringLiteral("counted"); }

    static int living;

private:
    const bool m_holding;
};

int CountedCondition::living = 0;

QHash<QString, MapVarValueC> varset(const QHash<QString, QString> &values)
{
    QHash<QString, MapVarValueC> result;
    for (auto it = values.begin(); it != values.end(); ++it) {
        MapVarValueC value;
        value.setName(it.key());
        value.setValue(VKTab::Value(it.value()));
        result.insert(it.key(), value);
    }
    return result;
}

} // namespace

class tst_PrjMappingTargetC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsNotValid()
    {
        const PrjMappingTargetC target;
        QVERIFY(!target.isValid());
        QVERIFY(target.isNotFoundTarget());
        QVERIFY(target.getTargetPath().isEmpty());
        QCOMPARE(target.countLines(), 0);
        QVERIFY(target.getConditions().isEmpty());
        QVERIFY(target.getVarsetModifier().isEmpty());
    }

    void texts()
    {
        PrjMappingTargetC target;
        target.setTargetPath("cat/a.prj");
        target.setTargetVersion("v1");
        target.setTabVersion("v2");
        target.setValid(true);
        QCOMPARE(target.getTargetPath(), QString("cat/a.prj"));
        QCOMPARE(target.getTargetVersion(), QString("v1"));
        QCOMPARE(target.getTabVersion(), QString("v2"));
        QVERIFY(target.isValid());
        QVERIFY(!target.isNotFoundTarget());
    }

    void addLineIdReplacesTheWholeEntry()
    {
        PrjMappingTargetC target;
        target.addLineId(5, 17, PRJMAPPING::Mapped, "{D=4} -> 3");
        target.setLineConflicted(5, true);
        QVERIFY(target.getLineConflicted(5));
        QCOMPARE(target.getMappedLine(5).getVarsetList().size(), 1);

        target.addLineId(5, 18, PRJMAPPING::Verified, "kept literally\n{D=5} -> 4\n");
        const PrjMappingTargetLineC line = target.getMappedLine(5);
        QCOMPARE(line.getTargetLineId(), 18);
        QCOMPARE(line.getState(), PRJMAPPING::Verified);
        QCOMPARE(line.getExtended(), QString("kept literally\n{D=5} -> 4\n"));
        QCOMPARE(line.getVarsetList(), (QList<QPair<QString, int>>{{"{D=5}", 4}}));
        QVERIFY(!line.getConflict());
        QVERIFY(!target.getLineConflicted(5));
        QCOMPARE(target.countLines(), 1);
    }

    void setMappedLineKeepsTheConflict()
    {
        PrjMappingTargetC target;
        target.setMappedLine(5, PrjMappingTargetLineC(1, PRJMAPPING::Mapped, true, {}));
        QVERIFY(target.getLineConflicted(5));
    }

    void conflictOfAnUnknownLine()
    {
        PrjMappingTargetC target;
        target.setLineConflicted(5, true);
        QVERIFY(!target.getLineConflicted(5));
        QCOMPARE(target.countLines(), 0);
    }

    void unknownLine()
    {
        PrjMappingTargetC target;
        target.addLineId(5, 17, PRJMAPPING::Mapped, "x");
        QVERIFY(target.getMappedLine(6) == PrjMappingTargetLineC(-1, PRJMAPPING::ToCheck, ""));
        QVERIFY(target.getMappedLines().value(6) ==
                PrjMappingTargetLineC(-1, PRJMAPPING::ToCheck, ""));
        QVERIFY(!target.containsLine(6));
        target.removeLineId(6);
        QCOMPARE(target.countLines(), 1);
        target.removeLineId(5);
        QCOMPARE(target.countLines(), 0);
    }

    void getMappedLinesIsTheWholeTable()
    {
        QRandomGenerator random(3);
        const PrjMappingTargetC target = RecordSamples::randomTarget(random, 1000);
        const QHash<int, PrjMappingTargetLineC> lines = target.getMappedLines();
        QCOMPARE(int(lines.size()), target.countLines());
        int walked = 0;
        for (const LineTable::Iterator &entry : target.lines()) {
            QVERIFY(lines.value(entry.sourceLine()) == entry.line());
            ++walked;
        }
        QCOMPARE(walked, target.countLines());
    }

    void clearLines_data()
    {
        QTest::addColumn<bool>("keepVerified");
        QTest::addColumn<QList<int>>("left");
        QTest::newRow("true keeps the confirmed, the expired included") << true << QList<int>{3, 4};
        QTest::newRow("false keeps none") << false << QList<int>{};
    }
    void clearLines()
    {
        QFETCH(bool, keepVerified);
        QFETCH(QList<int>, left);
        PrjMappingTargetC target;
        target.addLineId(1, 10, PRJMAPPING::ToCheck, "");
        target.addLineId(2, 10, PRJMAPPING::Mapped, "");
        target.addLineId(3, 10, PRJMAPPING::Verified, "text");
        target.addLineId(4, -1, PRJMAPPING::Verified, "");
        target.addLineId(5, -1, PRJMAPPING::Mapped, "");
        target.addLineId(6, 10, PRJMAPPING::CheckState(3), "");
        const PrjMappingTargetC before = target;
        target.clearLines(keepVerified);
        QList<int> found;
        for (const LineTable::Iterator &entry : target.lines())
            found += entry.sourceLine();
        QCOMPARE(found, left);
        QCOMPARE(before.countLines(), 6);
        if (keepVerified)
            QCOMPARE(target.getMappedLine(3).getExtended(), QString("text"));
    }

    void copiesDoNotAlias()
    {
        PrjMappingTargetC stored = RecordSamples::target("cat/a.prj");
        stored.addLineId(1, 10, PRJMAPPING::Mapped, "");
        PrjMappingTargetC copy = stored;
        copy.addLineId(1, 11, PRJMAPPING::Verified, "");
        copy.addLineId(2, 12, PRJMAPPING::Mapped, "");
        copy.setTargetPath("cat/b.prj");
        copy.addCondition(new CountedCondition);
        QCOMPARE(stored.getMappedLine(1).getTargetLineId(), 10);
        QCOMPARE(stored.countLines(), 1);
        QCOMPARE(stored.getTargetPath(), QString("cat/a.prj"));
        QVERIFY(stored.getConditions().isEmpty());
    }

    void nullConditionsAndModifiersAreIgnored()
    {
        PrjMappingTargetC target;
        target.addCondition(nullptr);
        target.addModifier(nullptr);
        QVERIFY(target.getConditions().isEmpty());
        QVERIFY(target.getVarsetModifier().isEmpty());
    }

    void conditionsLiveAsLongAsAnyCopy()
    {
        QCOMPARE(CountedCondition::living, 0);
        {
            PrjMappingTargetC target;
            auto *first = new CountedCondition;
            auto *second = new CountedCondition;
            target.addCondition(first);
            target.addCondition(second);
            QCOMPARE(target.getConditions(), (QList<const VarsetConditionI *>{first, second}));
            PrjMappingTargetC copy = target;
            target.clearConditions();
            QVERIFY(target.getConditions().isEmpty());
            QCOMPARE(CountedCondition::living, 2);
            QCOMPARE(copy.getConditions(), (QList<const VarsetConditionI *>{first, second}));
        }
        QCOMPARE(CountedCondition::living, 0);
    }

    void conditionsHold_data()
    {
        QTest::addColumn<QList<bool>>("conditions");
        QTest::addColumn<bool>("holds");
        QTest::newRow("none holds") << QList<bool>{} << true;
        QTest::newRow("all") << QList<bool>{true, true} << true;
        QTest::newRow("not the first") << QList<bool>{false, true} << false;
        QTest::newRow("not the last") << QList<bool>{true, false} << false;
    }
    void conditionsHold()
    {
        QFETCH(QList<bool>, conditions);
        QFETCH(bool, holds);
        PrjMappingTargetC target;
        for (bool holding : conditions)
            target.addCondition(new CountedCondition(holding));
        QCOMPARE(target.conditionsHold(varset({})), holds);
    }

    void updateVarsetAppliesModifiersInOrder()
    {
        PrjMappingTargetC target;
        target.addModifier(new VarsetVarMappingC("A", "B"));
        target.addModifier(new VarsetVarMappingC("B", "C"));
        target.addModifier(new VarsetVarMappingC("", "D"));
        QCOMPARE(target.getVarsetModifier().size(), 2 + 1);
        const QHash<QString, MapVarValueC> result =
            target.updateVarset(varset({{"A", "1"}, {"B", "2"}, {"D", "4"}, {"E", "5"}}));
        QCOMPARE(result.value("A").getValue().toString(), QString("1"));
        QCOMPARE(result.value("B").getValue().toString(), QString("1"));
        // Sources are the line's own values, not those made by an earlier modifier.
        QCOMPARE(result.value("C").getValue().toString(), QString("2"));
        QVERIFY(!result.contains("D"));
        QCOMPARE(result.value("E").getValue().toString(), QString("5"));
        // Of two with one target the later wins.
        target.addModifier(new VarsetVarMappingC("E", "B"));
        QCOMPARE(target.updateVarset(varset({{"A", "1"}, {"E", "5"}}))["B"].getValue().toString(),
                 QString("5"));
        target.clearModifier();
        QVERIFY(target.updateVarset(varset({{"D", "4"}})).contains("D"));
    }

    // Of whatever class a condition is.
    void conditionsAreWritten()
    {
        PrjMappingTargetC target = RecordSamples::target("t.prj");
        target.addCondition(new CountedCondition);
        PrjMappingC mapping = RecordSamples::mapping("s.prj");
        mapping.addTarget(target);
        ReleaseMappingC release;
        release.addMapping(mapping);
        PJsonValue json;
        release.toJson(json, false);
        const PJsonValue written = json.value("mappings").at(0).value("targets").at(0);
        QCOMPARE(written.value("conditions").toByteArray(true), QByteArray("[\"counted\"]"));
    }
};

QTEST_GUILESS_MAIN(tst_PrjMappingTargetC)
#include "tst_PrjMappingTargetC.moc"
