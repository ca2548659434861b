// The part of TargetMappingWidget that assigns a source line by hand.
#include "TableLineSelectionDialog.h"
#include "TargetMappingParamSet.h"
#include "TargetMappingWidget.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/mapper/PrjMapperC.h>
#include <release/decide/notFoundLines.h>

#include <QPointer>
#include <QScopeGuard>

namespace {

PrjMappingLineC mappingLine(int sourceLine, int targetLine)
{
    PrjMappingLineC line;
    line.setTargetIndex(0);
    line.setSourceLineId(sourceLine);
    line.setTargetLineId(targetLine);
    line.setValid(true);
    return line;
}

} // namespace

bool TargetMappingWidget::passesCheck(const PrjMappingTargetC &target,
                                      const VKTab::LineId &sourceLine,
                                      const VKTab::LineId &targetLine) const
{
    PrjMapperC mapper(IndexTreeC::instance());
    mapper.setCreatorMode(true);
    mapper.setSourceTable(sourceContent);
    PrjMappingC mapping;
    mapping.setSourcePath(params->projectMapping.getSourcePath());
    mapping.setSourceVersion(params->projectMapping.getSourceVersion());
    mapping.addTarget(target);
    mapping.setMappingState(PRJMAPPING::StateUsable);
    MappingNodeC node;
    node.setMapping(mapping);
    node.isLeaf(true);
    mapper.mappingNode() = node;
    PrjMapperLineC line;
    line.addMapping(mappingLine(sourceLine.value(0), targetLine.value(0)), mapping);
    line.setLineId(targetContent.getSelection());
    return mapper.checkMapping(line, sourceContent.getSelection()).isOK();
}

void TargetMappingWidget::onAssignTarget()
{
    if (!params->tableMappingWidget || !targetContent.isValid())
        return;
    const VKTab::LineId sourceLine = params->selectedSourceLine();
    if (!sourceLine.isValid())
        return;
    // The panel, and the dialog with it, can go while the dialog is open.
    const QPointer<TableLineSelectionDialog> dialog(
        new TableLineSelectionDialog(targetContent, this));
    const auto dropDialog = qScopeGuard([&dialog] { delete dialog; });
    const auto focusLines = params->focusSourceLines;
    if (dialog->exec() != QDialog::Accepted || !dialog)
        return;
    assignLine(sourceLine, dialog->selectedLine());
    // A key confirms what was assigned.
    if (focusLines)
        focusLines();
}

void TargetMappingWidget::assignLine(const VKTab::LineId &sourceLine,
                                     const VKTab::LineId &targetLine)
{
    PrjMappingC &mapping = params->projectMapping;
    PrjMappingTargetC target = mapping.findTarget(index);
    if (!targetLine.isValid() || params->catalogMapping.getReleases().isEmpty())
        return;
    target.addLineId(sourceLine.value(0), targetLine.value(0), PRJMAPPING::Mapped, QString());
    if (!passesCheck(target, sourceLine, targetLine))
        target.addLineId(sourceLine.value(0), targetLine.value(0), PRJMAPPING::ToCheck, QString());
    VelkRelease::leaveNotFound(mapping, sourceLine.value(0));
    mapping.updateMappingState();
    if (notify)
        notify(target, index, TargetModified);
}
