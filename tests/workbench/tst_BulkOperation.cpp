#include "SessionFixture.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/BulkOperation.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <numeric>

namespace {

const QString Path = QStringLiteral("cat/a.prj");

ProjectId project()
{
    return {Path, SessionFixture::Version, QStringLiteral("t1")};
}

QList<int> upTo(int last)
{
    QList<int> lines(last);
    std::iota(lines.begin(), lines.end(), 1);
    return lines;
}

/// "target:line>target line/state" of each entry, the not-found target as "-".
QString entries(const PrjMappingC &mapping)
{
    QStringList list;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        for (const LineTable::Iterator &line : target.lines())
            list += QStringLiteral("%1:%2>%3/%4%5%6")
                        .arg(target.isNotFoundTarget() ? QStringLiteral("-") : QString::number(i))
                        .arg(line.sourceLine())
                        .arg(line.targetLine())
                        .arg(int(line.state()))
                        .arg(line.extended() ? QStringLiteral("T") : QString(),
                             line.conflict() ? QStringLiteral("!") : QString());
    }
    return list.join(u' ');
}

} // namespace

class tst_BulkOperation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void actions_data();
    void actions();
    void linesInSeveralTargets();
    void isOneStep();
    void nothingToDoIsNoStep();
    void previewChangesNothing();
    void previewTexts_data();
    void previewTexts();
    void aRemovedLineKeepsItsPlaceInTheNotFoundTarget();
    void readOnly();
    void tenThousandLines();
    void resultsNameWhatWasLeftOut();

private:
    void use(const PrjMappingC &mapping);

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
};

void tst_BulkOperation::init()
{
    m_document.reset();
    m_files = std::make_unique<SessionFixture>();
    m_document = std::make_unique<MappingDocument>();
}

void tst_BulkOperation::use(const PrjMappingC &mapping)
{
    ReleaseMappingC release;
    release.setSourceDate(QStringLiteral("2022-01-01"));
    release.addMapping(mapping);
    QCOMPARE(m_document->open({m_files->write(release), {}, {}, {}, {}}),
             MappingDocument::OpenResult::Opened);
}

void tst_BulkOperation::actions_data()
{
    QTest::addColumn<QList<SampleLine>>("before");
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("changed");
    const QString text = QStringLiteral("{L=1} -> 2");
    const int confirm = BulkOperation::Confirm;
    const int remove = BulkOperation::Remove;
    const int both = BulkOperation::RemoveAndConfirm;
    const auto row = [](const char *name, const QList<SampleLine> &before, int action,
                        const char *after, int changed) {
        QTest::newRow(name) << before << action << QString::fromLatin1(after) << changed;
    };
    row("confirm", {{1, 5, 0, {}, false}, {2, 6, 1, {}, false}}, confirm, "0:1>5/2 0:2>6/2", 2);
    row("confirm keeps the text", {{1, 5, 0, text, false}}, confirm, "0:1>5/2T", 1);
    row("confirm leaves lines without target", {{1, -1, 1, {}, false}, {2, 6, 1, {}, false}},
        confirm, "0:1>-1/1 0:2>6/2", 1);
    row("expired", {{1, -1, 1, {}, false}, {2, 6, 1, {}, false}}, BulkOperation::ConfirmExpired,
        "0:1>-1/2 0:2>6/1", 1);
    row("expired leaves conflicts", {{1, -1, 0, {}, true}}, BulkOperation::ConfirmExpired,
        "0:1>-1/0!", 0);
    row("confirm what is confirmed", {{1, 5, 2, {}, false}}, confirm, "0:1>5/2", 0);
    row("confirm leaves conflicts", {{1, 5, 0, {}, true}}, confirm, "0:1>5/0!", 0);
    row("remove", {{1, 5, 0, {}, false}, {2, 6, 2, {}, false}}, remove, "-:1>-1/1 -:2>-1/1", 2);
    row("remove drops the text", {{1, 5, 0, text, false}}, remove, "-:1>-1/1", 1);
    row("remove without target line", {{1, -1, 0, {}, false}}, remove, "0:1>-1/0", 0);
    row("remove leaves conflicts", {{1, 5, 0, {}, true}}, remove, "0:1>5/0!", 0);
    row("both", {{1, 5, 0, {}, false}}, both, "-:1>-1/2", 1);
    row("both without target line", {{1, -1, 1, {}, false}}, both, "0:1>-1/2", 1);
    row("both on what is expired", {{1, -1, 2, {}, false}}, both, "0:1>-1/2", 0);
    row("only the wanted lines", {{1, 5, 0, {}, false}, {9, 5, 0, {}, false}}, confirm,
        "0:1>5/2 0:9>5/0", 1);
}

