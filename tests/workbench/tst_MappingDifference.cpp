#include "SessionFixture.h"

#include <release/history/JournalRow.h>
#include <workbench/session/change/ChangeOnTop.h>
#include <workbench/session/change/MappingDifference.h>
#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/journal/JournalText.h>

#include <core/json/PJsonValue.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>

#include <QTest>

#include <random>

namespace {

const QString Path = QStringLiteral("cat/a.prj");

/// Changes a mapping at random, the same way for the same seed.
class RandomEditor
{
public:
    explicit RandomEditor(unsigned seed)
        : m_random(seed)
    {
    }

    void edit(PrjMappingC &mapping)
    {
        switch (below(mapping.countTargets() > 0 ? 8 : 1)) {
        case 0:
            insertTarget(mapping);
            return;
        case 1:
            mapping.removeTarget(below(mapping.countTargets()));
            return;
        case 2:
            moveTarget(mapping);
            return;
        case 3:
            changeHead(mapping);
            return;
        default:
            changeLines(mapping);
        }
    }

private:
    int below(int limit) { return int(m_random() % unsigned(qMax(limit, 1))); }

    void insertTarget(PrjMappingC &mapping)
    {
        PrjMappingTargetC target;
        const int kind = below(4);
        if (kind > 0)
            target.setTargetPath(QStringLiteral("new/%1.prj").arg(kind));
        target.setValid(true);
        for (int i = below(400); i > 0; --i)
            target.addLineId(below(2000), below(5) - 1, PRJMAPPING::CheckState(below(4)), text());
        mapping.insertTarget(below(mapping.countTargets() + 1), target);
    }

    void moveTarget(PrjMappingC &mapping)
    {
        const int from = below(mapping.countTargets());
        const PrjMappingTargetC target = mapping.findTarget(from);
        mapping.removeTarget(from);
        mapping.insertTarget(below(mapping.countTargets() + 1), target);
    }

    void changeHead(PrjMappingC &mapping)
    {
        const int at = below(mapping.countTargets());
        PrjMappingTargetC target = mapping.findTarget(at);
        target.setTabVersion(QStringLiteral("t%1").arg(below(3)));
        if (below(2) == 0)
            target.clearConditions();
        target.addCondition(
            VarsetConditionC::fromText(QStringLiteral("A.EQ.'%1 \"ä\n'").arg(below(3))));
        if (below(2) == 0)
            target.clearModifier();
        target.addModifier(
            below(2) == 0
                ? static_cast<VarsetModifierI *>(new VarsetVarMappingC(
                      below(2) == 0 ? QString() : QStringLiteral("A"), QStringLiteral("B")))
                : VarsetValueMappingC::fromText(QStringLiteral("B = A + 1")));
        mapping.updateTarget(at, target);
    }

    void changeLines(PrjMappingC &mapping)
    {
        const int at = below(mapping.countTargets());
        PrjMappingTargetC target = mapping.findTarget(at);
        for (int i = below(30) + 1; i > 0; --i) {
            const int line = below(2000);
            if (below(4) == 0)
                target.removeLineId(line);
            else
                target.addLineId(line, below(50) - 1, PRJMAPPING::CheckState(below(4)), text());
            target.setLineConflicted(line, below(5) == 0);
        }
        mapping.updateTarget(at, target);
    }

    QString text()
    {
        return below(6) == 0 ? QStringLiteral("{L=%1} -> 3\n{D=\"ö\"} -> 4").arg(below(9))
                             : QString();
    }

    std::mt19937 m_random;
};

std::optional<MappingDifference> throughText(const MappingDifference &difference)
{
    PJsonValue json;
    const QByteArray text = JournalText::writeChange(difference, 7);
    if (text.contains('\n') || !json.parse(text))
        return std::nullopt;
    return JournalText::readChange(json);
}

} // namespace

class tst_MappingDifference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sharedPagesArePassedOver();
    void linesOfEqualTables();
    void randomChanges_data();
    void randomChanges();
    void comingAndGoing();
    void refusesAnotherState_data();
    void refusesAnotherState();
    void keepsWhatMakesATargetValid();
    void anotherOrderWantsTheSameTargets();
    void tellsMarks();
    void smallChangesHaveSmallTexts();
    void framesAreChecked_data();
    void framesAreChecked();
    void checksumIsTheUsualOne();
    void wrongRecordsAreRefused_data();
    void wrongRecordsAreRefused();
    void releases();
};

