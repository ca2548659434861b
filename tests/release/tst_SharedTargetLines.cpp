#include <release/assign/SharedTargetLines.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QTest>

using PRJMAPPING::CheckState;
using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

/// A project with one line that goes to a line of a target.
PrjMappingC project(const QString &path, const QString &target, int targetLine, CheckState state)
{
    PrjMappingC mapping;
    mapping.setSourcePath(path);
    mapping.setSourceVersion("v1");
    mapping.addTarget(target, QString());
    mapping.changeTarget(0, [&](PrjMappingTargetC &changed) {
        changed.addLineId(1, targetLine, state, "text");
        changed.addLineId(2, 50, Mapped, QString());
        changed.setLineConflicted(1, true);
    });
    mapping.updateMappingState();
    return mapping;
}

} // namespace

class tst_SharedTargetLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void onlyChosenProjects();
    void twoTargetsOfOneProject();
};

void tst_SharedTargetLines::states_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("line");
    QTest::addColumn<CheckState>("other");
    QTest::addColumn<CheckState>("expected");
    QTest::newRow("mapped too") << "new/a.prj" << 7 << Mapped << ToCheck;
    QTest::newRow("confirmed there") << "new/a.prj" << 7 << Verified << ToCheck;
    QTest::newRow("proposed there") << "new/a.prj" << 7 << ToCheck << Mapped;
    QTest::newRow("path written otherwise") << "new\\a.prj" << 7 << Mapped << ToCheck;
    QTest::newRow("another line") << "new/a.prj" << 8 << Mapped << Mapped;
    QTest::newRow("another project") << "new/b.prj" << 7 << Mapped << Mapped;
    QTest::newRow("no line") << "new/a.prj" << -1 << Mapped << Mapped;
}

void tst_SharedTargetLines::states()
{
    QFETCH(QString, path);
    QFETCH(int, line);
    QFETCH(CheckState, other);
    ReleaseMappingC release;
    PrjMappingC first = project("old/a.prj", "new/a.prj", 7, Mapped);
    first.changeTarget(0, [](PrjMappingTargetC &target) { target.removeLineId(2); });
    release.addMapping(first);
    release.addMapping(project("old/b.prj", path, line, other));
    VelkRelease::doubtSharedTargetLines(release, {0, 1});
    const PrjMappingC mapping = release.mappingAt(0);
    const PrjMappingTargetLineC entry = mapping.targetAt(0).getMappedLine(1);
    QTEST(entry.getState(), "expected");
    QCOMPARE(entry.getTargetLineId(), 7);
    QCOMPARE(entry.getExtended(), "text");
    QVERIFY(entry.getConflict());
    QCOMPARE(mapping.getMappingState().testFlag(PRJMAPPING::StateUnverified),
             entry.getState() == ToCheck);
    // Confirmed decisions stay.
    if (other == Verified)
        QCOMPARE(release.mappingAt(1).targetAt(0).getMappedLine(1).getState(), Verified);
}

void tst_SharedTargetLines::onlyChosenProjects()
{
    ReleaseMappingC release;
    release.addMapping(project("old/a.prj", "new/a.prj", 7, Mapped));
    release.addMapping(project("old/b.prj", "new/a.prj", 7, Mapped));
    VelkRelease::doubtSharedTargetLines(release, {1});
    QCOMPARE(release.mappingAt(0).targetAt(0).getMappedLine(1).getState(), Mapped);
    QCOMPARE(release.mappingAt(1).targetAt(0).getMappedLine(1).getState(), ToCheck);
}

void tst_SharedTargetLines::twoTargetsOfOneProject()
{
    ReleaseMappingC release;
    PrjMappingC mapping = project("old/a.prj", "new/a.prj", 7, Mapped);
    mapping.addTarget(mapping.findTarget(0)); // its own lines are looked at by its own check
    release.addMapping(mapping);
    release.addMapping(project("old/b.prj", "new/b.prj", 7, Mapped));
    VelkRelease::doubtSharedTargetLines(release, {0, 1});
    QCOMPARE(release.mappingAt(0).targetAt(1).getMappedLine(1).getState(), Mapped);
}

QTEST_GUILESS_MAIN(tst_SharedTargetLines)
#include "tst_SharedTargetLines.moc"