void tst_BulkOperation::actions()
{
    QFETCH(QList<SampleLine>, before);
    QFETCH(int, action);
    QFETCH(QString, after);
    QFETCH(int, changed);
    use(SessionFixture::mapping(Path, before));
    const BulkOperation operation(*m_document, project(), {3, 2, 1, 1});
    QCOMPARE(operation.preview(BulkOperation::Action(action)).lines, changed);
    QCOMPARE(operation.run(BulkOperation::Action(action)).lines, changed);
    QCOMPARE(entries(m_document->mapping(project())), after);
    QCOMPARE(m_document->canUndo(), changed > 0);
}

void tst_BulkOperation::linesInSeveralTargets()
{
    PrjMappingC mapping = SessionFixture::mapping(Path, {{1, 5, 0, {}, false}});
    PrjMappingTargetC second = mapping.findTarget(0);
    second.setTargetPath(QStringLiteral("new/u.prj"));
    second.addLineId(1, 8, PRJMAPPING::Verified, QString());
    mapping.addTarget(second);
    use(mapping);
    const BulkOperation operation(*m_document, project(), {1});
    QCOMPARE(operation.run(BulkOperation::Confirm).lines, 1);
    QCOMPARE(entries(m_document->mapping(project())), QStringLiteral("0:1>5/2 1:1>8/2"));
    QCOMPARE(operation.run(BulkOperation::Remove).lines, 1);
    QCOMPARE(entries(m_document->mapping(project())), QStringLiteral("-:1>-1/1"));
    m_document->undo();
    m_document->undo();
    QCOMPARE(entries(m_document->mapping(project())), QStringLiteral("0:1>5/0 1:1>8/2"));
}

void tst_BulkOperation::isOneStep()
{
    use(SessionFixture::plainMapping(Path, 100));
    QSignalSpy done(m_document.get(), &MappingDocument::stepDone);
    QCOMPARE(BulkOperation(*m_document, project(), upTo(60)).run(BulkOperation::Confirm).lines, 60);
    QCOMPARE(m_document->undoTexts(),
             QStringList(QStringLiteral("60 Zeilen bestätigt in cat/a.prj")));
    QCOMPARE(done.size(), 1);
    QCOMPARE(done.first().at(1).toInt(), 60);
    QCOMPARE(BulkOperation(*m_document, project(), upTo(70)).run(BulkOperation::Remove).lines, 70);
    QCOMPARE(m_document->undoText(),
             QStringLiteral("Zuordnung von 70 Zeilen aufgehoben in cat/a.prj"));
    m_document->undo();
    m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->mapping(project())),
             SessionFixture::bytes(SessionFixture::plainMapping(Path, 100)));
}

void tst_BulkOperation::nothingToDoIsNoStep()
{
    use(SessionFixture::plainMapping(Path, 5, 2));
    QCOMPARE(BulkOperation(*m_document, project(), upTo(5)).run(BulkOperation::Confirm).lines, 0);
    QCOMPARE(BulkOperation(*m_document, project(), {}).run(BulkOperation::Remove).lines, 0);
    const ProjectId unknown{QStringLiteral("gone.prj"), {}, {}};
    QCOMPARE(BulkOperation(*m_document, unknown, upTo(5)).run(BulkOperation::Remove).lines, 0);
    QVERIFY(!m_document->canUndo());
    QVERIFY(!m_document->isModified());
}

void tst_BulkOperation::previewChangesNothing()
{
    use(SessionFixture::plainMapping(Path, 5));
    (void)BulkOperation(*m_document, project(), upTo(5)).preview(BulkOperation::Remove);
    m_document->finishStep();
    QVERIFY(!m_document->canUndo());
    QCOMPARE(m_document->counts().toCheck(), 5);
}

