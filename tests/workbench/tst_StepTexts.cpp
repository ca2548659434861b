#include "SessionFixture.h"

#include <workbench/session/document/MappingDocument.h>

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetVarMappingC.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

const QString Path = QStringLiteral("cat/a.prj");

PrjMappingTargetC realTarget(const QString &path)
{
    PrjMappingTargetC target;
    target.setTargetPath(path);
    target.setValid(true);
    return target;
}

} // namespace

/// What a step is called, and what the user is told of it.
class tst_StepTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void stepTexts_data();
    void stepTexts();
    void textOverSeveralProjects();
    void notices_data();
    void notices();
    void expiredLinesAreListed();
    void asManyExpiredLinesAsBefore();
    void stillIgnoredVariablesAreTold();

private:
    void open();
    void change(const PrjMappingC &mapping);

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
};

void tst_StepTexts::init()
{
    m_files = std::make_unique<SessionFixture>();
    m_document = std::make_unique<MappingDocument>();
}

void tst_StepTexts::cleanup()
{
    m_document.reset();
    m_files.reset();
}

void tst_StepTexts::open()
{
    QCOMPARE(m_document->open({m_files->write(), {}, {}, {}, {}}),
             MappingDocument::OpenResult::Opened);
}

/// One user action.
void tst_StepTexts::change(const PrjMappingC &mapping)
{
    m_document->updateMapping(mapping);
    QCoreApplication::processEvents();
}

void tst_StepTexts::stepTexts_data()
{
    QTest::addColumn<PrjMappingC>("before");
    QTest::addColumn<PrjMappingC>("after");
    QTest::addColumn<QString>("text");
    const PrjMappingC plain = SessionFixture::plainMapping(Path, 4);
    const auto row = [&](const char *name, const PrjMappingC &before, const PrjMappingC &after,
                         const char *text) {
        QTest::newRow(name) << before << after << QString::fromUtf8(text);
    };
    const auto lines = [](const QList<SampleLine> &list) {
        return SessionFixture::mapping(Path, list);
    };
    row("one confirmed", plain, SessionFixture::withState(plain, {2}, 2),
        "Zeile 2 → 2 bestätigt in cat/a.prj");
    row("some confirmed", plain, SessionFixture::withState(plain, {1, 2, 4}, 2),
        "3 Zeilen bestätigt in cat/a.prj");
    row("expired", lines({{1, -1, 1, {}, false}}), lines({{1, -1, 2, {}, false}}),
        "Zeile 1 als ausgelaufen bestätigt in cat/a.prj");
    row("assigned", lines({{1, 5, 0, {}, false}}), lines({{1, 6, 1, {}, false}}),
        "Zeile 1 → 6 zugeordnet (vorher 5) in cat/a.prj");
    row("one line confirmed", lines({{3, 5, 0, {}, false}}), lines({{3, 5, 2, {}, false}}),
        "Zeile 3 → 5 bestätigt in cat/a.prj");
    row("one confirmed elsewhere", lines({{3, 5, 0, {}, false}}), lines({{3, 7, 2, {}, false}}),
        "Zeile 3 → 7 bestätigt (vorher 5) in cat/a.prj");
    row("one expired", lines({{3, 5, 0, {}, false}}), lines({{3, -1, 2, {}, false}}),
        "Zeile 3 als ausgelaufen bestätigt (vorher 5) in cat/a.prj");
    row("one removed", lines({{3, 5, 0, {}, false}}), lines({{3, -1, 1, {}, false}}),
        "Zuordnung von Zeile 3 aufgehoben (vorher 5) in cat/a.prj");
    row("everything",
        lines({{1, 5, 0, {}, false},
               {2, 6, 0, {}, true},
               {3, 7, 1, {}, false},
               {4, -1, 1, {}, false}}),
        lines({{1, 5, 2, {}, false},
               {2, 6, 2, {}, false},
               {3, 7, 2, {}, false},
               {4, -1, 2, {}, false}}),
        "3 Zeilen bestätigt, 1 Zeile als ausgelaufen bestätigt, 1 Konflikt angenommen in "
        "cat/a.prj");
    row("text", lines({{1, 5, 0, {}, false}}),
        lines({{1, 5, 0, QStringLiteral("{L=1} -> 2"), false}}),
        "Wertebereichszuordnung von 1 Zeile geändert in cat/a.prj");
    row("conflict settled", lines({{1, 5, 0, {}, true}}), lines({{1, 5, 0, {}, false}}),
        "Konflikt von 1 Zeile gelöst in cat/a.prj");
    row("mixed", lines({{1, 5, 0, {}, false}, {2, 5, 0, {}, false}}),
        lines({{1, 5, 2, {}, false}, {2, 6, 0, {}, false}}),
        "1 Zeile bestätigt, 1 Zeile zugeordnet in cat/a.prj");

    PrjMappingC removed = plain;
    PrjMappingTargetC first = removed.findTarget(0);
    first.removeLineId(1);
    first.removeLineId(2);
    removed.updateTarget(0, first);
    PrjMappingTargetC notFound;
    notFound.addLineId(1, -1, PRJMAPPING::Mapped, QString());
    notFound.addLineId(2, -1, PRJMAPPING::Mapped, QString());
    removed.addTarget(notFound);
    row("removed", plain, removed, "Zuordnung von 2 Zeilen aufgehoben in cat/a.prj");

    PrjMappingC more = plain;
    more.insertTarget(0, realTarget(QStringLiteral("new/u.prj")));
    row("target added", plain, more, "Zielprojekt hinzugefügt in cat/a.prj");
    row("target removed", more, plain, "Zielprojekt entfernt in cat/a.prj");
    PrjMappingC swapped = plain;
    swapped.addTarget(realTarget(QStringLiteral("new/u.prj")));
    row("order", more, swapped, "Reihenfolge der Zielprojekte geändert in cat/a.prj");
    row(
        "target added with lines", plain,
        [&] {
            PrjMappingC both = SessionFixture::withState(plain, {1}, 2);
            both.addTarget(realTarget(QStringLiteral("new/u.prj")));
            return both;
        }(),
        "Zielprojekt hinzugefügt (Zeile 1 → 1 bestätigt) in cat/a.prj");

    PrjMappingC condition = plain;
    PrjMappingTargetC target = plain.findTarget(0);
    target.addCondition(VarsetConditionC::fromText(QStringLiteral("A.EQ.1")));
    condition.updateTarget(0, target);
    row("condition", plain, condition, "Bedingungen geändert in cat/a.prj");
    PrjMappingC modifier = plain;
    target = plain.findTarget(0);
    target.addModifier(new VarsetVarMappingC(QStringLiteral("A"), QStringLiteral("B")));
    modifier.updateTarget(0, target);
    row("modifier", plain, modifier, "Variablenzuordnung geändert in cat/a.prj");
    PrjMappingC version = plain;
    target = plain.findTarget(0);
    target.setTabVersion(QStringLiteral("t9"));
    version.updateTarget(0, target);
    row("version", plain, version, "Versionen geändert in cat/a.prj");
    PrjMappingC state = plain;
    state.setMappingState(PRJMAPPING::StateTableError);
    row("state", plain, state, "Status geändert in cat/a.prj");
}

