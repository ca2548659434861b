#include "SessionFixture.h"

#include <geomcore/records/MappingFile.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/file/GuardedSave.h>
#include <workbench/session/journal/SessionRecovery.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

using VelkRelease::MergeClash;

namespace {

const QString Path = QStringLiteral("cat/a.prj");
const QString Other = QStringLiteral("cat/screws/b.prj");

/// The target line of a line of the first target, its state and "!" in conflict.
QString lineOf(const ReleaseMappingC &release, const QString &path, int line)
{
    const PrjMappingC mapping = release.findMapping(path, SessionFixture::Version, QString());
    for (const PrjMappingTargetC &target : mapping.getTargets()) {
        if (!target.containsLine(line))
            continue;
        const PrjMappingTargetLineC entry = target.getMappedLine(line);
        return QStringLiteral("%1/%2%3").arg(QString::number(entry.getTargetLineId()),
                                             QString::number(entry.getState()),
                                             entry.getConflict() ? QStringLiteral("!") : QString());
    }
    return QStringLiteral("none");
}

} // namespace

/// Somebody else writes the file while it is being edited.
class tst_MappingMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesWhatIsNew();
    void clashes();
    void settles();
    void undoLeadsToTheFile();
    void changeMapsFollowTheRecord();
    void survivesACrash();
    void nothingToMerge();
    void cannotMerge_data();
    void cannotMerge();
    void savingEndsIt();

private:
    [[nodiscard]] PrjMappingC mapping(const QString &path) const
    {
        return m_document->release().findMapping(path, SessionFixture::Version, QString());
    }
    /// Assigns and confirms in a mapping.
    static PrjMappingC assigned(const PrjMappingC &mapping, int line, int targetLine)
    {
        PrjMappingC changed = mapping;
        changed.changeTarget(0, [&](PrjMappingTargetC &target) {
            target.addLineId(line, targetLine, PRJMAPPING::Verified, QString());
        });
        changed.updateMappingState();
        return changed;
    }
    void decide(const QString &path, int line, int targetLine)
    {
        m_document->updateMapping(assigned(mapping(path), line, targetLine));
        m_document->finishStep();
    }
    void othersDecide(const QString &path, int line, int targetLine) const;
    [[nodiscard]] QString line(const QString &path, int number) const
    {
        return lineOf(m_document->release(), path, number);
    }
    [[nodiscard]] QString stored(const QString &path, int number) const
    {
        MappingFile file;
        return file.read(m_file) ? lineOf(file.releases().value(0), path, number) : "unreadable";
    }

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
    QString m_file;
};

void tst_MappingMerge::init()
{
    m_document.reset();
    m_files = std::make_unique<SessionFixture>();
    m_file = m_files->write();
    m_document = std::make_unique<MappingDocument>();
    QCOMPARE(m_document->open({.mappingFile = m_file}), MappingDocument::OpenResult::Opened);
}

void tst_MappingMerge::othersDecide(const QString &path, int line, int targetLine) const
{
    MappingFile file;
    QVERIFY(file.read(m_file));
    ReleaseMappingC release = file.releases().value(0);
    release.addMapping(
        assigned(release.findMapping(path, SessionFixture::Version, QString()), line, targetLine));
    file.setRelease(release);
    QVERIFY(file.write(m_file));
}

void tst_MappingMerge::takesWhatIsNew()
{
    decide(Path, 1, 7);
    othersDecide(Path, 2, 8);
    othersDecide(Other, 3, 9);
    QCOMPARE(m_document->save().result, SaveResult::ForeignChange);
    const QSignalSpy replaced(m_document.get(), &MappingDocument::releaseReplaced);
    const MergeOutcome outcome = m_document->mergeFile();
    QVERIFY(outcome.merged);
    QCOMPARE(outcome.text, "2 Änderungen übernommen.");
    QCOMPARE(replaced.count(), 1);
    QCOMPARE(line(Path, 1), "7/2");
    QCOMPARE(line(Path, 2), "8/2");
    QCOMPARE(line(Other, 3), "9/2");
    QVERIFY(m_document->isModified());
    QCOMPARE(stored(Path, 1), "1/0"); // nothing is written yet
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QCOMPARE(stored(Path, 1), "7/2");
    QCOMPARE(stored(Other, 3), "9/2");
}

