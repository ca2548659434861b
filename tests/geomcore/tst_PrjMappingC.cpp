#include "RecordSamples.h"

#include <geomcore/records/MappingNodeC.h>
#include <geomcore/records/PrjMappingC.h>

#include <QTest>

using PRJMAPPING::MappingState;
using Entries = QList<QPair<int, int>>; ///< target line, state

Q_DECLARE_METATYPE(QList<Entries>)

namespace {

QHash<QString, MapVarValueC> values(const QString &name, const QString &text)
{
    MapVarValueC value;
    value.setName(name);
    value.setValue(VKTab::Value(text));
    value.setNumeric(true);
    return {{name, value}};
}

PrjMappingTargetC targetWith(const QString &path, const QList<int> &lines, int targetLine,
                             const QString &condition = QString())
{
    PrjMappingTargetC target = RecordSamples::target(path);
    for (int line : lines)
        target.addLineId(line, targetLine, PRJMAPPING::Mapped, QString());
    if (!condition.isEmpty())
        target.addCondition(VarsetConditionC::fromText(condition));
    return target;
}

} // namespace

class tst_PrjMappingC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsNotValid()
    {
        PrjMappingC mapping;
        QVERIFY(!mapping.isValid());
        QCOMPARE(mapping.getMappingState(), MappingState());
        QCOMPARE(mapping.getNotFoundTarget(), -1);
        QVERIFY(mapping.getTargets().isEmpty());
        mapping.setSourcePath("cat/a.prj");
        QVERIFY(mapping.isValid());
    }

    void texts()
    {
        const PrjMappingC mapping = RecordSamples::mapping("cat\\a.prj", "v1", "v2");
        QCOMPARE(mapping.getSourcePath(), QString("cat\\a.prj"));
        QCOMPARE(mapping.getSourceVersion(), QString("v1"));
        QCOMPARE(mapping.getTabVersion(), QString("v2"));
    }

    void thereIsOneNotFoundTarget()
    {
        PrjMappingC mapping = RecordSamples::mapping("cat/a.prj", "v1", "v2");
        mapping.addTarget("cat/b.prj", QString());
        QCOMPARE(mapping.addTarget(QString(), QString()), 1);
        mapping.changeTarget(1, [](PrjMappingTargetC &target) {
            target.addLineId(7, -1, PRJMAPPING::Verified, QString());
        });
        QCOMPARE(mapping.addTarget(QString(), QString()), 1);
        QCOMPARE(mapping.countTargets(), 2);
        QCOMPARE(mapping.targetAt(1).countLines(), 1);
    }

    void setTargets()
    {
        PrjMappingC mapping = RecordSamples::mapping("cat/a.prj", "v1", "v2");
        mapping.addTarget("cat/b.prj", QString());
        mapping.setTargets({targetWith("cat/c.prj", {1}, 5), targetWith("cat/d.prj", {2}, -1)});
        QCOMPARE(mapping.countTargets(), 2);
        QCOMPARE(mapping.targetAt(0).getTargetPath(), "cat/c.prj");
        QCOMPARE(mapping.getMappingState(),
                 PRJMAPPING::StateIncomplete | PRJMAPPING::StateUnmapped);
    }

    void changeOfATargetStaysInItsMapping()
    {
        PrjMappingC mapping = RecordSamples::mapping("cat/a.prj", "v1", "v2");
        mapping.addTarget(targetWith("cat/b.prj", {1}, 5));
        const PrjMappingC before = mapping;
        mapping.changeTarget(0, [](PrjMappingTargetC &target) { target.removeLineId(1); });
        QCOMPARE(mapping.targetAt(0).countLines(), 0);
        QCOMPARE(before.targetAt(0).countLines(), 1);
    }

    void updateMappingState_data()
    {
        QTest::addColumn<QList<Entries>>("targets");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::newRow("no target") << QList<Entries>{} << 0 << 0x002;
        QTest::newRow("no line in any target") << QList<Entries>{{}, {}} << 0 << 0x002;
        QTest::newRow("to check") << QList<Entries>{{{5, 0}}} << 0 << 0x080;
        QTest::newRow("mapped") << QList<Entries>{{{5, 1}}} << 0 << 0x002;
        QTest::newRow("verified") << QList<Entries>{{{5, 2}}} << 0 << 0x200;
        QTest::newRow("state 3") << QList<Entries>{{{5, 3}}} << 0 << 0x080;
        QTest::newRow("no line, to check") << QList<Entries>{{{-1, 0}}} << 0 << 0x100;
        QTest::newRow("no line, mapped") << QList<Entries>{{{-1, 1}}} << 0 << 0x100;
        QTest::newRow("no line, state 3") << QList<Entries>{{{-1, 3}}} << 0 << 0x100;
        QTest::newRow("expired") << QList<Entries>{{{-1, 2}}} << 0 << 0x200;
        QTest::newRow("fully confirmed, expired lines included")
            << QList<Entries>{{{5, 2}, {6, 2}}, {{-1, 2}}} << 0x382 << 0x200;
        QTest::newRow("one of each in one target")
            << QList<Entries>{{{5, 0}, {5, 1}, {5, 2}, {-1, 0}}} << 0 << 0x382;
        QTest::newRow("one of each in several targets")
            << QList<Entries>{{{5, 0}}, {{5, 1}}, {{5, 2}}, {{-1, 0}}} << 0 << 0x382;
        QTest::newRow("usable, reserved and table error stay")
            << QList<Entries>{{{5, 2}}} << 0xC01 << 0xE01;
        QTest::newRow("all else goes") << QList<Entries>{{{5, 2}}} << 0x3FE << 0x200;
        QTest::newRow("usable alone") << QList<Entries>{{{5, 1}}} << 1 << 0x003;
    }
    void updateMappingState()
    {
        QFETCH(QList<Entries>, targets);
        QFETCH(int, before);
        QFETCH(int, after);
        PrjMappingC mapping;
        for (const Entries &entries : targets) {
            PrjMappingTargetC target = RecordSamples::target("cat/t.prj");
            int id = 0;
            for (const auto &[line, state] : entries)
                target.addLineId(++id, line, PRJMAPPING::CheckState(state), "");
            mapping.addTarget(target);
        }
        mapping.setMappingState(MappingState::fromInt(before));
        QCOMPARE(mapping.getMappingState().toInt(), before);
        mapping.updateMappingState();
        QCOMPARE(mapping.getMappingState().toInt(), after);
    }

    void changingTargetsRefreshesTheState()
    {
        PrjMappingC mapping = RecordSamples::mapping("cat/a.prj");
        mapping.setMappingState(PRJMAPPING::StateTableError);
        PrjMappingTargetC target = targetWith("cat/t.prj", {1}, 5);
        mapping.addTarget(target);
        QCOMPARE(mapping.getMappingState().toInt(), 0x802);
        target.addLineId(1, 5, PRJMAPPING::Verified, "");
        mapping.updateTarget(0, target);
        QCOMPARE(mapping.getMappingState().toInt(), 0xA00);
        mapping.insertTarget(0, targetWith("", {2}, -1));
        QCOMPARE(mapping.getMappingState().toInt(), 0xB00);
        mapping.removeTarget(0);
        QCOMPARE(mapping.getMappingState().toInt(), 0xA00);
        mapping.removeTarget(0);
        QCOMPARE(mapping.getMappingState().toInt(), 0x802);
        mapping.setMappingState(PRJMAPPING::StateUsable);
        QCOMPARE(mapping.getMappingState().toInt(), 1);
    }

    void addTargetAppends()
    {
        PrjMappingC mapping;
        QCOMPARE(mapping.addTarget("cat/a.prj", "v1"), 0);
        QCOMPARE(mapping.getNotFoundTarget(), -1);
        QCOMPARE(mapping.addTarget("", ""), 1);
        QCOMPARE(mapping.getNotFoundTarget(), 1);
        QCOMPARE(mapping.addTarget(RecordSamples::target("cat/b.prj")), 2);
        QCOMPARE(mapping.getNotFoundTarget(), 1);
        QVERIFY(mapping.findTarget(0).isValid());
        QCOMPARE(mapping.findTarget(0).getTargetVersion(), QString("v1"));
        QVERIFY(mapping.findTarget(1).isValid());
        QCOMPARE(mapping.findTarget(2).getTargetPath(), QString("cat/b.prj"));
        QCOMPARE(mapping.getTargets().size(), 3);
    }

    void insertTarget_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("stands");
        QTest::addColumn<QString>("order");
        QTest::newRow("first") << 0 << 0 << "n a b -";
        QTest::newRow("between") << 1 << 1 << "a n b -";
        QTest::newRow("ahead of the not-found target") << 2 << 2 << "a b n -";
        QTest::newRow("end") << 3 << 3 << "a b - n";
        QTest::newRow("below range") << -4 << 0 << "n a b -";
        QTest::newRow("beyond range") << 9 << 3 << "a b - n";
    }
    void insertTarget()
    {
        QFETCH(int, index);
        QFETCH(int, stands);
        QFETCH(QString, order);
        PrjMappingC mapping;
        mapping.addTarget("a", "");
        mapping.addTarget("b", "");
        mapping.addTarget("", "");
        QCOMPARE(mapping.insertTarget(index, RecordSamples::target("n")), stands);
        QStringList paths;
        for (const PrjMappingTargetC &target : mapping.getTargets())
            paths += target.getTargetPath().isEmpty() ? "-" : target.getTargetPath();
        QCOMPARE(paths.join(' '), order);
    }

    void insertTargetNeverReplaces()
    {
        PrjMappingC mapping;
        mapping.addTarget("a", "v1");
        QCOMPARE(mapping.insertTarget(0, targetWith("a", {}, 0)), 0);
        QCOMPARE(mapping.getTargets().size(), 2);
        QCOMPARE(mapping.findTarget(1).getTargetVersion(), QString("v1"));
    }

    void indexesOutOfRange_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("-1") << -1;
        QTest::newRow("count") << 1;
        QTest::newRow("far") << 1000;
    }
    void indexesOutOfRange()
    {
        QFETCH(int, index);
        PrjMappingC mapping;
        mapping.addTarget("a", "");
        QVERIFY(!mapping.findTarget(index).isValid());
        mapping.updateTarget(index, RecordSamples::target("b"));
        mapping.removeTarget(index);
        QCOMPARE(mapping.getTargets().size(), 1);
        QCOMPARE(mapping.findTarget(0).getTargetPath(), QString("a"));
    }

    void removeTargetMovesLaterOnesDown()
    {
        PrjMappingC mapping;
        for (const char *path : {"a", "b", ""})
            mapping.addTarget(path, "");
        mapping.removeTarget(0);
        QCOMPARE(mapping.findTarget(0).getTargetPath(), QString("b"));
        QCOMPARE(mapping.getNotFoundTarget(), 1);
        mapping.removeTarget(mapping.getNotFoundTarget());
        QCOMPARE(mapping.getNotFoundTarget(), -1);
    }

    void aChangedTargetCountsOnlyWhenWrittenBack()
    {
        PrjMappingC mapping = RecordSamples::mapping("cat/a.prj");
        mapping.addTarget(targetWith("t", {1}, 5));
        const PrjMappingC stored = mapping;
        PrjMappingTargetC target = mapping.findTarget(0);
        target.addLineId(1, 6, PRJMAPPING::Verified, "");
        QCOMPARE(mapping.findTarget(0).getMappedLine(1).getTargetLineId(), 5);
        mapping.updateTarget(0, target);
        QCOMPARE(mapping.findTarget(0).getMappedLine(1).getTargetLineId(), 6);
        QCOMPARE(stored.findTarget(0).getMappedLine(1).getTargetLineId(), 5);
        QCOMPARE(stored.getMappingState().toInt(), 0x002);
    }

    void containsConflicts()
    {
        PrjMappingC mapping;
        QVERIFY(!mapping.getContainsConflicts());
        mapping.addTarget(targetWith("a", {1, 2}, 5));
        PrjMappingTargetC target = targetWith("b", {3}, 5);
        mapping.addTarget(target);
        QVERIFY(!mapping.getContainsConflicts());
        target.setLineConflicted(3, true);
        mapping.updateTarget(1, target);
        QVERIFY(mapping.getContainsConflicts());
        target.setLineConflicted(3, true);
        target.setLineConflicted(3, false);
        mapping.updateTarget(1, target);
        QVERIFY(!mapping.getContainsConflicts());
        target.setLineConflicted(3, true);
        target.removeLineId(3);
        mapping.updateTarget(1, target);
        QVERIFY(!mapping.getContainsConflicts());
    }

    void findLineUnknown()
    {
        PrjMappingC mapping;
        mapping.addTarget(targetWith("a", {1}, 5));
        const PrjMappingLineC line = mapping.findLine(2, QHash<QString, MapVarValueC>());
        QVERIFY(!line.isValid());
        QVERIFY(!line.isFound());
        QCOMPARE(line.getSourceLineId(), 2);
        QCOMPARE(line.getTargetIndex(), -1);
        QCOMPARE(line.getTargetLineId(), -1);
        QVERIFY(!mapping.findTarget(line.getTargetIndex()).isValid());
    }

    void findLineGivesTheEntrysOwn()
    {
        PrjMappingC mapping;
        PrjMappingTargetC target = RecordSamples::target("a");
        target.addLineId(1, 5, PRJMAPPING::Verified, "{D=4} -> 9");
        mapping.addTarget(target);
        const PrjMappingLineC line = mapping.findLine(1, values("D", "4"));
        QVERIFY(line.isValid());
        QVERIFY(line.isFound());
        QCOMPARE(line.getSourceLineId(), 1);
        QCOMPARE(line.getTargetLineId(), 5);
        QCOMPARE(line.getCheckState(), PRJMAPPING::Verified);
        QCOMPARE(line.getTargetIndex(), 0);
    }

    void findLineChooses_data()
    {
        QTest::addColumn<QStringList>("targets"); // path|condition|holds the line
        QTest::addColumn<int>("chosen");
        QTest::newRow("one, its condition no longer holds") << QStringList{"a|D .EQ. 5|1"} << 0;
        QTest::newRow("one in the not-found target") << QStringList{"a||0", "||1"} << 1;
        QTest::newRow("first whose conditions hold")
            << QStringList{"a|D .EQ. 5|1", "b|D .EQ. 4|1", "c||1"} << 1;
        QTest::newRow("without conditions") << QStringList{"a|D .EQ. 5|1", "c||1"} << 1;
        QTest::newRow("the first if none holds")
            << QStringList{"a|D .EQ. 5|1", "b|D .EQ. 6|1"} << 0;
        QTest::newRow("a real target before the not-found one")
            << QStringList{"||1", "b|D .EQ. 4|1"} << 1;
        QTest::newRow("the not-found one as first candidate if no other holds")
            << QStringList{"||1", "b|D .EQ. 5|1"} << 0;
        QTest::newRow("a target that lacks the line is none")
            << QStringList{"a||0", "b|D .EQ. 5|1", "c|D .EQ. 6|1"} << 1;
        QTest::newRow("a condition that does not parse never holds")
            << QStringList{"a|D .EQ.|1", "b|D .EQ. 4|1"} << 1;
    }
    void findLineChooses()
    {
        QFETCH(QStringList, targets);
        QFETCH(int, chosen);
        PrjMappingC mapping;
        for (qsizetype i = 0; i < targets.size(); ++i) {
            const QStringList parts = targets[i].split('|');
            const QList<int> lines = parts[2] == "1" ? QList<int>{7} : QList<int>{};
            mapping.addTarget(targetWith(parts[0], lines, int(i), parts[1]));
        }
        const PrjMappingLineC line = mapping.findLine(7, values("D", "4"));
        QVERIFY(line.isValid());
        QCOMPARE(line.getTargetIndex(), chosen);
        QCOMPARE(line.getTargetLineId(), chosen);
        QCOMPARE(line.isFound(), !targets[chosen].startsWith('|'));
    }

    void isFoundWantsPathAndLine_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("line");
        QTest::addColumn<bool>("found");
        QTest::newRow("both") << "a" << 0 << true;
        QTest::newRow("no line") << "a" << -1 << false;
        QTest::newRow("no path") << "" << 5 << false;
        QTest::newRow("neither") << "" << -1 << false;
    }
    void isFoundWantsPathAndLine()
    {
        QFETCH(QString, path);
        QFETCH(int, line);
        QFETCH(bool, found);
        PrjMappingC mapping;
        mapping.addTarget(targetWith(path, {7}, line));
        const PrjMappingLineC result = mapping.findLine(7, QHash<QString, MapVarValueC>());
        QVERIFY(result.isValid());
        QCOMPARE(result.isFound(), found);
    }

    void lineBuiltByHand()
    {
        PrjMappingLineC line;
        QVERIFY(!line.isValid());
        QVERIFY(!line.isFound());
        QCOMPARE(line.getTargetIndex(), -1);
        line.setValid(true);
        line.setSourceLineId(3);
        line.setTargetLineId(4);
        line.setTargetIndex(1);
        QVERIFY(line.isValid());
        QVERIFY(line.isFound());
        QCOMPARE(line.getSourceLineId(), 3);
        QCOMPARE(line.getTargetLineId(), 4);
        QCOMPARE(line.getTargetIndex(), 1);
        line.setTargetLineId(-1);
        QVERIFY(!line.isFound());
    }

    void verifyAll()
    {
        PrjMappingC mapping;
        PrjMappingTargetC target = RecordSamples::target("a");
        target.addLineId(1, 5, PRJMAPPING::ToCheck, "text");
        target.addLineId(2, 6, PRJMAPPING::CheckState(4), "");
        target.setLineConflicted(1, true);
        mapping.addTarget(target);
        mapping.addTarget(targetWith("", {3}, -1));
        QCOMPARE(mapping.getMappingState().toInt(), 0x180);
        mapping.verifyAll();
        QCOMPARE(mapping.getMappingState().toInt(), 0x200);
        const PrjMappingTargetLineC line = mapping.findTarget(0).getMappedLine(1);
        QCOMPARE(line.getState(), PRJMAPPING::Verified);
        QCOMPARE(line.getTargetLineId(), 5);
        QCOMPARE(line.getExtended(), QString("text"));
        QVERIFY(line.getConflict());
        QCOMPARE(mapping.findTarget(0).getMappedLine(2).getState(), PRJMAPPING::Verified);
        QCOMPARE(mapping.findTarget(1).getMappedLine(3).getState(), PRJMAPPING::Verified);
        QCOMPARE(mapping.findTarget(1).getMappedLine(3).getTargetLineId(), -1);
    }

    void countsAreTheSumOfTheTargets()
    {
        QRandomGenerator random(5);
        PrjMappingC mapping;
        LineCounts expected;
        for (int i = 0; i < 5; ++i) {
            mapping.addTarget(RecordSamples::randomTarget(random, 100));
            for (const PrjMappingTargetLineC &line : mapping.findTarget(i).getMappedLines())
                expected.add(line.getTargetLineId(), line.getState(), line.getConflict());
        }
        QCOMPARE(mapping.lineCounts(), expected);
    }

    void mappingNode()
    {
        MappingNodeC node;
        QVERIFY(!node.getMapping().isValid());
        QVERIFY(!node.getIsLeaf());
        node.setMapping(RecordSamples::mapping("cat/a.prj"));
        node.isLeaf(true);
        MappingNodeC copy;
        copy = node;
        QVERIFY(copy.getIsLeaf());
        QCOMPARE(copy.getMapping().getSourcePath(), QString("cat/a.prj"));
        copy.mapping().setSourcePath("cat/b.prj");
        QCOMPARE(copy.getMapping().getSourcePath(), QString("cat/b.prj"));
        QCOMPARE(node.getMapping().getSourcePath(), QString("cat/a.prj"));
        copy.isLeaf(false);
        QVERIFY(!copy.getIsLeaf());
    }
};

QTEST_GUILESS_MAIN(tst_PrjMappingC)
#include "tst_PrjMappingC.moc"