void tst_StepTexts::stepTexts()
{
    QFETCH(PrjMappingC, before);
    QFETCH(PrjMappingC, after);
    QFETCH(QString, text);
    open();
    change(before);
    change(after);
    QCOMPARE(m_document->undoText(), text);
    m_document->undo();
    QCOMPARE(SessionFixture::bytes(m_document->mapping(projectId(Path))),
             SessionFixture::bytes(before));
    QCOMPARE(m_document->redoText(), text);
    m_document->redo();
    QCOMPARE(SessionFixture::bytes(m_document->mapping(projectId(Path))),
             SessionFixture::bytes(after));
}

void tst_StepTexts::textOverSeveralProjects()
{
    open();
    for (const char *path : {"cat/a.prj", "cat/screws/b.prj"})
        m_document->updateMapping(SessionFixture::withState(
            m_document->mapping(projectId(QString::fromLatin1(path))), {1, 2}, 2));
    m_document->finishStep();
    QCOMPARE(m_document->undoText(), QStringLiteral("4 Zeilen bestätigt in 2 Projekten"));
}

void tst_StepTexts::notices_data()
{
    QTest::addColumn<PrjMappingC>("before");
    QTest::addColumn<PrjMappingC>("after");
    QTest::addColumn<QList<int>>("kinds");
    QTest::addColumn<QString>("part");
    const auto with = [](const QStringList &conditions, const QStringList &variables) {
        PrjMappingC mapping = SessionFixture::plainMapping(Path, 2);
        PrjMappingTargetC target = mapping.findTarget(0);
        for (const QString &condition : conditions)
            target.addCondition(VarsetConditionC::fromText(condition));
        for (const QString &variable : variables)
            target.addModifier(new VarsetVarMappingC(variable, variable));
        mapping.updateTarget(0, target);
        return mapping;
    };
    const QString a = QStringLiteral("A");
    const QString b = QStringLiteral("B");
    const QString c = QStringLiteral("A.EQ.1");
    QTest::newRow("condition dropped")
        << with({c, QStringLiteral("B.EQ.1")}, {}) << with({c}, {})
        << QList<int>{ChangeNotice::ConditionDropped}
        << QStringLiteral("Eine Bedingung des Zielprojekts new/t.prj in cat/a.prj wurde entfernt.");
    QTest::newRow("condition added") << with({}, {}) << with({c}, {}) << QList<int>{} << QString();
    QTest::newRow("modifier dropped")
        << with({}, {a, b}) << with({}, {a})
        << QList<int>{ChangeNotice::ModifierDropped, ChangeNotice::RemapDue}
        << QStringLiteral("Eine Variablenzuordnung des Zielprojekts new/t.prj");
    QTest::newRow("modifier added")
        << with({}, {a}) << with({}, {a, b}) << QList<int>{ChangeNotice::RemapDue}
        << QStringLiteral("wirkt erst, wenn die Zeilen erneut zugewiesen werden");
    PrjMappingC added = with({}, {});
    added.addTarget(realTarget(QStringLiteral("new/u.prj")));
    QTest::newRow("target added") << with({}, {}) << added << QList<int>{ChangeNotice::RemapDue}
                                  << QString();
    PrjMappingC shared = with({}, {});
    PrjMappingTargetC first = shared.findTarget(0);
    first.addLineId(1, 2, PRJMAPPING::Mapped, QString());
    shared.updateTarget(0, first);
    QTest::newRow("target line shared by the program")
        << with({}, {}) << shared << QList<int>{} << QString();
    first.addLineId(1, 2, PRJMAPPING::Verified, QString());
    shared.updateTarget(0, first);
    QTest::newRow("target line shared")
        << with({}, {}) << shared << QList<int>{ChangeNotice::TargetLineShared}
        << QStringLiteral("Zeile 1 → 2 in cat/a.prj: die Zielzeile hat auch 1 andere Zeile: 2");
    QTest::newRow("lines only") << with({}, {}) << SessionFixture::withState(with({}, {}), {1}, 2)
                                << QList<int>{} << QString();
}

