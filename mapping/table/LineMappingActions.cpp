#include "TableMappingWidgetPrivate.h"

#include <mapping/project/ProjectMappingWidget.h>

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/ResolveRangeOptionsC.h>
#include <geomcoregui/table/VkTableView.h>

void TableMappingWidgetPrivate::publish(const PrjMappingC &changed)
{
    Q_EMIT q->projectMappingUpdated(changed);
    q->onProjectMappingUpdated(changed);
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
    const QList<VKTab::LineId> lines = sourceView->getSelectedLines();
    for (const VKTab::LineId &id : lines)
        mapLine(id, variables);
}

void TableMappingWidgetPrivate::mapLine(const VKTab::LineId &id, const QStringList &variables)
{
    const VKTab::ContentRef source = sourceTable;
    VKTab::Line line = source.getLine(id, false);
    const VKTab::ResolveRangeOptionsC resolveOptions;
    VKTab::ValueRangeIterator combinations(source, line, resolveOptions);
    combinations.setVariablesToResolve(variables);
    const VKTab::ContentRef targetTable = targetView->getTable();
    const VKTab::LineId chosen =
        targetTable.isValid() ? targetTable.getSelection() : VKTab::LineId(-1);
    if (!combinations.next()) {
        mapCombination(id, Varset(), targetTable.isValid() ? &chosen : nullptr);
        return;
    }
    const Varset stored = createVarsetFromVKTable(source, id, {});
    do {
        const Varset shown = createVarsetFromVKTable(line, {});
        const bool takesChosen = targetTable.isValid() && shown == stored;
        mapCombination(id, shown, takesChosen ? &chosen : nullptr);
    } while (combinations.next());
}

void TableMappingWidgetPrivate::mapCombination(const VKTab::LineId &id, const Varset &values,
                                               const VKTab::LineId *chosen)
{
    const PrjMapperLineC line = mapperLineFor(id, values);
    if (!line.isValid())
        return;
    const int newLine = chosen ? chosen->value(0) : line.getTargetLineId();
    const QList<PrjLineHistoryC::Entry> history = line.getHistory();
    if (history.isEmpty())
        return;
    const PrjMappingLineC mappingLine = history.last().first;
    PrjMappingC workMapping = history.last().second;
    PrjMappingTargetC target = workMapping.findTarget(mappingLine.getTargetIndex());
    if (!target.isValid())
        return;
    const int sourceLine = line.getSourceLineId();
    if (target.getLineConflicted(sourceLine))
        Q_EMIT q->targetLineConflictAccepted(sourceLine);
    // A value range text tells of the target line that the line had.
    const QString extended = newLine == line.getTargetLineId()
                                 ? line.getTarget().getMappedLine(sourceLine).getExtended()
                                 : QString();
    target.addLineId(sourceLine, newLine, PRJMAPPING::Verified, extended);
    workMapping.updateTarget(mappingLine.getTargetIndex(), target);
    workMapping.updateMappingState();
    publish(workMapping);
}

void TableMappingWidgetPrivate::onRemoveLineMappingClicked()
{
    const QList<VKTab::LineId> lines = sourceView->getSelectedLines();
    for (const VKTab::LineId &id : lines)
        removeLine(id);
}

void TableMappingWidgetPrivate::removeLine(const VKTab::LineId &id)
{
    const PrjMapperLineC line = mapperLineFor(id);
    if (!line.isValid() || !line.isFound())
        return;
    const QList<PrjLineHistoryC::Entry> history = line.getHistory();
    if (!id.isValid() || history.isEmpty())
        return;
    const int targetIndex = history.last().first.getTargetIndex();
    PrjMappingC workMapping = history.last().second;
    PrjMappingTargetC target = workMapping.findTarget(targetIndex);
    if (!target.isValid())
        return;
    const int number = id.value(0);
    target.removeLineId(number);
    // Looks at the target as it is without the line.
    if (target.getLineConflicted(line.getSourceLineId()))
        Q_EMIT q->targetLineConflictAccepted(number);
    workMapping.updateTarget(targetIndex, target);
    int notFound = workMapping.getNotFoundTarget();
    if (notFound == -1)
        notFound = workMapping.addTarget(QString(), QString());
    PrjMappingTargetC notFoundTarget = workMapping.findTarget(notFound);
    if (notFoundTarget.isValid()) {
        notFoundTarget.addLineId(number, -1, PRJMAPPING::Mapped, QString());
        workMapping.updateTarget(notFound, notFoundTarget);
    }
    workMapping.updateMappingState();
    publish(workMapping);
}

void TableMappingWidgetPrivate::onRemoveVerifyLineMappingClicked()
{
    onRemoveLineMappingClicked();
    onMapLineClicked();
}

void TableMappingWidgetPrivate::onVerifyAllClicked()
{
    if (!sourceTable.isValid())
        return;
    const QVector<VKTab::LineId> lines = sourceView->getTable().getLineIdList();
    for (const VKTab::LineId &id : lines)
        Q_EMIT q->targetLineConflictAccepted(id.value(0));
    mapping.verifyAll();
    publish(PrjMappingC(mapping)); // receivers may replace the own one
}
