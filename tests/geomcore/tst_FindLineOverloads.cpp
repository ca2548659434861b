#include "../support/TestTables.h"
#include "RecordSamples.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/records/PrjMappingC.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/LineView.h>

#include <QTest>

/// PrjMappingC::findLine takes a line's values or a view of the line: both must say the same.
class tst_FindLineOverloads : public QObject
{
    Q_OBJECT

private:
    static VKTab::ContentRef randomTable(QRandomGenerator &random)
    {
        using namespace VKTab;
        TableDescriptor descriptor;
        descriptor.fields = {TestTables::field("D", FieldType::Number), TestTables::field("T"),
                             TestTables::field("R", FieldType::Number, FieldKind::Range)};
        static const QStringList Numbers{"4", "4.0", "5", "", "-1", "1e1"};
        static const QStringList Texts{"a", "b", "4", "", "A"};
        static const QStringList Ranges{"10;12", "10", "", "4..6/1"};
        QString csv = "D,T,R\n";
        for (int i = 0; i < 60; ++i)
            csv += Numbers.at(random.bounded(Numbers.size())) + ',' +
                   Texts.at(random.bounded(Texts.size())) + ',' +
                   Ranges.at(random.bounded(Ranges.size())) + '\n';
        return TestTables::table(descriptor, csv);
    }

    static PrjMappingC randomMapping(QRandomGenerator &random)
    {
        static const QStringList Conditions{"D .EQ. 4",   "D .GT. 4",  "T .EQ. 'a'",
                                            "T .NE. '4'", "R .EQ. 10", "T .LT. D",
                                            "X .EQ. 1",   "T .EQ. ''", "D + 1 .EQ. 5"};
        PrjMappingC mapping;
        for (int i = 0; i < 4; ++i) {
            PrjMappingTargetC target = RecordSamples::target(i == 3 ? "" : "cat/t.prj");
            for (quint32 k = random.bounded(3); k > 0; --k)
                target.addCondition(
                    VarsetConditionC::fromText(Conditions.at(random.bounded(Conditions.size()))));
            for (int line = 1; line <= 60; ++line) {
                if (random.bounded(2) == 0)
                    target.addLineId(line, int(random.bounded(5)) - 1,
                                     PRJMAPPING::CheckState(random.bounded(3)), QString());
            }
            mapping.addTarget(target);
        }
        return mapping;
    }

    /// How many lines several targets hold and one beyond the first was chosen for.
    static int compareAllLines(const PrjMappingC &mapping, const VKTab::ContentRef &table)
    {
        int chosenLater = 0;
        for (int id = 1; id <= 60; ++id) {
            const VKTab::LineId lineId(id);
            const PrjMappingLineC byValues =
                mapping.findLine(id, createVarsetFromVKTable(table, lineId, {}));
            const PrjMappingLineC byView = mapping.findLine(id, VKTab::LineView(table, lineId));
            if (byValues.isValid() != byView.isValid() || byValues.isFound() != byView.isFound() ||
                byValues.getTargetIndex() != byView.getTargetIndex() ||
                byValues.getTargetLineId() != byView.getTargetLineId() ||
                byValues.getSourceLineId() != byView.getSourceLineId() ||
                byValues.getCheckState() != byView.getCheckState())
                return -1000;
            bool earlier = false;
            for (int i = 0; i < byView.getTargetIndex(); ++i)
                earlier = earlier || mapping.findTarget(i).containsLine(id);
            chosenLater += earlier ? 1 : 0;
        }
        return chosenLater;
    }

private Q_SLOTS:
    void bothSayTheSame()
    {
        QRandomGenerator random(11);
        int chosenLater = 0;
        for (int round = 0; round < 40; ++round) {
            const int chosen = compareAllLines(randomMapping(random), randomTable(random));
            QVERIFY(chosen >= 0);
            chosenLater += chosen;
        }
        // The conditions did decide.
        QVERIFY(chosenLater > 100);
    }
};

QTEST_GUILESS_MAIN(tst_FindLineOverloads)
#include "tst_FindLineOverloads.moc"
