#include "TableEditorFixture.h"

#include <QRandomGenerator>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

/// Long sequences of actions: what the widget shows follows changes only, and must be what a walk
/// over everything would show.
class tst_TableMappingSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyOrderOfActions_data();
    void anyOrderOfActions();

private:
    void act(int action, int line) const;
    void compareWithAWalk() const;

    std::unique_ptr<TableEditorFixture> f;
};

namespace {

constexpr int Lines = 40;

QByteArray rows(int first, int count, int step)
{
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(first + i * step);
        text += "M" + number + "," + number + "\n";
    }
    return text;
}

/// "CatalogMapper" as it has to be, from the mapping alone.
QString stateOf(const PrjMappingC &mapping, int line)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC target = mapping.findTarget(i);
        if (!target.containsLine(line))
            continue;
        const PrjMappingTargetLineC entry = target.getMappedLine(line);
        if (entry.getConflict())
            return QStringLiteral("Conflicted");
        if (target.isNotFoundTarget() || entry.getTargetLineId() == -1)
            return entry.getState() == Verified ? QStringLiteral("NC") : QStringLiteral("N");
        if (entry.getState() == Verified)
            return QStringLiteral("M");
        return entry.getState() == Mapped ? QStringLiteral("-") : QStringLiteral("C");
    }
    return QStringLiteral("N");
}

} // namespace

void tst_TableMappingSession::act(int action, int line) const
{
    switch (action) {
    case 0:
        f->select(line);
        break;
    case 1:
        f->select(line);
        f->click(f->source, std::min(line + 3, Lines), Qt::ShiftModifier);
        break;
    case 2:
        f->press(Qt::Key_V);
        break;
    case 3:
        f->press(Qt::Key_X);
        break;
    case 4:
        f->press(Qt::Key_X, Qt::ControlModifier);
        break;
    case 5:
        f->press(Qt::Key_Down);
        break;
    case 6:
        f->box("chkFilterTarget")->click();
        break;
    case 7:
        f->widget->onRemapLinesClicked();
        break;
    case 8:
        f->box("chkShowHiddenCols")->click();
        break;
    case 9:
        if (f->targetTable().isValid()) {
            const auto shown = f->targetTable().getLineMapping().getOrdered();
            if (!shown.isEmpty())
                f->click(f->target, shown.at(line % shown.size()).value(0));
        }
        break;
    default: // a conflict, as an update of the release brings it
        PrjMappingC mapping = f->current();
        PrjMappingTargetC target = mapping.findTarget(0);
        target.setLineConflicted(line, true);
        mapping.updateTarget(0, target);
        f->published.append(mapping);
        f->widget->onProjectMappingUpdated(mapping);
    }
}

void tst_TableMappingSession::compareWithAWalk() const
{
    const PrjMappingC mapping = f->current();
    QStringList states;
    for (int line = 1; line <= Lines; ++line)
        states.append(stateOf(mapping, line));
    QCOMPARE(f->states(), states.join(u' '));

    const VKTab::ContentRef table = f->targetTable();
    if (!table.isValid())
        return;
    const VKTab::LineId selected = table.getSelection();
    for (const VKTab::LineId &id : table.getLineIdList()) {
        const QString mark = TableEditorFixture::status(table, id.value(0), "TargetMapping");
        QVERIFY(mark.isEmpty() || mark == "C");
        if (f->button("btnMapLine")->toolTip().startsWith("Zuordnung best") && selected.isValid())
            QCOMPARE(mark == "C", id == selected);
    }
    if (!f->box("chkFilterTarget")->isChecked())
        return;
    const bool isFirst = f->label("targetPathLabel")->text() == "new/a.prj";
    const PrjMappingTargetC target = mapping.findTarget(isFirst ? 0 : 1);
    QStringList expected;
    for (const VKTab::LineId &id : table.getLineIdList()) {
        bool isMapped = false;
        for (const LineTable::Iterator &entry : target.lines())
            isMapped = isMapped || entry.targetLine() == id.value(0);
        if (!isMapped)
            expected.append(QString::number(id.value(0)));
    }
    QCOMPARE(TableEditorFixture::visibleLines(table), expected.join(u' '));
}

void tst_TableMappingSession::anyOrderOfActions_data()
{
    QTest::addColumn<int>("seed");
    for (const int seed : {1, 2, 3, 4})
        QTest::addRow("seed %d", seed) << seed;
}

void tst_TableMappingSession::anyOrderOfActions()
{
    QFETCH(int, seed);
    f = std::make_unique<TableEditorFixture>();
    f->catalog.write("old/a.prj", "D,k:n\n" + rows(1, Lines, 1));
    f->catalog.write("new/a.prj", "D,k:n\n" + rows(1, 30, 1));
    f->catalog.write("new/b.prj", "D,k:n\n" + rows(10, 15, 2));
    f->mapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    for (int line = 1; line <= 20; ++line)
        enter(f->mapping, line % 3 == 0 ? 1 : 0, line, 1 + line / 2, line % 2 ? Mapped : ToCheck);
    f->load();
    QRandomGenerator random{quint32(seed)};
    for (int step = 0; step < 150; ++step) {
        act(random.bounded(11), random.bounded(1, Lines + 1));
        QCoreApplication::processEvents();
        compareWithAWalk();
        if (QTest::currentTestFailed()) {
            qWarning("step %d", step);
            return;
        }
    }
    QVERIFY(f->published.size() > 20);
}

QTEST_MAIN(tst_TableMappingSession)
#include "tst_TableMappingSession.moc"