void tst_MappingMerge::clashes()
{
    decide(Path, 1, 7);
    decide(Path, 4, 4);
    othersDecide(Path, 1, 8);
    othersDecide(Path, 4, 4);
    const MergeOutcome outcome = m_document->mergeFile();
    QCOMPARE(outcome.text, "2 Änderungen übernommen. 1 Zeile haben beide gleich entschieden. "
                           "1 Zeile ist verschieden entschieden und als Konflikt markiert.");
    QCOMPARE(line(Path, 1), "8/2!");
    QCOMPARE(line(Path, 4), "4/2");
    QCOMPARE(m_document->conflictedProjects().size(), 1);
    const QList<MergeClash> open = m_document->mergeState().openClashes(m_document->release());
    QCOMPARE(open.size(), 1);
    QCOMPARE(open.first().sourcePath, Path);
    QCOMPARE(open.first().line, 1);
    QCOMPARE(open.first().base.first().line.getTargetLineId(), 1);
    QCOMPARE(open.first().ours.first().line.getTargetLineId(), 7);
    QCOMPARE(open.first().theirs.first().line.getTargetLineId(), 8);
}

void tst_MappingMerge::settles()
{
    decide(Path, 1, 7);
    decide(Path, 2, 7);
    decide(Path, 3, 7);
    for (const int number : {1, 2, 3})
        othersDecide(Path, number, 8);
    QVERIFY(m_document->mergeFile().merged);
    const auto open = [&] {
        return m_document->mergeState().openClashes(m_document->release());
    };
    QCOMPARE(open().size(), 3);
    const qsizetype steps = m_document->undoTexts().size();
    m_document->settle(open().mid(0, 2), MergeState::Side::Ours);
    QCOMPARE(line(Path, 1), "7/2");
    QCOMPARE(line(Path, 2), "7/2");
    QCOMPARE(line(Path, 3), "8/2!");
    QCOMPARE(m_document->undoTexts().size(), steps + 1);
    QCOMPARE(m_document->undoText(), "2 Konflikte: eigene Entscheidung");
    m_document->settle(open(), MergeState::Side::Theirs);
    QCOMPARE(line(Path, 3), "8/2");
    QVERIFY(open().isEmpty());
    QVERIFY(m_document->conflictedProjects().isEmpty());
    m_document->undo();
    m_document->undo();
    QCOMPARE(open().size(), 3);
    QCOMPARE(line(Path, 1), "8/2!");
}

void tst_MappingMerge::undoLeadsToTheFile()
{
    decide(Path, 1, 7);
    othersDecide(Path, 2, 8);
    QVERIFY(m_document->mergeFile().merged);
    QCOMPARE(m_document->undoTexts(), QStringList{"Eigene Änderungen auf dem Stand der Datei"});
    m_document->undo();
    QCOMPARE(line(Path, 1), "1/0");
    QCOMPARE(line(Path, 2), "8/2");
    QVERIFY(!m_document->isModified());
    m_document->redo();
    QCOMPARE(line(Path, 1), "7/2");
    QCOMPARE(line(Path, 2), "8/2");
    QVERIFY(m_document->isModified());
}

