#include "SessionFixture.h"
#include "TableFixture.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/OpenLines.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

LineRef ref(const char *path, int line)
{
    return {projectId(QString::fromLatin1(path)), line};
}

const char A[] = "z.prj";            // in the root, behind all directories
const char B[] = "cat/screws/b.prj"; // deepest, so it comes first
const char C[] = "cat/m.prj";
const char D[] = "dog/n.prj";

} // namespace

class tst_OpenLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void walksInTheOrderOfTheTree();
    void walksBackwards();
    void startsWithoutAPlace();
    void passesByAProject();
    void startsBesideOpenLines();
    void aloneIsItsOwnNext();
    void nothingOpen();
    void kinds_data();
    void kinds();
    void everyLineIsOfOneKind_data();
    void everyLineIsOfOneKind();
    void aLineOfSeveralTargetsIsOfItsFirstKind();
    void countsFollowChanges();
    void followsANewTree();
    void linesOfSeveralTargets();
    void conflictsComeFirst();
    void goesOnWhereItWas();
    void beginsWithWhatItsProjectHas();
    void staysWithinTheFilter();
    void projectsThatStandTwice();
    void largeTables();
    void linesByText_data();
    void linesByText();

private:
    void use(const QList<PrjMappingC> &mappings);
    [[nodiscard]] PrjMappingC open(const char *path, const QList<int> &lines) const;

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
};

void tst_OpenLines::init()
{
    m_document.reset();
    m_files = std::make_unique<SessionFixture>();
    m_document = std::make_unique<MappingDocument>();
}

void tst_OpenLines::use(const QList<PrjMappingC> &mappings)
{
    ReleaseMappingC release;
    release.setSourceDate(QStringLiteral("2022-01-01"));
    for (const PrjMappingC &mapping : mappings)
        release.addMapping(mapping);
    QCOMPARE(m_document->open({m_files->write(release), {}, {}, {}, {}}),
             MappingDocument::OpenResult::Opened);
}

/// Twenty confirmed lines but for the open ones.
PrjMappingC tst_OpenLines::open(const char *path, const QList<int> &lines) const
{
    return SessionFixture::withState(SessionFixture::plainMapping(QString::fromLatin1(path), 20, 2),
                                     lines, 0);
}

void tst_OpenLines::walksInTheOrderOfTheTree()
{
    use({open(A, {7}), open(D, {2}), open(C, {}), open(B, {3, 12})});
    const OpenLines lines(m_document.get());
    const QList<LineRef> order{ref(B, 3), ref(B, 12), ref(D, 2), ref(A, 7)};
    LineRef at;
    for (int round = 0; round < 2; ++round) {
        for (const LineRef &expected : order) {
            const OpenLines::Found next = lines.next(at);
            QCOMPARE(next.line, expected);
            QCOMPARE(next.wrapped, round == 1 && expected == order.first());
            at = next.line;
        }
    }
}

void tst_OpenLines::walksBackwards()
{
    use({open(A, {7}), open(D, {2}), open(C, {}), open(B, {3, 12})});
    const OpenLines lines(m_document.get());
    LineRef at = ref(B, 12);
    for (const LineRef &expected : {ref(B, 3), ref(A, 7), ref(D, 2), ref(B, 12), ref(B, 3)}) {
        const OpenLines::Found previous = lines.previous(at);
        QCOMPARE(previous.line, expected);
        QCOMPARE(previous.wrapped, expected == ref(A, 7));
        at = previous.line;
    }
}

void tst_OpenLines::startsWithoutAPlace()
{
    use({open(A, {7}), open(B, {3, 12})});
    const OpenLines lines(m_document.get());
    QCOMPARE(lines.next(LineRef()).line, ref(B, 3));
    QCOMPARE(lines.previous(LineRef()).line, ref(A, 7));
    QCOMPARE(lines.next({projectId(QString::fromLatin1(A)), -1}).line, ref(A, 7));
    QCOMPARE(lines.previous({projectId(QString::fromLatin1(B)), -1}).line, ref(B, 12));
    QCOMPARE(lines.next(ref("gone.prj", 5)).line, ref(B, 3));
}