void tst_MappingDifference::sharedPagesArePassedOver()
{
    // So many lines that walking them all for each change would take minutes.
    PrjMappingTargetC target;
    for (int i = 0; i < 200000; ++i)
        target.addLineId(i, i, PRJMAPPING::ToCheck, QString());
    for (int line = 0; line < 400; ++line) {
        const PrjMappingTargetC before = target;
        target.addLineId(line * 499, 1, PRJMAPPING::Verified, QString());
        const auto found = LineTable::differences(before.lines(), target.lines());
        QCOMPARE(found.size(), std::size_t(1));
        QCOMPARE(found[0].line, line * 499);
        QVERIFY(found[0].inBefore && found[0].inAfter);
        QCOMPARE(found[0].before.getState(), PRJMAPPING::ToCheck);
        QCOMPARE(found[0].after.getState(), PRJMAPPING::Verified);
    }
}

void tst_MappingDifference::linesOfEqualTables()
{
    const PrjMappingC a = SessionFixture::plainMapping(Path, 1000);
    const PrjMappingC b = SessionFixture::plainMapping(Path, 1000);
    QVERIFY(LineTable::differences(a.targetAt(0).lines(), b.targetAt(0).lines()).empty());
    QVERIFY(MappingDifference::between(a, b).isEmpty());
    QVERIFY(LineTable::differences(LineTable(), LineTable()).empty());
    QCOMPARE(LineTable::differences(LineTable(), b.targetAt(0).lines()).size(), std::size_t(1000));
    QCOMPARE(LineTable::differences(b.targetAt(0).lines(), LineTable()).size(), std::size_t(1000));
}

void tst_MappingDifference::randomChanges_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_MappingDifference::randomChanges()
{
    QFETCH(unsigned, seed);
    RandomEditor editor(seed);
    PrjMappingC mapping = SessionFixture::plainMapping(Path, 300);
    for (int i = 0; i < 40; ++i) {
        const PrjMappingC before = mapping;
        editor.edit(mapping);
        const auto forward = throughText(MappingDifference::between(before, mapping));
        const auto backward = throughText(MappingDifference::between(mapping, before));
        QVERIFY(forward && backward);
        QCOMPARE(forward->isEmpty(),
                 SessionFixture::bytes(before) == SessionFixture::bytes(mapping));
        const auto after = forward->applied(before);
        QVERIFY(after);
        QCOMPARE(SessionFixture::bytes(*after), SessionFixture::bytes(mapping));
        const auto undone = backward->applied(*after);
        QVERIFY(undone);
        QCOMPARE(SessionFixture::bytes(*undone), SessionFixture::bytes(before));
    }
}

void tst_MappingDifference::comingAndGoing()
{
    const PrjMappingC mapping = SessionFixture::plainMapping(Path, 5);
    const auto comes = throughText(MappingDifference::between(PrjMappingC(), mapping));
    QVERIFY(comes && !comes->isEmpty());
    QCOMPARE(SessionFixture::bytes(comes->applied(PrjMappingC()).value()),
             SessionFixture::bytes(mapping));
    QVERIFY(!comes->applied(mapping));
    const auto goes = throughText(MappingDifference::between(mapping, PrjMappingC()));
    QVERIFY(goes && !goes->isEmpty());
    QVERIFY(!goes->applied(mapping)->isValid());
    QVERIFY(!goes->applied(PrjMappingC()));
}

void tst_MappingDifference::refusesAnotherState_data()
{
    QTest::addColumn<PrjMappingC>("other");
    const PrjMappingC mapping = SessionFixture::plainMapping(Path, 5);
    QTest::newRow("line has another state") << SessionFixture::withState(mapping, {2}, 1);
    QTest::newRow("line is missing") << SessionFixture::plainMapping(Path, 1);
    PrjMappingC more = mapping;
    more.addTarget(QStringLiteral("new/u.prj"), QString());
    QTest::newRow("one target more") << more;
    PrjMappingC less = mapping;
    less.removeTarget(0);
    QTest::newRow("no target") << less;
    PrjMappingC table = mapping;
    table.setTabVersion(QStringLiteral("t2"));
    QTest::newRow("other table version") << table;
    QTest::newRow("not there") << PrjMappingC();
}

