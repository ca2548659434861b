#include <geomcore/records/MappingFile.h>
#include <release/chain/chainReleases.h>
#include <tools/velkmap/Commands.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using namespace PRJMAPPING;
using velkmap::ExitStatus;

namespace {

struct Entry
{
    int line;
    int target;
    CheckState state;
    QString text = {};
};

PrjMappingTargetC targetOf(const QString &path, const QList<Entry> &entries)
{
    PrjMappingTargetC target;
    target.setValid(true);
    target.setTargetPath(path);
    target.setTargetVersion(path.isEmpty() ? QString() : "v" + path);
    for (const Entry &entry : entries)
        target.addLineId(entry.line, entry.target, entry.state, entry.text);
    return target;
}

PrjMappingC mappingOf(const QString &path, const QList<PrjMappingTargetC> &targets)
{
    PrjMappingC mapping;
    mapping.setSourcePath(path);
    mapping.setSourceVersion("v" + path);
    mapping.setTargets(targets);
    mapping.updateMappingState();
    return mapping;
}

ReleaseMappingC releaseOf(const QString &from, const QString &to,
                          const QList<PrjMappingC> &mappings)
{
    ReleaseMappingC release;
    release.setSourceDate(from);
    release.setTargetDate(to);
    for (const PrjMappingC &mapping : mappings)
        release.addMapping(mapping);
    return release;
}

/// "target:line/state" of a line; "" if nothing is known of it.
QString fate(const PrjMappingC &mapping, int line)
{
    QStringList found;
    for (const PrjMappingTargetC &target : mapping.getTargets()) {
        if (target.containsLine(line)) {
            const PrjMappingTargetLineC entry = target.getMappedLine(line);
            found += QStringLiteral("%1:%2/%3")
                         .arg(target.getTargetPath())
                         .arg(entry.getTargetLineId())
                         .arg(int(entry.getState()));
        }
    }
    return found.join(' ');
}

} // namespace

class tst_ChainCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }
    void states_data();
    void states();
    void linesOfSeveralMiddleProjects();
    void nothingIsSureOfSeveralTargets();
    void conflictsAndRangeTextsAreToBeChecked();
    void writesAFile();
    void refuses();

private:
    ExitStatus run(const QStringList &arguments)
    {
        m_out.clear();
        m_err.clear();
        QTextStream out(&m_out);
        QTextStream err(&m_err);
        return velkmap::run(QStringList("chain") + arguments, out, err);
    }
    QString write(const QString &name, const ReleaseMappingC &release) const
    {
        MappingFile file;
        const QString path = m_directory->filePath(name);
        if (QFile::exists(path) && !file.read(path))
            return {};
        file.setRelease(release);
        return file.write(path) ? path : QString();
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_out;
    QString m_err;
};

void tst_ChainCommand::states_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("expected");
    QTest::newRow("confirmed in both") << 1 << "c/x.prj:21/2";
    QTest::newRow("confirmed, then certain") << 2 << "c/x.prj:22/1";
    QTest::newRow("certain, then confirmed") << 3 << "c/x.prj:23/1";
    QTest::newRow("to check, then confirmed") << 4 << "c/x.prj:24/0";
    QTest::newRow("confirmed as expired in the first") << 5 << ":-1/2";
    QTest::newRow("without target in the first") << 6 << ":-1/0";
    QTest::newRow("confirmed, expired in the second") << 7 << ":-1/2";
    QTest::newRow("certain, expired in the second") << 8 << ":-1/0";
    QTest::newRow("the second does not know the line") << 9 << ":-1/0";
}

void tst_ChainCommand::states()
{
    QFETCH(int, line);
    QFETCH(QString, expected);
    const PrjMappingC first =
        mappingOf("a/x.prj", {targetOf("b/y.prj", {{1, 11, Verified},
                                                   {2, 12, Verified},
                                                   {3, 13, Mapped},
                                                   {4, 14, ToCheck},
                                                   {7, 17, Verified},
                                                   {8, 18, Mapped},
                                                   {9, 19, Verified}}),
                              targetOf("", {{5, -1, Verified}, {6, -1, ToCheck}})});
    const PrjMappingC second = mappingOf(
        "b/y.prj",
        {targetOf("c/x.prj",
                  {{11, 21, Verified}, {12, 22, Mapped}, {13, 23, Verified}, {14, 24, Verified}}),
         targetOf("", {{17, -1, Verified}, {18, -1, Verified}})});
    VelkRelease::ChainCounts counts;
    const ReleaseMappingC chained = VelkRelease::chainReleases(
        releaseOf("2024", "2025", {first}), releaseOf("2025", "2026", {second}), &counts);
    QCOMPARE(chained.getSourceDate(), QString("2024"));
    QCOMPARE(chained.getTargetDate(), QString("2026"));
    QCOMPARE(chained.countMappings(), 1);
    const PrjMappingC mapping = chained.mappingAt(0);
    QCOMPARE(mapping.getSourceVersion(), QString("va/x.prj"));
    QCOMPARE(mapping.findTarget(0).getTargetVersion(), QString("vc/x.prj"));
    QVERIFY(mapping.targetAt(mapping.countTargets() - 1).isNotFoundTarget());
    QCOMPARE(fate(mapping, line), expected);
    QCOMPARE(counts.confirmed, 3);
    QCOMPARE(counts.assigned, 2);
    QCOMPARE(counts.toCheck, 1);
    QCOMPARE(counts.open, 3);
    QCOMPARE(counts.unknown, 1);
}