/// All of its lines at once, however many they are.
void tst_OpenLines::passesByAProject()
{
    use({open(A, {7}), open(B, {3, 12}), open(D, {5, 14})});
    const OpenLines lines(m_document.get());
    const OpenLines::Kind kind = lines.next(LineRef()).kind;
    const auto beyond = [&](const char *path, bool forward) {
        return lines.beyond(projectId(QString::fromLatin1(path)), {}, kind, forward);
    };
    QCOMPARE(beyond(B, true).line, ref(D, 5));
    QCOMPARE(beyond(D, true).line, ref(A, 7));
    QVERIFY(!beyond(D, true).wrapped);
    QCOMPARE(beyond(A, true).line, ref(B, 3));
    QVERIFY(beyond(A, true).wrapped);
    QCOMPARE(beyond(A, false).line, ref(D, 14));
    QCOMPARE(beyond(D, false).line, ref(B, 12));
    QCOMPARE(beyond(B, false).line, ref(A, 7));
}

void tst_OpenLines::startsBesideOpenLines()
{
    use({open(A, {7}), open(B, {3, 12})});
    const OpenLines lines(m_document.get());
    QCOMPARE(lines.next(ref(B, 4)).line, ref(B, 12));
    QCOMPARE(lines.next(ref(B, 500)).line, ref(A, 7));
    QCOMPARE(lines.previous(ref(B, 11)).line, ref(B, 3));
    QCOMPARE(lines.previous(ref(B, 3)).line, ref(A, 7));
}

void tst_OpenLines::aloneIsItsOwnNext()
{
    use({open(A, {}), open(B, {3}), open(D, {})});
    const OpenLines lines(m_document.get());
    QCOMPARE(lines.next(ref(B, 3)).line, ref(B, 3));
    QCOMPARE(lines.previous(ref(B, 3)).line, ref(B, 3));
    QVERIFY(lines.next(ref(B, 3)).wrapped);
}

void tst_OpenLines::nothingOpen()
{
    const OpenLines closed(m_document.get());
    QVERIFY(!closed.next(LineRef()).line.isValid());
    QCOMPARE(closed.count(), 0);
    use({open(A, {}), open(B, {})});
    QVERIFY(!closed.next(ref(A, 1)).line.isValid());
    QVERIFY(!closed.previous(ref(A, 1)).line.isValid());
    QCOMPARE(closed.count(), 0);
    QCOMPARE(closed.projectCount(), 0);
}

void tst_OpenLines::kinds_data()
{
    QTest::addColumn<int>("kinds");
    QTest::addColumn<QList<int>>("lines");
    // Lines 1 to 8: with a target line in states 0 to 3, then without one in states 0 to 3.
    QTest::newRow("to check") << int(OpenLines::ToCheck) << QList<int>{1, 4};
    QTest::newRow("not found") << int(OpenLines::NotFound) << QList<int>{5, 6, 8};
    QTest::newRow("proposed") << int(OpenLines::Proposed) << QList<int>{2};
    QTest::newRow("as it begins") << int(OpenLines::Conflict | OpenLines::ToCheck |
                                         OpenLines::NotFound)
                                  << QList<int>{1, 4, 5, 6, 8};
    QTest::newRow("confirmed") << int(OpenLines::Confirmed) << QList<int>{3};
    QTest::newRow("expired") << int(OpenLines::Expired) << QList<int>{7};
    QTest::newRow("all") << int(OpenLines::AllKinds) << QList<int>{1, 4, 5, 6, 8, 2, 3, 7};
    QTest::newRow("none") << 0 << QList<int>{};
}