void tst_MappingDifference::refusesAnotherState()
{
    QFETCH(PrjMappingC, other);
    const PrjMappingC before = SessionFixture::plainMapping(Path, 5);
    const PrjMappingC after = SessionFixture::withState(before, {2}, 2);
    const MappingDifference difference = MappingDifference::between(before, after);
    QVERIFY(difference.applied(before));
    QVERIFY(!difference.applied(other));
    ReleaseMappingC release;
    if (other.isValid())
        release.addMapping(other);
    const QByteArray bytes = SessionFixture::bytes(release);
    QVERIFY(!applyChange(release, difference));
    QCOMPARE(SessionFixture::bytes(release), bytes);
}

void tst_MappingDifference::keepsWhatMakesATargetValid()
{
    const PrjMappingC before = SessionFixture::plainMapping(QStringLiteral("a.prj"), 2);
    PrjMappingC after = before;
    PrjMappingTargetC target = after.findTarget(0);
    target.setTargetVersion(QStringLiteral("v9"));
    target.setTabVersion(QStringLiteral("t9"));
    target.setValid(false);
    after.updateTarget(0, target);
    const MappingDifference there = MappingDifference::between(before, after);
    const PrjMappingC applied = there.applied(before).value();
    QVERIFY(!applied.targetAt(0).isValid());
    QCOMPARE(applied.targetAt(0).getTargetVersion(), QStringLiteral("v9"));
    QCOMPARE(applied.targetAt(0).getTabVersion(), QStringLiteral("t9"));
    const MappingDifference back = MappingDifference::between(after, before);
    QVERIFY(back.applied(after).value().targetAt(0).isValid());
}

/// Taken back on a mapping that has one more target since: where that one would have to stand is
/// not known. A change of a head is no matter of the order.
void tst_MappingDifference::anotherOrderWantsTheSameTargets()
{
    const auto target = [](const QString &path) {
        PrjMappingTargetC made;
        made.setTargetPath(path);
        made.setValid(true);
        return made;
    };
    PrjMappingC before = SessionFixture::plainMapping(QStringLiteral("a.prj"), 2);
    before.insertTarget(1, target(QStringLiteral("new/b.prj")));
    PrjMappingC moved = before;
    const PrjMappingTargetC first = moved.findTarget(0);
    moved.removeTarget(0);
    moved.insertTarget(1, first);
    PrjMappingC renewed = before;
    PrjMappingTargetC head = renewed.findTarget(1);
    head.setTabVersion(QStringLiteral("t9"));
    renewed.updateTarget(1, head);
    for (const PrjMappingC &after : {moved, renewed}) {
        const MappingDifference back = MappingDifference::between(after, before);
        const ChangeOnTop done = ChangeOnTop::apply(after, back);
        QVERIFY(done.fits());
        QCOMPARE(done.result.targetAt(0).getTargetPath(), before.targetAt(0).getTargetPath());
        PrjMappingC since = after;
        since.insertTarget(2, target(QStringLiteral("new/c.prj")));
        const bool isMoved = after.targetAt(0).getTargetPath() == QStringLiteral("new/b.prj");
        QCOMPARE(ChangeOnTop::apply(since, back).targetsBlock, isMoved);
    }
}

void tst_MappingDifference::tellsMarks()
{
    const PrjMappingC before = SessionFixture::plainMapping(Path, 5);
    PrjMappingC marked = before;
    PrjMappingTargetC target = marked.findTarget(0);
    target.setLineConflicted(2, true);
    marked.updateTarget(0, target);
    QVERIFY(MappingDifference::between(before, marked).onlyMarksConflicts());
    QVERIFY(!MappingDifference::between(marked, before).onlyMarksConflicts());
    QVERIFY(!MappingDifference::between(before, before).onlyMarksConflicts());
    QVERIFY(!MappingDifference::between(before, SessionFixture::withState(marked, {1}, 2))
                 .onlyMarksConflicts());
}

