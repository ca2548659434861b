#include "../support/TestCatalog.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <release/review/OpenReason.h>

#include <QScopeGuard>
#include <QTest>

using namespace VelkRelease;
using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

ReleaseMappingC releaseOf(const QList<PrjMappingC> &mappings)
{
    ReleaseMappingC release;
    for (const PrjMappingC &mapping : mappings)
        release.addMapping(mapping);
    return release;
}

/// "1:clash 2:equal"
QString textOf(const ProjectOpenReasons &reasons)
{
    QStringList texts;
    for (const OpenLineReason &line : reasons.lines)
        texts << QString::number(line.line) + u':' + openReasonKey(line.reason);
    return texts.join(u' ');
}

/// What a row of reasons() does beyond the tables.
using Edit = std::function<void(PrjMappingC &)>;

} // namespace
Q_DECLARE_METATYPE(Edit)

class tst_OpenReason : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reasons_data();
    void reasons();
    void settledLinesAreNotOpen();
    void eachLineOnce();
    void unreadable_data();
    void unreadable();
    void colleague();
    void keysDiffer();
    void wholeRelease();
    void cancelled();
};

void tst_OpenReason::reasons_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &source, const QByteArray &target,
                        const char *expected, const Edit &edit = {}) {
        QTest::newRow(name) << source << target << edit << expected;
    };
    // Line 1 is open without a target line, unless the row enters it itself.
    const QByteArray header = "Name,D:n,L:n,W\n";
    const QByteArray bolt = "B8,8,20,steel\n";
    const auto proposed = [](int targetLine) {
        return [targetLine](PrjMappingC &mapping) {
            enter(mapping, 0, 1, targetLine, ToCheck);
        };
    };
    const auto notFound = [](PrjMappingC &mapping) {
        enter(mapping, 1, 1, -1, ToCheck);
    };
    const auto withFormula = [notFound](const QString &formula) {
        return [=](PrjMappingC &mapping) {
            addFormula(mapping, 0, formula);
            notFound(mapping);
        };
    };

    row("equal and not confirmed", header + bolt, header + bolt, "1:unconfirmed", proposed(1));
    row("equal line that nobody assigned", header + bolt, header + bolt, "1:unconfirmed");
    row("no line is like it", header + bolt, header + "N77,77,999,brass\nN78,78,998,brass\n",
        "1:unlike");
    row("the proposed line differs", header + bolt, header + "B8,8,25,brass\n", "1:unlike",
        proposed(1));
    row("two equal lines", header + bolt, header + bolt + bolt + "B9,9,9,tin\n", "1:equal");
    row("two equal lines, one proposed", header + bolt, header + bolt + bolt + "B9,9,9,tin\n",
        "1:equal", proposed(2));
    row("shares its line with another", header + bolt + bolt + "B9,9,9,tin\n", header + bolt,
        "1:equal", [](PrjMappingC &mapping) {
            enter(mapping, 0, 1, 1, ToCheck);
            enter(mapping, 0, 2, 1, Verified);
        });
    row("nothing in common", header + bolt, "Number:n,Colour\n1,red\n", "1:column");
    row("identifying column renamed", header + bolt, "Code,D:n,L:n,W\nB8,8,20,steel\n", "1:column");
    row("renamed and mapped", header + bolt, "Code,D:n,L:n,W\nB8,8,20,steel\n", "1:unconfirmed",
        [notFound](PrjMappingC &mapping) {
            addRename(mapping, 0, "Name", "Code");
            notFound(mapping);
        });
    row("less than half is compared", "Name,A,B,C,E\nB8,1,2,3,4\n", "Name\nB8\n", "1:column");
    row("values that count are those of the line", "Name,A,B,C,E\nB8,,,,\n", "Name\nB8\n",
        "1:unconfirmed");
    row("formula without a value", header + bolt, header + bolt, "1:formula",
        withFormula("D = L / (L - 20)"));
    row("formula that gives one", header + bolt, header + bolt, "1:unconfirmed",
        withFormula("D = L / 2.5"));
    row("formula of a value that is missing", header + "B8,8,,steel\n", header + "B8,,,steel\n",
        "1:unconfirmed", withFormula("D = L / 2"));
    row("no target is for it", header + bolt, header + bolt, "1:noTarget",
        [notFound](PrjMappingC &mapping) {
            addCondition(mapping, 0, "D .EQ. 9");
            notFound(mapping);
        });
    row("its target is not for it any more", header + bolt, header + bolt, "1:noTarget",
        [](PrjMappingC &mapping) {
            addCondition(mapping, 0, "D .EQ. 9");
            enter(mapping, 0, 1, 1, ToCheck);
        });
    row("a condition on a range may hold", "Name,L:r\nB8,10..30/10\n", "Name,L:n\nB8,20\n",
        "1:unlike", [notFound](PrjMappingC &mapping) {
            addCondition(mapping, 0, "L .EQ. 20");
            notFound(mapping);
        });
    row("condition with a fault", header + bolt, header + bolt, "1:formula",
        [notFound](PrjMappingC &mapping) {
            PrjMappingTargetC target = mapping.targetAt(0);
            target.addCondition(VarsetConditionC::fromText("D .EQ."));
            mapping.updateTarget(0, target);
            notFound(mapping);
        });
    row("conflict before all else", header + bolt, header + bolt + bolt, "1:clash",
        [](PrjMappingC &mapping) {
            enter(mapping, 0, 1, 1, Verified);
            PrjMappingTargetC target = mapping.targetAt(0);
            target.setLineConflicted(1, true);
            mapping.updateTarget(0, target);
        });
    row("line that the table does not have", header + bolt, header + bolt, "7:unreadable",
        [](PrjMappingC &mapping) { enter(mapping, 0, 7, 1, ToCheck); });
}