void tst_OpenLines::kinds()
{
    QFETCH(int, kinds);
    QFETCH(QList<int>, lines);
    QList<SampleLine> all;
    for (int i = 0; i < 8; ++i)
        all.append({i + 1, i < 4 ? 5 : -1, i % 4, QString(), false});
    use({SessionFixture::mapping(QString::fromLatin1(A), all)});
    OpenLines open(m_document.get());
    if (kinds != int(open.kinds()))
        open.setKinds(OpenLines::Kinds(kinds));
    QCOMPARE(open.count(), int(lines.size()));
    QCOMPARE(open.count(projectId(QString::fromLatin1(A))), int(lines.size()));
    QCOMPARE(open.projectCount(), lines.isEmpty() ? 0 : 1);
    OpenLines::Found at;
    const auto kind = [&at] {
        return at.line.isValid() ? std::optional(at.kind) : std::nullopt;
    };
    for (int line : lines) {
        at = open.next(at.line, OpenLines::Shown(), kind());
        QCOMPARE(at.line, ref(A, line));
    }
    for (auto line = lines.rbegin() + (lines.isEmpty() ? 0 : 1); line != lines.rend(); ++line) {
        at = open.previous(at.line, OpenLines::Shown(), kind());
        QCOMPARE(at.line, ref(A, *line));
    }
}

void tst_OpenLines::everyLineIsOfOneKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QList<int>>("lines");
    // Lines 1 to 8: with a target line in states 0 to 3, then without one in states 0 to 3. Lines
    // 11 to 18 are the same in conflict.
    QTest::newRow("conflict") << int(OpenLines::Conflict)
                              << QList<int>{11, 12, 13, 14, 15, 16, 17, 18};
    QTest::newRow("to check") << int(OpenLines::ToCheck) << QList<int>{1, 4};
    QTest::newRow("not found") << int(OpenLines::NotFound) << QList<int>{5, 6, 8};
    QTest::newRow("proposed") << int(OpenLines::Proposed) << QList<int>{2};
    QTest::newRow("confirmed") << int(OpenLines::Confirmed) << QList<int>{3};
    QTest::newRow("expired") << int(OpenLines::Expired) << QList<int>{7};
}

void tst_OpenLines::everyLineIsOfOneKind()
{
    QFETCH(int, kind);
    QFETCH(QList<int>, lines);
    QList<SampleLine> all;
    for (int i = 0; i < 8; ++i) {
        all.append({i + 1, i < 4 ? 5 : -1, i % 4, QString(), false});
        all.append({i + 11, i < 4 ? 5 : -1, i % 4, QString(), true});
    }
    const PrjMappingC mapping = SessionFixture::mapping(QString::fromLatin1(A), all);
    use({mapping});
    const OpenLines open(m_document.get());
    QCOMPARE(open.countOf(OpenLines::Kind(kind)), int(lines.size()));
    QCOMPARE(OpenLines::countOf(mapping, OpenLines::Kinds(kind)), int(lines.size()));
    QCOMPARE(OpenLines::linesOf(mapping, OpenLines::Kinds(kind)),
             std::vector<int>(lines.begin(), lines.end()));
    QCOMPARE(OpenLines::linesOf(mapping, OpenLines::Kinds(kind) | OpenLines::ToCheck).size(),
             size_t(lines.size() + (kind == OpenLines::ToCheck ? 0 : 2)));
    for (const int line : lines)
        QCOMPARE(int(open.kindOf(ref(A, line)).value()), kind);
    QVERIFY(!open.kindOf(ref(A, 99)));
}

void tst_OpenLines::aLineOfSeveralTargetsIsOfItsFirstKind()
{
    PrjMappingC mapping = SessionFixture::mapping(
        QString::fromLatin1(A), {{1, 5, 2, QString(), false}, {2, 5, 2, QString(), false}});
    PrjMappingTargetC second;
    second.setTargetPath("new/u.prj");
    second.addLineId(1, 4, PRJMAPPING::ToCheck, QString());
    mapping.addTarget(second);
    QCOMPARE(OpenLines::linesOf(mapping, OpenLines::ToCheck), std::vector<int>{1});
    QCOMPARE(OpenLines::linesOf(mapping, OpenLines::Confirmed), std::vector<int>{2});
    QCOMPARE(OpenLines::linesOf(mapping, OpenLines::Kinds(OpenLines::AllKinds)),
             (std::vector<int>{1, 2}));
}