void tst_ChainCommand::linesOfSeveralMiddleProjects()
{
    const PrjMappingC first = mappingOf("a/x.prj", {targetOf("b/y.prj", {{1, 1, Verified}}),
                                                    targetOf("b/z.prj", {{2, 1, Verified}}),
                                                    targetOf("b/gone.prj", {{3, 1, Verified}})});
    const PrjMappingC y = mappingOf("b/y.prj", {targetOf("c/one.prj", {{1, 5, Verified}})});
    const PrjMappingC z = mappingOf(
        "b/z.prj", {targetOf("c/two.prj", {{1, 6, Verified}}), targetOf("c/one.prj", {})});
    const PrjMappingC mapping =
        VelkRelease::chainReleases(releaseOf("1", "2", {first}), releaseOf("2", "3", {y, z}))
            .mappingAt(0);
    QCOMPARE(fate(mapping, 1), QString("c/one.prj:5/2"));
    QCOMPARE(fate(mapping, 2), QString("c/two.prj:6/2"));
    QCOMPARE(fate(mapping, 3), QString(":-1/0"));
    QCOMPARE(mapping.countTargets(), 3);
}

void tst_ChainCommand::nothingIsSureOfSeveralTargets()
{
    const PrjMappingC first = mappingOf("a/x.prj", {targetOf("b/y.prj", {{1, 1, Verified}})});
    const PrjMappingC second = mappingOf("b/y.prj", {targetOf("c/one.prj", {{1, 5, Verified}}),
                                                     targetOf("c/two.prj", {{1, 6, Verified}})});
    QCOMPARE(
        fate(VelkRelease::chainReleases(releaseOf("1", "2", {first}), releaseOf("2", "3", {second}))
                 .mappingAt(0),
             1),
        QString("c/one.prj:5/0"));
}

void tst_ChainCommand::conflictsAndRangeTextsAreToBeChecked()
{
    PrjMappingTargetC target =
        targetOf("b/y.prj", {{1, 1, Verified}, {2, 2, Verified, "{L=1} -> 2"}, {3, 3, Verified}});
    target.setLineConflicted(1, true);
    const PrjMappingC second = mappingOf(
        "b/y.prj", {targetOf("c/x.prj", {{1, 1, Verified}, {2, 2, Verified}, {3, 3, Verified}})});
    VelkRelease::ChainCounts counts;
    const PrjMappingC mapping =
        VelkRelease::chainReleases(releaseOf("1", "2", {mappingOf("a/x.prj", {target})}),
                                   releaseOf("2", "3", {second}), &counts)
            .mappingAt(0);
    QCOMPARE(fate(mapping, 1), QString("c/x.prj:1/0"));
    QCOMPARE(fate(mapping, 2), QString("c/x.prj:2/0"));
    QCOMPARE(fate(mapping, 3), QString("c/x.prj:3/2"));
    QCOMPARE(counts.rangeTexts, 1);
    QCOMPARE(mapping.findTarget(0).getMappedLine(2).getExtended(), QString());
}

void tst_ChainCommand::writesAFile()
{
    const ReleaseMappingC first = releaseOf(
        "2024", "2025", {mappingOf("a/x.prj", {targetOf("b/y.prj", {{1, 11, Verified}})})});
    const ReleaseMappingC second = releaseOf(
        "2025", "2026", {mappingOf("b/y.prj", {targetOf("c/x.prj", {{11, 21, Verified}})})});
    const QString one = write("one.json", first);
    QVERIFY(!write("one.json", second).isEmpty()); // both in one file
    const QString into = m_directory->filePath("chain.json");
    const QStringList arguments = {"--first",  one, "--first-release", "2024",
                                   "--second", one, "--into",          into};
    QCOMPARE(run(arguments), ExitStatus::Done);
    QCOMPARE(m_err, QString());
    QCOMPARE(m_out, QString("2024 to 2026: 1 project, 1 line confirmed, 0 assigned, 0 to check, "
                            "0 without target\n"));
    MappingFile file;
    QVERIFY(file.read(into));
    QCOMPARE(fate(file.release("2024").mappingAt(0), 1), QString("c/x.prj:21/2"));
    QCOMPARE(run(arguments), ExitStatus::WrongUsage); // it is there already
    QVERIFY2(m_err.contains("--replace"), qPrintable(m_err));
    QCOMPARE(run(arguments + QStringList{"--replace"}), ExitStatus::Done);
}

void tst_ChainCommand::refuses()
{
    const QString one = write("one.json", releaseOf("2024", "2025", {}));
    const QString two = write("two.json", releaseOf("2025b", "2026", {}));
    const QString into = m_directory->filePath("chain.json");
    QCOMPARE(run({"--first", one, "--second", two, "--into", into}), ExitStatus::WrongUsage);
    QVERIFY2(m_err.contains("ends at 2025, the second begins at 2025b"), qPrintable(m_err));
    QCOMPARE(run({"--first", one, "--second", two, "--second-release", "2030", "--into", into}),
             ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains("has no release 2030"), qPrintable(m_err));
    QCOMPARE(run({"--first", m_directory->filePath("no.json"), "--second", two, "--into", into}),
             ExitStatus::InputUnreadable);
    QVERIFY(!QFile::exists(into));
}

QTEST_MAIN(tst_ChainCommand)
#include "tst_ChainCommand.moc"
