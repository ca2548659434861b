#include "TableMappingWidgetPrivate.h"

#include "conditionText.h"
#include "dlgEditValueRangeMappings.h"
#include "dlgSelectValueRangeVars.h"
#include "LineLookUp.h"
#include "RangeRun.h"

#include <mapping/project/ProjectMappingWidget.h>

#include <core/message/PMessage.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/toTabVarValues.h>
#include <geomcore/mapper/PrjMapperCheckResultC.h>
#include <geomcore/table/Finder.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/ResolveRangeOptionsC.h>
#include <geomcoregui/table/VkTableView.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>

void TableMappingWidgetPrivate::publish(const PrjMappingC &changed)
{
    const QPointer<TableMappingWidgetPrivate> alive = this;
    Q_EMIT q->projectMappingUpdated(changed);
    if (alive)
        q->onProjectMappingUpdated(changed);
}

void TableMappingWidgetPrivate::publish(const LineDecision &decision)
{
    const QPointer<TableMappingWidgetPrivate> alive = this;
    if (decision.acceptedLine)
        Q_EMIT q->targetLineConflictAccepted(*decision.acceptedLine);
    if (alive)
        publish(decision.mapping);
}

QStringList TableMappingWidgetPrivate::conditionVariables() const
{
    return projectWidget ? projectWidget->collectConditionVariables() : QStringList();
}

void TableMappingWidgetPrivate::onMapLineClicked()
{
    const QStringList read = conditionVariables();
    QStringList variables = valueRangeVariables(sourceTable);
    variables.removeIf([&](const QString &name) { return !read.contains(name); });
    const QPointer<TableMappingWidgetPrivate> alive = this;
    const QList<VKTab::LineId> lines = sourceView->getSelectedLines();
    for (const VKTab::LineId &id : lines) {
        mapLine(id, variables);
        if (!alive)
            return;
    }
}

void TableMappingWidgetPrivate::mapLine(const VKTab::LineId &id, const QStringList &variables)
{
    const QPointer<TableMappingWidgetPrivate> alive = this;
    const VKTab::ContentRef source = sourceTable;
    VKTab::Line line = source.getLine(id, false);
    const VKTab::ResolveRangeOptionsC resolveOptions;
    VKTab::ValueRangeIterator combinations(source, line, resolveOptions);
    combinations.setVariablesToResolve(variables);
    const VKTab::ContentRef target = targetView->getTable();
    const auto chosen =
        target.isValid() ? std::optional(target.getSelection().value(0)) : std::nullopt;
    const auto decide = [this](const PrjMapperLineC &mapperLine, std::optional<int> targetLine) {
        if (const auto decision = LineDecisions::confirm(mapperLine, targetLine))
            publish(*decision);
    };
    if (!combinations.next()) {
        decide(mapperLineFor(id), chosen);
        return;
    }
    // Only the combination that is the line's own takes the chosen line.
    const Varset stored = createVarsetFromVKTable(source, id, {});
    do {
        const Varset shown = createVarsetFromVKTable(line, {});
        decide(mapperLineFor(id, shown), shown == stored ? chosen : std::nullopt);
    } while (alive && combinations.next());
}

void TableMappingWidgetPrivate::onRemoveLineMappingClicked()
{
    const QPointer<TableMappingWidgetPrivate> alive = this;
    const QList<VKTab::LineId> lines = sourceView->getSelectedLines();
    for (const VKTab::LineId &id : lines) {
        if (const auto decision = LineDecisions::remove(mapperLineFor(id), id))
            publish(*decision);
        if (!alive)
            return;
    }
}

void TableMappingWidgetPrivate::onRemoveVerifyLineMappingClicked()
{
    const QPointer<TableMappingWidgetPrivate> alive = this;
    onRemoveLineMappingClicked();
    if (alive)
        onMapLineClicked();
}

void TableMappingWidgetPrivate::onVerifyAllClicked()
{
    if (!sourceTable.isValid())
        return;
    const QPointer<TableMappingWidgetPrivate> alive = this;
    const QVector<VKTab::LineId> lines = sourceView->getTable().getLineIdList();
    for (const VKTab::LineId &id : lines) {
        Q_EMIT q->targetLineConflictAccepted(id.value(0));
        if (!alive)
            return;
    }
    mapping.verifyAll();
    publish(PrjMappingC(mapping)); // receivers may replace the own one
}

void TableMappingWidgetPrivate::showFailingValues(const VKTab::LineId &id)
{
    PrjMapperCheckResultC check(false, QString(), QString(), {}, {}, {});
    Varset varset;
    const PrjMapperLineC mapperLine = mapperLineFor(id, varset, &check);
    if (!mapperLine.isValid() || check.isOK() || check.getSourceVarset().isEmpty())
        return;
    VKTab::Line line = sourceTable.getLine(id, false);
    const VKTab::Finder finder;
    finder.cmpLineWithValues(line, finder.toValueList(sourceTable,
                                                      toTabVarValues(check.getSourceVarset()),
                                                      VKTab::FilterDefault));
    line.apply();
}