void tst_OpenLines::countsFollowChanges()
{
    use({open(A, {7}), open(B, {3, 12})});
    const OpenLines lines(m_document.get());
    QSignalSpy changed(&lines, &OpenLines::countChanged);
    QCOMPARE(lines.count(), 3);
    QCOMPARE(lines.projectCount(), 2);
    m_document->updateMapping(open(B, {12}));
    m_document->finishStep();
    QCOMPARE(lines.count(), 2);
    QCOMPARE(lines.projectCount(), 2);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toInt(), 2);
    m_document->undo();
    QCOMPARE(changed.last().first().toInt(), 3);
    m_document->updateMapping(open(B, {}));
    m_document->finishStep();
    QCOMPARE(lines.projectCount(), 1);
    QCOMPARE(lines.next(LineRef()).line, ref(A, 7));
    QVERIFY(!lines.nextProject(projectId(QString::fromLatin1(A)), true).isValid());
    m_document->undo();
    QCOMPARE(lines.projectCount(), 2);
    QCOMPARE(lines.next(LineRef()).line, ref(B, 3));
    m_document->close();
    QCOMPARE(changed.last().first().toInt(), 0);
    QCOMPARE(lines.projectCount(), 0);
}

void tst_OpenLines::followsANewTree()
{
    use({open(A, {7})});
    const OpenLines lines(m_document.get());
    QCOMPARE(lines.next(LineRef()).line, ref(A, 7));
    ReleaseMappingC other = m_document->release();
    other.addMapping(open(D, {1}));
    m_document->replaceRelease(other, QString());
    QCOMPARE(lines.next(LineRef()).line, ref(D, 1));
    m_document->undo();
    QCOMPARE(lines.next(LineRef()).line, ref(A, 7));
}

void tst_OpenLines::linesOfSeveralTargets()
{
    PrjMappingC mapping = open(A, {4, 9});
    PrjMappingTargetC notFound;
    notFound.addLineId(6, -1, PRJMAPPING::Mapped, QString());
    notFound.addLineId(9, -1, PRJMAPPING::ToCheck, QString());
    mapping.addTarget(notFound);
    use({mapping});
    const OpenLines lines(m_document.get());
    QCOMPARE(lines.count(), 4);
    // The line to check, then the two without target line, one of them in both lists.
    OpenLines::Found at;
    std::optional<OpenLines::Kind> among;
    for (const int line : {4, 9, 6, 9, 4}) {
        at = lines.next(at.line, OpenLines::Shown(), among);
        QCOMPARE(at.line, ref(A, line));
        among = at.kind;
    }
    QVERIFY(at.wrapped);
    for (const int line : {9, 6, 9}) {
        at = lines.previous(at.line, OpenLines::Shown(), among);
        QCOMPARE(at.line, ref(A, line));
        among = at.kind;
    }
}

void tst_OpenLines::conflictsComeFirst()
{
    QList<SampleLine> lines;
    for (int i = 1; i <= 6; ++i)
        lines.append({i, i, 2, QString(), i == 2 || i == 5});
    lines[2].state = 0;
    const PrjMappingC conflicts = SessionFixture::mapping(QString::fromLatin1(D), lines);
    use({open(A, {7}), conflicts, open(B, {3})});
    const OpenLines open(m_document.get());
    QCOMPARE(open.count(), 5);
    QCOMPARE(open.countOf(OpenLines::Conflict), 2);
    QCOMPARE(open.countOf(OpenLines::ToCheck), 3);
    QCOMPARE(open.count(projectId(QString::fromLatin1(D))), 3);
    // Though they are confirmed, and although the other project comes first.
    OpenLines::Found at;
    for (const LineRef &expected : {ref(D, 2), ref(D, 5), ref(B, 3), ref(D, 3), ref(A, 7)}) {
        at = at.line.isValid() ? open.next(at.line, OpenLines::Shown(), at.kind)
                               : open.next(at.line);
        QCOMPARE(at.line, expected);
        QVERIFY(!at.wrapped);
    }
    at = open.next(at.line, OpenLines::Shown(), at.kind);
    QCOMPARE(at.line, ref(D, 2));
    QVERIFY(at.wrapped);
    QCOMPARE(at.kind, OpenLines::Conflict);
    QCOMPARE(open.placeOf(ref(D, 2), OpenLines::Conflict), 1);
    QCOMPARE(open.placeOf(ref(D, 5), OpenLines::Conflict), 2);
    QCOMPARE(open.placeOf(ref(A, 7), OpenLines::ToCheck), 3);
    QCOMPARE(open.kindOf(ref(D, 2)), std::optional(OpenLines::Conflict));
    QCOMPARE(open.kindOf(ref(D, 3)), std::optional(OpenLines::ToCheck));
    QVERIFY(open.kindOf(ref(D, 1)) == OpenLines::Confirmed);
}