void tst_OpenReason::reasons()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QFETCH(Edit, edit);
    const TestCatalog catalog;
    IndexTreeC::instance()->setCatalogRoot(catalog.root());
    catalog.write("old/a.prj", source);
    catalog.write("new/a.prj", target);
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    if (edit)
        edit(mapping);
    else
        enter(mapping, 1, 1, -1, ToCheck);
    const ProjectOpenReasons found =
        openReasons(mapping, releaseOf({mapping}), {.sourceRoot = catalog.root()});
    QTEST(textOf(found), "expected");
    QCOMPARE(found.errors, QStringList());
    int sum = 0;
    for (const int count : found.counts())
        sum += count;
    QCOMPARE(sum, int(found.lines.size()));
}

void tst_OpenReason::settledLinesAreNotOpen()
{
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    enter(mapping, 0, 1, 1, Mapped);
    enter(mapping, 0, 2, 2, Verified);
    enter(mapping, 1, 3, -1, Verified);
    const TestCatalog catalog;
    const ProjectOpenReasons found =
        openReasons(mapping, releaseOf({mapping}), {.sourceRoot = catalog.root()});
    QCOMPARE(textOf(found), QString());
    QCOMPARE(found.errors, QStringList()); // nothing was read
}

void tst_OpenReason::eachLineOnce()
{
    const TestCatalog catalog;
    IndexTreeC::instance()->setCatalogRoot(catalog.root());
    catalog.write("old/a.prj", "Name,D:n\nB8,8\nB9,9\n");
    catalog.write("new/a.prj", "Name,D:n\nB8,8\nB9,9\n");
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/a.prj", ""});
    enter(mapping, 2, 1, -1, ToCheck);
    enter(mapping, 0, 1, 1, ToCheck);
    enter(mapping, 1, 1, 1, ToCheck);
    PrjMappingTargetC target = mapping.targetAt(1);
    target.addLineId(2, 2, Verified, QString());
    target.setLineConflicted(2, true);
    mapping.updateTarget(1, target);
    enter(mapping, 0, 2, 2, ToCheck);
    const ProjectOpenReasons found =
        openReasons(mapping, releaseOf({mapping}), {.sourceRoot = catalog.root()});
    // Line 1 stands in three targets, twice at the same line of the same project.
    QCOMPARE(textOf(found), "1:unconfirmed 2:clash");
}

void tst_OpenReason::unreadable_data()
{
    QTest::addColumn<bool>("assigned");
    QTest::addColumn<QString>("missing");
    QTest::newRow("own table, not assigned") << false << "old/a.prj";
    QTest::newRow("own table, assigned") << true << "old/a.prj";
    QTest::newRow("one of the targets, not assigned") << false << "new/b.prj";
    QTest::newRow("its target") << true << "new/a.prj";
}