void TableMappingWidgetPrivate::onCreateConditionClicked()
{
    if (!sourceTable.isValid())
        return;
    const VKTab::LineId id = sourceTable.getSelection();
    if (!id.isValid())
        return;
    const Varset varset = createVarsetFromVKTable(sourceTable, id, {});
    if (varset.isEmpty())
        return;
    const QString condition = conditionText(varset);
    QGuiApplication::clipboard()->setText(condition, QClipboard::Clipboard);
    if (conditionListener)
        conditionListener(condition);
}

namespace {

/// Of all lines, each with as many as a run walks.
qint64 countCombinations(const VKTab::Content &table, const QVector<VKTab::LineId> &lines,
                         const QStringList &variables)
{
    const VKTab::ResolveRangeOptionsC options;
    qint64 sum = 0;
    for (const VKTab::LineId &id : lines) {
        VKTab::Line line = table.getLine(id, true);
        VKTab::ValueRangeIterator combinations(table, line, options);
        combinations.setVariablesToResolve(variables);
        sum += combinations.count();
    }
    return sum;
}

} // namespace

bool TableMappingWidgetPrivate::confirmsValueRangeRun() const
{
    const QString warning = valueRangeWarning; // the widget may go while the question is open
    return PMessage::Show(warning, PMsgDlgMode::OkCancel) != PMsgReply::Cancel;
}

QStringList TableMappingWidgetPrivate::chooseRangeVariables(const QVector<VKTab::LineId> &lines)
{
    const QStringList names = valueRangeVariables(sourceTable);
    if (names.isEmpty())
        return {};
    const QPointer<dlgSelectValueRangeVars> dialog = new dlgSelectValueRangeVars(names, q);
    dialog->setCounter([table = sourceTable, lines](const QStringList &variables) {
        return countCombinations(table, lines, variables);
    });
    const bool accepted = dialog->exec() == QDialog::Accepted;
    QStringList chosen = accepted && dialog ? dialog->selectedNames() : QStringList();
    delete dialog;
    return chosen;
}

void TableMappingWidgetPrivate::onMapResolvedValueRangesClicked()
{
    const QPointer<TableMappingWidgetPrivate> alive = this;
    if (!sourceTable.isValid() || !confirmsValueRangeRun() || !alive)
        return;
    const QStringList names = chooseRangeVariables(sourceTable.getLineIdList());
    if (alive && !names.isEmpty())
        runValueRangeMapping(names, sourceTable.getLineIdList());
}

void TableMappingWidgetPrivate::onMapLineValueRanges()
{
    const QPointer<TableMappingWidgetPrivate> alive = this;
    if (!sourceTable.isValid() || !confirmsValueRangeRun() || !alive)
        return;
    const VKTab::LineId id = sourceTable.getSelection();
    if (!id.isValid())
        return;
    const QStringList names = chooseRangeVariables({id});
    if (alive && !names.isEmpty())
        runValueRangeMapping(names, {id});
}

void TableMappingWidgetPrivate::runValueRangeMapping(const QStringList &names,
                                                     const QVector<VKTab::LineId> &lines)
{
    RangeRun run({nullptr, names, lines, mapping, sourceTable, targetView, targetFromRepository,
                  showHiddenCols});
    const QPointer<TableMappingWidgetPrivate> alive = this;
    m_run = &run;
    run.exec();
    if (!alive)
        return;
    m_run = nullptr;
    mapping = run.getMapping();
    if (run.isChanged())
        publish(PrjMappingC(mapping));
}

void TableMappingWidgetPrivate::editValueRangeMapping(int row)
{
    const VKTab::LineId id = sourceTable.getLineMapping().getOrdered().value(row - 1);
    if (!id.isValid())
        return;
    const PrjMapperLineC line = mapperLineFor(id);
    const PrjMappingTargetC target = mapping.findTarget(line.getTargetIndex());
    if (!line.isValid() || !target.isValid())
        return;
    const QString before = target.getMappedLine(line.getSourceLineId()).getExtended();
    const QPointer<TableMappingWidgetPrivate> alive = this;
    const QPointer<dlgEditValueRangeMappings> dialog = new dlgEditValueRangeMappings(before, q);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QString text = accepted && dialog ? dialog->text() : before;
    delete dialog;
    if (!alive || text == before)
        return;
    if (const auto changed = LineDecisions::changeText(mapping, line, text)) {
        mapping = *changed;
        publish(*changed);
    }
}