/// One that is settled is behind: not back to the conflicts before.
void tst_OpenLines::goesOnWhereItWas()
{
    QList<SampleLine> lines;
    for (int i = 1; i <= 6; ++i)
        lines.append({i, i, i == 4 || i == 6 ? 0 : 2, QString(), i == 1});
    use({SessionFixture::mapping(QString::fromLatin1(A), lines)});
    const OpenLines open(m_document.get());
    OpenLines::Found at = open.next(open.next({}).line);
    QCOMPARE(at.line, ref(A, 4));
    m_document->updateMapping(
        SessionFixture::withState(m_document->mapping(projectId(QString::fromLatin1(A))), {4}, 2));
    m_document->finishStep();
    QCOMPARE(open.next(at.line, OpenLines::Shown(), at.kind).line, ref(A, 6));
    QCOMPARE(open.next(at.line).line, ref(A, 1));
}

/// Chosen by hand, or the first one of a project that was opened.
void tst_OpenLines::beginsWithWhatItsProjectHas()
{
    QList<SampleLine> lines;
    for (int i = 1; i <= 8; ++i) {
        const bool hasTarget = i != 1 && i != 6 && i != 8;
        lines.append({i, hasTarget ? i : -1, 0, QString(), i == 5});
    }
    use({SessionFixture::mapping(QString::fromLatin1(D), lines),
         SessionFixture::mapping(QString::fromLatin1(B), {{3, -1, 0, QString(), true}}),
         SessionFixture::mapping(QString::fromLatin1(A), {{2, -1, 0, QString(), false}})});
    const OpenLines open(m_document.get());
    QCOMPARE(open.next(ref(D, 1)).line, ref(D, 5));     // a conflict
    QCOMPARE(open.next(ref(D, 5)).line, ref(D, 2));     // no more of them: those to check
    QCOMPARE(open.next(ref(D, 6)).line, ref(D, 7));     // to check
    QCOMPARE(open.next(ref(D, 8)).line, ref(A, 2));     // nothing else behind it
    QCOMPARE(open.previous(ref(D, 8)).line, ref(D, 5)); // the conflict before
    QCOMPARE(open.previous(ref(D, 4)).line, ref(D, 3));
    QCOMPARE(open.next(ref(D, 1), OpenLines::Shown(), OpenLines::NotFound).line, ref(D, 6));
    // In the order and within what is shown.
    const QList<int> rows{7, 8, 1, 2};
    const OpenLines::Shown shown{projectId(QString::fromLatin1(D)), 4, true,
                                 [rows](int row) { return rows[row]; },
                                 [rows](int line) {
                                     return int(rows.indexOf(line));
                                 }};
    QCOMPARE(open.next(ref(D, 8), shown).line, ref(D, 2));
    QCOMPARE(open.next(ref(D, 1), shown).line, ref(D, 2));
}