void tst_OpenReason::unreadable()
{
    QFETCH(bool, assigned);
    QFETCH(QString, missing);
    const TestCatalog catalog;
    IndexTreeC::instance()->setCatalogRoot(catalog.root());
    for (const QString &path : {"old/a.prj", "new/a.prj", "new/b.prj"}) {
        if (path != missing)
            catalog.write(path, "Name,D:n\nB8,8\n");
    }
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj", ""});
    enter(mapping, assigned ? 0 : 2, 1, assigned ? 1 : -1, ToCheck);
    const ProjectOpenReasons found =
        openReasons(mapping, releaseOf({mapping}), {.sourceRoot = catalog.root()});
    QCOMPARE(textOf(found), "1:unreadable");
    QCOMPARE(found.errors.size(), 1);
    QVERIFY2(found.errors.first().contains(missing.section('/', 1)), qPrintable(found.errors[0]));
}

void tst_OpenReason::colleague()
{
    PrjMappingC mapping = mappingOf("old/screws/a.prj", {"new/a.prj", ""});
    enter(mapping, 1, 1, -1, ToCheck);
    enter(mapping, 0, 2, 2, Mapped);
    PrjMappingTargetC target = mapping.targetAt(0);
    target.addLineId(3, 3, ToCheck, QString());
    target.setLineConflicted(3, true);
    mapping.updateTarget(0, target);
    const TestCatalog catalog;
    const ProjectOpenReasons found =
        openReasons(mapping, releaseOf({mapping}),
                    {.sourceRoot = catalog.root(), .isOthers = [](const QString &path) {
                         return path.startsWith("old/screws/");
                     }});
    QCOMPARE(textOf(found), "1:colleague 3:clash");
}

void tst_OpenReason::keysDiffer()
{
    QStringList keys;
    for (int i = 0; i < OpenReasonCount; ++i)
        keys << openReasonKey(OpenReason(i));
    QCOMPARE(keys, (QStringList{"clash", "colleague", "unreadable", "formula", "noTarget", "column",
                                "equal", "unlike", "unconfirmed"}));
}

void tst_OpenReason::wholeRelease()
{
    const TestCatalog catalog;
    IndexTreeC::instance()->setCatalogRoot(catalog.root());
    catalog.write("old/a.prj", "Name,D:n\nB8,8\nB9,9\n");
    catalog.write("new/a.prj", "Name,D:n\nB8,8\nB9,10\n");
    QList<PrjMappingC> mappings;
    for (const char *path : {"old/a.prj", "old/lost.prj", "old/a.prj"}) {
        PrjMappingC mapping = mappingOf(path, {"new/a.prj", ""});
        mapping.setSourceVersion("v" + QString::number(mappings.size()));
        enter(mapping, 0, 1, 1, ToCheck);
        enter(mapping, 0, 2, 2, ToCheck);
        mappings << mapping;
    }
    const ReleaseMappingC release = releaseOf(mappings);
    const auto guard = qScopeGuard([] { WorkerPool::instance().setThreads(0); });
    for (const int threads : {1, 3}) {
        WorkerPool::instance().setThreads(threads);
        int told = 0;
        const auto found = openReasons(release, {.sourceRoot = catalog.root()},
                                       [&](int projects) { told = projects; });
        QVERIFY(found);
        QCOMPARE(told, 3);
        QCOMPARE(textOf((*found)[0]), "1:unconfirmed 2:unlike");
        QCOMPARE(textOf((*found)[1]), "1:unreadable 2:unreadable");
        QCOMPARE(textOf((*found)[2]), "1:unconfirmed 2:unlike");
    }
}

void tst_OpenReason::cancelled()
{
    const std::atomic<bool> ended = true;
    PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
    enter(mapping, 1, 1, -1, ToCheck);
    const TestCatalog catalog;
    const OpenReasonOptions options{
        .sourceRoot = catalog.root(), .isOthers = {}, .cancelled = &ended};
    QVERIFY(openReasons(mapping, releaseOf({mapping}), options).lines.empty());
    QVERIFY(!openReasons(releaseOf({mapping}), options));
}

QTEST_GUILESS_MAIN(tst_OpenReason)
#include "tst_OpenReason.moc"
