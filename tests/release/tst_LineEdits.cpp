#include <release/decide/LineEdits.h>
#include <release/decide/notFoundLines.h>

#include <QTest>

using VelkRelease::LineEdits;

namespace {

/// Two targets with path: lines 1 to 4 in the first, line 4 in the second too; 5 without target, if
/// wanted.
PrjMappingC someMapping(bool withNotFound)
{
    PrjMappingC mapping;
    mapping.setSourcePath("cat/a.prj");
    PrjMappingTargetC first;
    first.setTargetPath("cat/b.prj");
    first.setValid(true);
    first.addLineId(1, 11, PRJMAPPING::Mapped, "");
    first.addLineId(2, 12, PRJMAPPING::ToCheck, "{L=1} -> 2");
    first.addLineId(3, 13, PRJMAPPING::Verified, "");
    first.addLineId(4, 14, PRJMAPPING::Verified, "");
    first.setLineConflicted(1, true);
    PrjMappingTargetC second;
    second.setTargetPath("cat/c.prj");
    second.setValid(true);
    second.addLineId(4, 24, PRJMAPPING::ToCheck, "");
    mapping.addTarget(first);
    mapping.addTarget(second);
    if (withNotFound)
        VelkRelease::enterNotFound(mapping, 5, PRJMAPPING::Mapped);
    return mapping;
}

/// All entries of a line: "target>line/state", with "!" in conflict, "*" with a text.
QString entriesOf(const PrjMappingC &mapping, int line)
{
    QStringList entries;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC target = mapping.findTarget(i);
        if (!target.containsLine(line))
            continue;
        const PrjMappingTargetLineC entry = target.getMappedLine(line);
        entries << QStringLiteral("%1>%2/%3%4%5")
                       .arg(QString::number(i), QString::number(entry.getTargetLineId()),
                            QString::number(int(entry.getState())),
                            entry.getConflict() ? QStringLiteral("!") : QString(),
                            entry.getExtended().isEmpty() ? QString() : QStringLiteral("*"));
    }
    return entries.join(u' ');
}

} // namespace

class tst_LineEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standing_data();
    void standing();
    void decides_data();
    void decides();
    void otherLinesStay();
    void notFoundTarget();
};

void tst_LineEdits::standing_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("standing");
    QTest::newRow("in conflict") << 1 << "known assigned conflicted";
    QTest::newRow("with a text") << 2 << "known assigned text";
    QTest::newRow("confirmed") << 3 << "known assigned verified settled";
    QTest::newRow("confirmed in one of two") << 4 << "known assigned verified";
    QTest::newRow("without target") << 5 << "known";
    QTest::newRow("unknown") << 6 << "";
}

void tst_LineEdits::standing()
{
    QFETCH(int, line);
    QFETCH(QString, standing);
    const LineEdits::Standing is = LineEdits(someMapping(true)).standing(line);
    QStringList words;
    const auto add = [&words](bool holds, const char *word) {
        if (holds)
            words << QString::fromLatin1(word);
    };
    add(is.known, "known");
    add(is.assigned, "assigned");
    add(is.conflicted, "conflicted");
    add(is.verified, "verified");
    add(is.settled, "settled");
    add(is.hasText, "text");
    QCOMPARE(words.join(u' '), standing);
}

void tst_LineEdits::decides_data()
{
    QTest::addColumn<QString>("decision");
    QTest::addColumn<int>("line");
    QTest::addColumn<bool>("withNotFound");
    QTest::addColumn<QString>("entries");
    QTest::newRow("confirm accepts a conflict") << "confirm" << 1 << true << "0>11/2";
    QTest::newRow("confirm keeps the text") << "confirm" << 2 << true << "0>12/2*";
    QTest::newRow("confirm in all targets") << "confirm" << 4 << true << "0>14/2 1>24/2";
    QTest::newRow("confirm without target") << "confirm" << 5 << true << "2>-1/2";
    QTest::newRow("confirm an unknown line") << "confirm" << 6 << true << "";
    QTest::newRow("remove") << "remove" << 2 << true << "2>-1/1";
    QTest::newRow("remove from all targets") << "remove" << 4 << true << "2>-1/1";
    QTest::newRow("remove makes the target") << "remove" << 3 << false << "2>-1/1";
    QTest::newRow("expire") << "expire" << 1 << true << "2>-1/2";
    QTest::newRow("expire makes the target") << "expire" << 4 << false << "2>-1/2";
    QTest::newRow("accept") << "accept" << 1 << true << "0>11/1";
    QTest::newRow("accept where none is") << "accept" << 2 << true << "0>12/0*";
    QTest::newRow("assign a line without target") << "assign" << 5 << true << "1>77/1";
    QTest::newRow("assign anew") << "assign" << 4 << true << "0>14/2 1>77/1";
    QTest::newRow("assign an unknown line") << "assign" << 6 << false << "1>77/1";
}

void tst_LineEdits::decides()
{
    QFETCH(QString, decision);
    QFETCH(int, line);
    QFETCH(bool, withNotFound);
    QFETCH(QString, entries);
    LineEdits edits(someMapping(withNotFound));
    if (decision == "confirm")
        edits.confirm(line);
    else if (decision == "remove")
        edits.remove(line);
    else if (decision == "expire")
        edits.expire(line);
    else if (decision == "accept")
        edits.acceptConflict(line);
    else
        edits.assign(line, 1, 77, PRJMAPPING::Mapped);
    QCOMPARE(entriesOf(edits.mapping(), line), entries);
}

void tst_LineEdits::otherLinesStay()
{
    const PrjMappingC before = someMapping(true);
    LineEdits edits(before);
    edits.confirm(1);
    edits.remove(2);
    edits.expire(3);
    edits.assign(6, 9, 1, PRJMAPPING::Mapped); // there is no such target
    for (const int line : {4, 5, 6})
        QCOMPARE(entriesOf(edits.mapping(), line), entriesOf(before, line));
    QCOMPARE(edits.mapping().countTargets(), 3);
    QCOMPARE(edits.mapping().getSourcePath(), before.getSourcePath());
}

void tst_LineEdits::notFoundTarget()
{
    PrjMappingC mapping = someMapping(false);
    VelkRelease::leaveNotFound(mapping, 1);
    QCOMPARE(mapping.countTargets(), 2);
    VelkRelease::enterNotFound(mapping, 7, PRJMAPPING::ToCheck);
    VelkRelease::enterNotFound(mapping, 8, PRJMAPPING::Verified);
    QCOMPARE(mapping.countTargets(), 3);
    QCOMPARE(mapping.getNotFoundTarget(), 2);
    QCOMPARE(mapping.ensureNotFoundTarget(), 2);
    QCOMPARE(entriesOf(mapping, 7), "2>-1/0");
    VelkRelease::leaveNotFound(mapping, 7);
    QCOMPARE(entriesOf(mapping, 7), QString());
    QCOMPARE(entriesOf(mapping, 8), "2>-1/2");
}

QTEST_GUILESS_MAIN(tst_LineEdits)
#include "tst_LineEdits.moc"