void tst_OpenLines::staysWithinTheFilter()
{
    use({open(B, {1, 2}), open(D, {2, 5, 8, 9, 14}), open(A, {7})});
    const OpenLines lines(m_document.get());
    const QList<int> rows{14, 3, 5, 2};
    OpenLines::Shown shown;
    shown.project = projectId(QString::fromLatin1(D));
    shown.rows = int(rows.size());
    shown.isFiltered = true;
    shown.lineAt = [&](int row) {
        return rows.at(row);
    };
    shown.rowOf = [&](int line) {
        return int(rows.indexOf(line));
    };
    QCOMPARE(lines.countIn(shown), 3);
    OpenLines::Found at = lines.next({shown.project, -1}, shown);
    QCOMPARE(at.line, ref(D, 14));
    at = lines.next(at.line, shown);
    QCOMPARE(at.line, ref(D, 5));
    at = lines.next(at.line, shown);
    QCOMPARE(at.line, ref(D, 2));
    QVERIFY(!at.wrapped);
    at = lines.next(at.line, shown);
    QCOMPARE(at.line, ref(D, 14));
    QVERIFY(at.wrapped);
    QCOMPARE(lines.previous(ref(D, 5), shown).line, ref(D, 14));
    QCOMPARE(lines.previous(ref(D, 14), shown).line, ref(D, 2));
    // Nothing in the filter is nothing, whatever is elsewhere.
    shown.rows = 0;
    QVERIFY(!lines.next({shown.project, -1}, shown).line.isValid());
    // Without a filter only the order of the rows counts.
    shown.rows = int(rows.size());
    shown.isFiltered = false;
    QCOMPARE(lines.next(ref(D, 14), shown).line, ref(D, 5));
    QCOMPARE(lines.next(ref(D, 2), shown).line, ref(A, 7));
    QCOMPARE(lines.next(ref(B, 2), shown).line, ref(D, 14));
}

void tst_OpenLines::projectsThatStandTwice()
{
    // Two table versions of one project: the tree shows the first twice.
    PrjMappingC second = open(B, {5});
    second.setTabVersion(QStringLiteral("t2"));
    use({open(A, {7}), open(B, {3}), second});
    const OpenLines lines(m_document.get());
    QCOMPARE(lines.next(LineRef()).line, ref(B, 3));
    QCOMPARE(lines.next(ref(B, 3)).line, ref(A, 7));
    QCOMPARE(lines.next(ref(A, 7)).line, ref(B, 3));
    QCOMPARE(lines.previous(ref(B, 3)).line, ref(A, 7));
}

void tst_OpenLines::largeTables()
{
    PrjMappingC large = SessionFixture::plainMapping(QString::fromLatin1(A), 60000, 2);
    const QList<int> wanted{1, 256, 257, 16384, 16385, 40000, 60000};
    use({SessionFixture::withState(large, wanted, 0)});
    const OpenLines lines(m_document.get());
    LineRef at;
    for (int line : wanted) {
        at = lines.next(at).line;
        QCOMPARE(at.line, line);
    }
    QCOMPARE(lines.next(at).line.line, 1);
    for (qsizetype i = wanted.size() - 2; i >= 0; --i) {
        at = lines.previous(at).line;
        QCOMPARE(at.line, wanted[i]);
    }
}

void tst_OpenLines::linesByText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("lines");
    QTest::newRow("whole") << QStringLiteral("DIN 931 - M8 x 40") << QList<int>{11};
    QTest::newRow("without regard to case and blanks")
        << QStringLiteral("  din 931  - m8 X 40 ") << QList<int>{11};
    QTest::newRow("beginning") << QStringLiteral("DIN 931 - M8") << QList<int>({12, 11});
    QTest::newRow("part") << QStringLiteral("x 40") << QList<int>({12, 11, 3});
    QTest::newRow("number first") << QStringLiteral("11") << QList<int>{11};
    QTest::newRow("number that is no line") << QStringLiteral("40") << QList<int>({12, 11, 3});
    QTest::newRow("umlaut") << QStringLiteral("GRÖßE") << QList<int>{5};
    QTest::newRow("nothing") << QStringLiteral("M99") << QList<int>{};
    QTest::newRow("empty") << QStringLiteral("  ") << QList<int>{};
}

void tst_OpenLines::linesByText()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, lines);
    TableFixture::write(m_files->path(QString()), QStringLiteral("t.prj"),
                        {{12, QStringLiteral("DIN 931 - M8 x 400")},
                         {11, QStringLiteral("DIN 931 - M8 x 40")},
                         {3, QStringLiteral("DIN 933 - M8 x 40")},
                         {5, QStringLiteral("größe 11")}});
    const VKTab::ContentRef table =
        TableFixture::read(m_files->path(QString()), QStringLiteral("t.prj"));
    QCOMPARE(OpenLines::linesByText(table, text), lines);
}

QTEST_GUILESS_MAIN(tst_OpenLines)

#include "tst_OpenLines.moc"