void tst_MappingDifference::smallChangesHaveSmallTexts()
{
    PrjMappingC before = SessionFixture::plainMapping(Path, 5000);
    for (int i = 0; i < 100; ++i)
        before.addTarget(QStringLiteral("new/%1.prj").arg(i), QString());
    const PrjMappingC after = SessionFixture::withState(before, {17}, 2);
    const QByteArray text = JournalText::writeChange(MappingDifference::between(before, after), 1);
    QVERIFY2(text.size() < 250, text.constData());
    QVERIFY2(text.contains("\"lines\":[[17,17,0,17,2]]"), text.constData());
}

void tst_MappingDifference::framesAreChecked_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<bool>("good");
    const QByteArray row = VelkRelease::JournalRow::frame("{\"kind\":\"x\"}").chopped(1);
    QTest::newRow("whole") << row << true;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("cut") << row.chopped(1) << false;
    QTest::newRow("cut in the checksum") << row.left(5) << false;
    QTest::newRow("no blank") << QByteArray(row).replace(8, 1, "-") << false;
    QTest::newRow("no number") << QByteArray(row).replace(0, 1, "g") << false;
    QTest::newRow("one bit") << QByteArray(row).replace("x", "y") << false;
    QTest::newRow("text behind") << row + " " << false;
    QTest::newRow("zeros") << QByteArray(row.size(), '\0') << false;
}

void tst_MappingDifference::framesAreChecked()
{
    QFETCH(QByteArray, row);
    QFETCH(bool, good);
    QCOMPARE(VelkRelease::JournalRow::unframe(row).has_value(), good);
}

void tst_MappingDifference::checksumIsTheUsualOne()
{
    QCOMPARE(VelkRelease::JournalRow::checksum("123456789"), 0xCBF43926U);
}

void tst_MappingDifference::wrongRecordsAreRefused_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("project") << QByteArray("\"project\":[\"cat/a.prj\",")
                             << QByteArray("\"project\":[");
    QTest::newRow("known") << QByteArray("\"known\":[true,true]") << QByteArray("\"known\":[true]");
    QTest::newRow("state") << QByteArray("\"state\":[") << QByteArray("\"state\":[1,");
    QTest::newRow("targets") << QByteArray("\"targets\":[") << QByteArray("\"goals\":[");
    QTest::newRow("place") << QByteArray("\"at\":[0,0]") << QByteArray("\"at\":[0]");
    QTest::newRow("place behind all") << QByteArray("\"at\":[0,0]") << QByteArray("\"at\":[5,5]");
    QTest::newRow("count below nothing") << QByteArray("\"count\":1") << QByteArray("\"count\":-1");
    QTest::newRow("count beyond all")
        << QByteArray("\"count\":1") << QByteArray("\"count\":4000000000");
    QTest::newRow("row") << QByteArray("[2,2,0,2,2]") << QByteArray("[2,2]");
}

void tst_MappingDifference::wrongRecordsAreRefused()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    const PrjMappingC before = SessionFixture::plainMapping(Path, 5);
    QByteArray text = JournalText::writeChange(
        MappingDifference::between(before, SessionFixture::withState(before, {2}, 2)), 1);
    PJsonValue json;
    QVERIFY(json.parse(text));
    QVERIFY(JournalText::readChange(json));
    QVERIFY2(text.contains(from), text.constData());
    QVERIFY(json.parse(text.replace(from, to)));
    QVERIFY(!JournalText::readChange(json));
}

void tst_MappingDifference::releases()
{
    const ReleaseMappingC before = SessionFixture::sampleRelease();
    ReleaseMappingC after = before;
    after.addMapping(SessionFixture::withState(before.mappingAt(1), {3}, 2));
    after = withoutMapping(after, ProjectId::of(before.mappingAt(0)));
    after.addMapping(SessionFixture::plainMapping(QStringLiteral("cat/new.prj"), 3));
    ReleaseMappingC made = before;
    const auto differences = releaseDifferences(before, after);
    QCOMPARE(differences.size(), std::size_t(3));
    for (const MappingDifference &difference : differences)
        QVERIFY(applyChange(made, difference));
    QCOMPARE(SessionFixture::bytes(made), SessionFixture::bytes(after));
    QVERIFY(releaseDifferences(after, made).empty());
    QCOMPARE(countLines(made), countLines(after));
    QCOMPARE(countLines(made).lines(), 23);
}

QTEST_GUILESS_MAIN(tst_MappingDifference)

#include "tst_MappingDifference.moc"