void tst_MappingMerge::changeMapsFollowTheRecord()
{
    decide(Path, 1, 7);
    decide(Path, 2, 7);
    othersDecide(Path, 1, 8);
    othersDecide(Path, 2, 8);
    QVERIFY(m_document->mergeFile().merged);
    const auto local = [&] {
        return m_document->mergeState().localChanges(m_document->release());
    };
    QCOMPARE(local().size(), 2);
    QCOMPARE(local().firstKey().second, Path);
    QCOMPARE(local().first().type, 0);
    QCOMPARE(m_document->mergeState().onlineChanges().size(), 2);
    decide(Path, 1, 5); // decided anew
    QCOMPARE(local().size(), 1);
    QCOMPARE(local().first().lineId, 2);
    m_document->undo();
    QCOMPARE(local().size(), 2);
    m_document->close();
    QVERIFY(m_document->mergeState().onlineChanges().isEmpty());
}

/// What a program left that was killed after the merge.
void tst_MappingMerge::survivesACrash()
{
    decide(Path, 1, 7);
    othersDecide(Path, 1, 8);
    othersDecide(Path, 2, 8);
    QVERIFY(m_document->mergeFile().merged);
    decide(Other, 3, 9);
    const QString folder = m_files->path("left");
    QVERIFY(QDir().mkpath(folder));
    const QString left = folder + "/release.json";
    QVERIFY(QFile::copy(m_file, left));
    QVERIFY(QFile::copy(SessionRecovery::journalFile(m_file), SessionRecovery::journalFile(left)));
    MappingDocument next;
    MappingDocument::OpenRequest request{.mappingFile = left};
    request.recovery = MappingDocument::Recovery::UseRecovered;
    QCOMPARE(next.open(request), MappingDocument::OpenResult::Opened);
    QCOMPARE(SessionFixture::bytes(next.release()), SessionFixture::bytes(m_document->release()));
    QCOMPARE(lineOf(next.release(), Path, 1), "8/2!");
    QCOMPARE(lineOf(next.release(), Path, 2), "8/2");
    QCOMPARE(lineOf(next.release(), Other, 3), "9/2");
}

void tst_MappingMerge::nothingToMerge()
{
    othersDecide(Path, 2, 8);
    QVERIFY(m_document->mergeFile().merged);
    QVERIFY(!m_document->isModified());
    QVERIFY(!m_document->canUndo());
    QCOMPARE(line(Path, 2), "8/2");
    decide(Path, 1, 7);
    QVERIFY(m_document->mergeFile().merged); // the file is as it was
    QCOMPARE(line(Path, 1), "7/2");
    QVERIFY(m_document->isModified());
}

void tst_MappingMerge::cannotMerge_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no JSON") << QByteArray("<<<<<<<");
    QTest::newRow("another release") << QByteArray("{\"2001-01-01\": {\"sourceDate\": "
                                                   "\"2001-01-01\", \"targetDate\": \"x\"}}");
    QTest::newRow("gone") << QByteArray();
}

void tst_MappingMerge::cannotMerge()
{
    QFETCH(const QByteArray, content);
    decide(Path, 1, 7);
    if (content.isEmpty())
        QVERIFY(QFile::remove(m_file));
    else
        SessionFixture::setContent(m_file, content);
    const MergeOutcome outcome = m_document->mergeFile();
    QVERIFY(!outcome.merged);
    QVERIFY2(outcome.text.contains("release.json"), qPrintable(outcome.text));
    QCOMPARE(line(Path, 1), "7/2");
    QVERIFY(m_document->canUndo());
    QVERIFY(m_document->isModified());
}

/// Another change after the merge is seen again.
void tst_MappingMerge::savingEndsIt()
{
    decide(Path, 1, 7);
    othersDecide(Path, 2, 8);
    QVERIFY(m_document->mergeFile().merged);
    othersDecide(Path, 3, 8);
    QCOMPARE(m_document->save().result, SaveResult::ForeignChange);
    QVERIFY(m_document->mergeFile().merged);
    QCOMPARE(m_document->save().result, SaveResult::Saved);
    QCOMPARE(stored(Path, 1), "7/2");
    QCOMPARE(stored(Path, 2), "8/2");
    QCOMPARE(stored(Path, 3), "8/2");
}

QTEST_MAIN(tst_MappingMerge)
#include "tst_MappingMerge.moc"