void tst_StepTexts::notices()
{
    QFETCH(PrjMappingC, before);
    QFETCH(PrjMappingC, after);
    QFETCH(QList<int>, kinds);
    QFETCH(QString, part);
    open();
    change(before);
    QSignalSpy raised(m_document.get(), &MappingDocument::noticeRaised);
    change(after);
    QList<int> found;
    QString text;
    for (const QList<QVariant> &arguments : raised) {
        const auto notice = arguments.first().value<ChangeNotice>();
        QCOMPARE(notice.project, projectId(Path));
        found += notice.kind;
        text += notice.text;
    }
    QCOMPARE(found, kinds);
    QVERIFY2(text.contains(part), qPrintable(text));
}

void tst_StepTexts::expiredLinesAreListed()
{
    open();
    QList<SampleLine> lines;
    for (int i = 1; i <= 15; ++i)
        lines.append({i, -1, 2, QString(), false});
    change(SessionFixture::mapping(Path, lines));
    QSignalSpy raised(m_document.get(), &MappingDocument::noticeRaised);
    for (int i = 0; i < 12; ++i)
        lines[i] = {i + 1, 5, 1, QString(), false};
    change(SessionFixture::mapping(Path, lines));
    QCOMPARE(raised.size(), 1);
    const auto notice = raised.first().first().value<ChangeNotice>();
    QCOMPARE(notice.kind, ChangeNotice::ExpiredLost);
    QCOMPARE(notice.lines, QList<int>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    QCOMPARE(notice.text,
             QStringLiteral("12 Zeilen in cat/a.prj waren als ausgelaufen bestätigt und "
                            "sind es nicht mehr: 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, ..."));
}

void tst_StepTexts::asManyExpiredLinesAsBefore()
{
    open();
    change(SessionFixture::mapping(Path, {{1, -1, 2, {}, false}, {2, 5, 1, {}, false}}));
    QSignalSpy raised(m_document.get(), &MappingDocument::noticeRaised);
    change(SessionFixture::mapping(Path, {{1, 5, 1, {}, false}, {2, -1, 2, {}, false}}));
    QCOMPARE(raised.size(), 0);
    change(SessionFixture::mapping(Path, {{1, 5, 1, {}, false}, {2, 6, 1, {}, false}}));
    QCOMPARE(raised.size(), 1);
    QCOMPARE(raised.first().first().value<ChangeNotice>().text,
             QStringLiteral("1 Zeile in cat/a.prj war als ausgelaufen bestätigt und ist es nicht "
                            "mehr: 2"));
}

void tst_StepTexts::stillIgnoredVariablesAreTold()
{
    open();
    const auto ignoring = [](const char *source) {
        PrjMappingC mapping = SessionFixture::plainMapping(Path, 2);
        PrjMappingTargetC target = mapping.findTarget(0);
        target.addModifier(new VarsetVarMappingC(QString(), QStringLiteral("L")));
        target.addModifier(new VarsetVarMappingC(QString::fromLatin1(source), QStringLiteral("D")));
        mapping.updateTarget(0, target);
        return mapping;
    };
    change(ignoring("D"));
    QSignalSpy raised(m_document.get(), &MappingDocument::noticeRaised);
    change(ignoring("D")); // stored anew by the editor, nothing came of the user's choice
    QCOMPARE(raised.size(), 1);
    const auto notice = raised.first().first().value<ChangeNotice>();
    QCOMPARE(notice.kind, ChangeNotice::IgnoredNotShrunk);
    QVERIFY2(notice.text.contains(QStringLiteral("bleiben Variablen ignoriert: L.")),
             qPrintable(notice.text));
    QCOMPARE(m_document->undoTexts().size(), 1);
    raised.clear();
    change(m_document->mapping(projectId(Path)));
    QCOMPARE(raised.size(), 0);
}

QTEST_GUILESS_MAIN(tst_StepTexts)

#include "tst_StepTexts.moc"