void tst_BulkOperation::previewTexts_data()
{
    QTest::addColumn<QList<SampleLine>>("lines");
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("text");
    const QString range = QStringLiteral("{L=1} -> 2");
    const QList<SampleLine> many{{1, 5, 0, range, false}, {2, 5, 2, range, false},
                                 {3, 5, 2, {}, false},    {4, 5, 0, {}, true},
                                 {5, -1, 1, {}, false},   {6, -1, 1, {}, false}};
    QTest::newRow("confirm one")
        << QList<SampleLine>{{1, 5, 0, {}, false}} << int(BulkOperation::Confirm)
        << QStringLiteral("1 Zeile bestätigen?\n9 Zeilen sind in keinem Zielprojekt eingetragen.");
    QTest::newRow("confirm many") << many << int(BulkOperation::Confirm)
                                  << QStringLiteral("1 Zeile bestätigen?\n"
                                                    "2 Zeilen ohne Ziel bleiben unbestätigt.\n"
                                                    "2 Zeilen bleiben, wie sie sind.\n"
                                                    "1 Zeile mit Konflikt wird nicht geändert.\n"
                                                    "4 Zeilen sind in keinem Zielprojekt "
                                                    "eingetragen.");
    QTest::newRow("remove many") << many << int(BulkOperation::Remove)
                                 << QStringLiteral(
                                        "Zuordnung von 3 Zeilen aufheben?\n"
                                        "2 davon sind schon bestätigt.\n"
                                        "2 davon verlieren ihre Wertebereichszuordnung.\n"
                                        "2 Zeilen bleiben, wie sie sind.\n"
                                        "1 Zeile mit Konflikt wird nicht geändert.\n"
                                        "4 Zeilen sind in keinem Zielprojekt eingetragen.");
    QTest::newRow("remove and confirm many")
        << many << int(BulkOperation::RemoveAndConfirm)
        << QStringLiteral("Zuordnung von 5 Zeilen aufheben und als ausgelaufen bestätigen?\n"
                          "2 davon sind schon bestätigt.\n"
                          "2 davon verlieren ihre Wertebereichszuordnung.\n"
                          "1 Zeile mit Konflikt wird nicht geändert.\n"
                          "4 Zeilen sind in keinem Zielprojekt eingetragen.");
    QTest::newRow("nothing") << QList<SampleLine>{{1, 5, 2, {}, false}}
                             << int(BulkOperation::Confirm)
                             << QStringLiteral("Es ist nichts zu ändern.\n"
                                               "1 Zeile bleibt, wie sie ist.\n"
                                               "9 Zeilen sind in keinem Zielprojekt eingetragen.");
}

void tst_BulkOperation::previewTexts()
{
    QFETCH(QList<SampleLine>, lines);
    QFETCH(int, action);
    QFETCH(QString, text);
    use(SessionFixture::mapping(Path, lines));
    const BulkOperation operation(*m_document, project(), upTo(10));
    QCOMPARE(BulkOperation::question(BulkOperation::Action(action),
                                     operation.preview(BulkOperation::Action(action))),
             text);
}

void tst_BulkOperation::aRemovedLineKeepsItsPlaceInTheNotFoundTarget()
{
    PrjMappingC mapping = SessionFixture::plainMapping(Path, 2);
    PrjMappingTargetC notFound;
    notFound.addLineId(2, -1, PRJMAPPING::Verified, QString());
    notFound.addLineId(7, -1, PRJMAPPING::ToCheck, QString());
    mapping.addTarget(notFound);
    use(mapping);
    (void)BulkOperation(*m_document, project(), upTo(7)).run(BulkOperation::Remove);
    QCOMPARE(entries(m_document->mapping(project())), QStringLiteral("-:1>-1/1 -:2>-1/1 -:7>-1/0"));
    QCOMPARE(m_document->mapping(project()).countTargets(), 2);
}

void tst_BulkOperation::readOnly()
{
    use(SessionFixture::plainMapping(Path, 5));
    const QString file = m_document->mappingFile();
    m_document->open({file, {}, {}, MappingDocument::Access::ReadOnly, {}});
    QCOMPARE(BulkOperation(*m_document, project(), upTo(5)).run(BulkOperation::Confirm).lines, 0);
    QCOMPARE(m_document->counts().verified(), 0);
}

void tst_BulkOperation::tenThousandLines()
{
    use(SessionFixture::plainMapping(Path, 100000));
    QCOMPARE(BulkOperation(*m_document, project(), upTo(10000)).run(BulkOperation::Confirm).lines,
             10000);
    QCOMPARE(m_document->counts().verified(), 10000);
    m_document->undo();
    QCOMPARE(m_document->counts().verified(), 0);
    m_document->redo();
    QCOMPARE(m_document->counts().verified(), 10000);
}

void tst_BulkOperation::resultsNameWhatWasLeftOut()
{
    use(SessionFixture::mapping(
        Path,
        {{1, 5, 0, {}, false}, {2, 6, 0, {}, false}, {3, -1, 1, {}, false}, {4, 7, 0, {}, true}}));
    const BulkOperation operation(*m_document, project(), upTo(4));
    QCOMPARE(BulkOperation::result(BulkOperation::Confirm, operation.run(BulkOperation::Confirm)),
             QStringLiteral("2 Zeilen bestätigt. 1 Zeile ohne Ziel bleibt unbestätigt. 1 Zeile mit "
                            "Konflikt wird nicht geändert."));
    QCOMPARE(BulkOperation::result(BulkOperation::ConfirmExpired,
                                   operation.run(BulkOperation::ConfirmExpired)),
             QStringLiteral("1 Zeile als ausgelaufen bestätigt. 2 Zeilen bleiben, wie sie sind. 1 "
                            "Zeile mit Konflikt wird nicht geändert."));
}

QTEST_GUILESS_MAIN(tst_BulkOperation)

#include "tst_BulkOperation.moc"
