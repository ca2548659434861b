#include "../support/EnglishTexts.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/records/MappingFile.h>
#include <release/assign/ReleaseAssigner.h>
#include <TestPaths.h>
#include <tools/velkmap/Commands.h>
#include <tools/velkmap/ExportCommand.h>
#include <tools/velkmap/TerminalProgress.h>

#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using velkmap::ExitStatus;
using VelkRelease::ReleaseAssigner;

// The example catalog is real input with every case in it, one broken table included.
class tst_Assign : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    const QString m_source = QStringLiteral(VELK_SOURCE_DIR "/examples/release-1");
    const QString m_target = QStringLiteral(VELK_SOURCE_DIR "/examples/release-2");
    QString m_out;
    QString m_err;
    QString m_mapping;

    ExitStatus run(const QStringList &arguments)
    {
        m_out.clear();
        m_err.clear();
        QTextStream out(&m_out);
        QTextStream err(&m_err);
        return velkmap::run(arguments, out, err);
    }
    ExitStatus assign(const QStringList &more = {})
    {
        return run(QStringList{"assign", "--mapping", m_mapping, "--source", m_source, "--target",
                               m_target} +
                   more);
    }
    static QByteArray content(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    ReleaseMappingC release() const
    {
        MappingFile file;
        return file.read(m_mapping) ? file.releases().value(0) : ReleaseMappingC();
    }

private Q_SLOTS:
    void init()
    {
        m_mapping = m_dir.filePath(QString::fromLatin1(QTest::currentTestFunction()) + ".json");
        QFile::remove(m_mapping);
        QCOMPARE(run({"create", "--source", m_source, "--target", m_target, "--catalog",
                      "standardparts", "--mapping", m_mapping}),
                 ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("din908.csv: row 17"), qPrintable(m_err));
    }

    void assignsAllAndNamesWhatCannotBeRead()
    {
        QCOMPARE(assign(), ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("din908.csv: row 17, column 1"), qPrintable(m_err));
        QCOMPARE(m_err.count('\n'), 1);
        const ReleaseMappingC result = release();
        int broken = 0;
        for (const PrjMappingC &mapping : result.getMappingList()) {
            const bool error = mapping.getMappingState().testFlag(PRJMAPPING::StateTableError);
            broken += error ? 1 : 0;
            QCOMPARE(error, mapping.getSourcePath().endsWith("/din908.prj"));
            QCOMPARE(mapping.lineCounts().lines() == 0, error);
        }
        QCOMPARE(broken, 1);
        QVERIFY2(m_out.contains(" lines: "), qPrintable(m_out));
    }

    void numberOfJobsDoesNotMatter()
    {
        const QByteArray created = content(m_mapping);
        QCOMPARE(assign({"--jobs", "1"}), ExitStatus::InputUnreadable);
        const QByteArray one = content(m_mapping);
        QFile file(m_mapping);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(created);
        file.close();
        QCOMPARE(assign({"--jobs", "4"}), ExitStatus::InputUnreadable);
        QCOMPARE(content(m_mapping), one);
        QVERIFY(one != created);
    }

    void secondRunChangesNothing()
    {
        (void)assign();
        const QByteArray first = content(m_mapping);
        (void)assign();
        QCOMPARE(content(m_mapping), first);
    }

    void chosenProjectsOnly()
    {
        QCOMPARE(assign({"--project", "standardparts/nuts/iso4032.prj"}), ExitStatus::Done);
        for (const PrjMappingC &mapping : release().getMappingList()) {
            QCOMPARE(mapping.lineCounts().lines() > 0,
                     mapping.getSourcePath() == "standardparts/nuts/iso4032.prj");
        }
        QCOMPARE(assign({"--project", "standardparts/nuts/unknown.prj"}), ExitStatus::WrongUsage);
        QVERIFY2(m_err.contains("standardparts/nuts/unknown.prj"), qPrintable(m_err));
    }

    void forceKeepsOnlyWhatIsConfirmed()
    {
        const QString path = "standardparts/nuts/iso4032.prj";
        QCOMPARE(assign({"--project", path}), ExitStatus::Done);
        MappingFile file;
        QVERIFY(file.read(m_mapping));
        ReleaseMappingC changed = file.releases().value(0);
        PrjMappingC mapping;
        for (int i = 0; i < changed.countMappings(); ++i) {
            if (changed.mappingAt(i).getSourcePath() == path)
                mapping = changed.mappingAt(i);
        }
        QVERIFY(mapping.isValid());
        PrjMappingTargetC target = mapping.findTarget(0);
        const int wrong = target.getMappedLine(3).getTargetLineId();
        QVERIFY(wrong > 0);
        target.addLineId(1, wrong, PRJMAPPING::Verified, "");
        target.addLineId(2, wrong, PRJMAPPING::ToCheck, "");
        mapping.updateTarget(0, target);
        changed.addMapping(mapping);
        file.setRelease(changed);
        QVERIFY(file.write(m_mapping));

        const auto lineOf = [&](int line) {
            for (const PrjMappingC &each : release().getMappingList()) {
                if (each.getSourcePath() == path)
                    return each.findTarget(0).getMappedLine(line).getTargetLineId();
            }
            return -2;
        };
        QCOMPARE(assign({"--project", path}), ExitStatus::Done);
        QCOMPARE(lineOf(1), wrong);
        QCOMPARE(lineOf(2), wrong);
        QCOMPARE(assign({"--project", path, "--force"}), ExitStatus::Done);
        QCOMPARE(lineOf(1), wrong);
        QVERIFY(lineOf(2) != wrong);
    }

    void cancelKeepsWhatIsDone()
    {
        IndexTreeC::instance()->setCatalogRoot(m_target);
        ReleaseMappingC result = release();
        std::atomic<bool> cancelled{false};
        ReleaseAssigner assigner(m_source);
        WorkerPool::instance().setThreads(1);
        const auto all = qScopeGuard([] { WorkerPool::instance().setThreads(0); });
        int told = 0;
        assigner.setObserver([&](const ReleaseAssigner::Progress &progress) {
            QCOMPARE(progress.totalProjects, result.countMappings());
            told = progress.projects;
            cancelled = true;
        });
        (void)assigner.run(result, cancelled);
        QVERIFY(told >= 1);
        int assigned = 0;
        for (const PrjMappingC &mapping : result.getMappingList())
            assigned += mapping.lineCounts().lines() > 0 ? 1 : 0;
        QVERIFY(assigned >= 1);
        QVERIFY(result.mappingAt(0).lineCounts().lines() > 0);
    }

    void whatCannotBeReadIsNamed()
    {
        const QString before = m_mapping;
        m_mapping = m_dir.filePath("gone/mapping.json");
        QCOMPARE(assign(), ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("gone/mapping.json"), qPrintable(m_err));
        m_mapping = before;
        QCOMPARE(assign({"--jobs", "many"}), ExitStatus::WrongUsage);
        QCOMPARE(run({"assign", "--mapping", m_mapping, "--source", m_dir.filePath("no"),
                      "--target", m_target}),
                 ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("is no directory"), qPrintable(m_err));
    }

    void progressText_data()
    {
        QTest::addColumn<int>("done");
        QTest::addColumn<int>("elapsed");
        QTest::addColumn<QString>("text");
        QTest::newRow("begin") << 0 << 0 << "0 of 10 projects, 500 lines";
        QTest::newRow("under way")
            << 5 << 65000 << "5 of 10 projects, 500 lines, 7 lines/s, 1:05 left";
        QTest::newRow("end") << 10 << 1000 << "10 of 10 projects, 500 lines, 500 lines/s";
    }
    void progressText()
    {
        QFETCH(int, done);
        QFETCH(int, elapsed);
        QFETCH(QString, text);
        QCOMPARE(velkmap::TerminalProgress::text(done, 10, 500, elapsed), text);
    }
};

QTEST_GUILESS_MAIN(tst_Assign)
#include "tst_Assign.moc"
