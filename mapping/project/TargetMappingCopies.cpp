// The part of TargetMappingWidget that copies rows of its lists and pastes them.
#include "ignoreMarker.h"
#include "TargetItemRole.h"
#include "TargetMappingParamSet.h"
#include "TargetMappingWidget.h"

#include <core/message/PMessage.h>
#include <core/message/PStringMessageImpl.h>
#include <core/text/PString.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetParserC.h>

#include <QMenu>
#include <QStandardItemModel>
#include <QTableView>

#include <memory>

namespace {

/// What the parser said, as people are told it.
QString withoutPrefix(QString text)
{
    const QString prefix = QStringLiteral("error: ");
    return text.startsWith(prefix) ? text.remove(prefix) : text;
}

} // namespace

void TargetMappingWidget::showCopyMenu(QTableView *view, const QPoint &pos, const char *copySlot,
                                       const char *pasteSlot, bool canPaste)
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (view->indexAt(pos).isValid())
        connect(menu->addAction(PString::translate("Kopieren", "VelkLinkDbGui")),
                SIGNAL(triggered(bool)), this, copySlot);
    if (canPaste)
        connect(menu->addAction(PString::translate("Einfügen", "VelkLinkDbGui")),
                SIGNAL(triggered(bool)), this, pasteSlot);
    menu->popup(view->viewport()->mapToGlobal(pos));
}

void TargetMappingWidget::onVarMappingContextMenu(const QPoint &pos)
{
    const QModelIndex cell = variableView->indexAt(pos);
    if (cell.isValid())
        variableMenuIndex = cell;
    showCopyMenu(variableView, pos, SLOT(onCopyVarMapping()), SLOT(onPasteVarMapping()),
                 !params->copiedTargetVariable.isEmpty());
}

void TargetMappingWidget::onConditionContextMenu(const QPoint &pos)
{
    const QModelIndex cell = conditionView->indexAt(pos);
    if (cell.isValid())
        conditionMenuIndex = cell;
    showCopyMenu(conditionView, pos, SLOT(onCopyCondition()), SLOT(onPasteCondition()),
                 !params->copiedCondition.isEmpty());
}

void TargetMappingWidget::onCopyVarMapping()
{
    const int row = variableMenuIndex.row();
    const QModelIndex value = variableModel->index(row, 2);
    params->copiedTargetVariable = variableModel->index(row, 1).data().toString();
    params->copiedSourceText = value.data().toString();
    params->copiedIsFormula = value.data(FormulaRole).toBool();
    params->copiedIsIgnored = value.data(IgnoredRole).toBool();
}

void TargetMappingWidget::onCopyCondition()
{
    params->copiedCondition = conditionMenuIndex.data().toString();
}

std::optional<QString> TargetMappingWidget::formulaError(const QString &formula) const
{
    PStringMessageImpl capture(PMsgReply::Cancel, false);
    VarsetParserC parser(sourceVariables, targetVariables);
    const std::unique_ptr<VKTab::NodeBase> node(parser.parseStatement(formula, QString(), true));
    const bool usable = node && node->getType() != VKTab::InvalidType;
    return usable && capture.buffer().isEmpty() ? std::nullopt : std::optional(capture.buffer());
}

std::optional<QString> TargetMappingWidget::pasteError() const
{
    QString error;
    if (!targetVariables.contains(params->copiedTargetVariable))
        error = PString::translate("Die Variable %1 existiert nicht in der Zieltabelle",
                                   "VelkLinkDbGui")
                    .arg(params->copiedTargetVariable);
    if (params->copiedIsFormula)
        return error.isEmpty() ? formulaError(params->copiedSourceText) : error;
    if (!sourceVariables.contains(params->copiedSourceText))
        error += PString::translate("DieVariable %1 existiert nicht in der Quelltabelle",
                                    "VelkLinkDbGui")
                     .arg(params->copiedSourceText);
    return error.isEmpty() ? std::nullopt : std::optional(error);
}

void TargetMappingWidget::onPasteVarMapping()
{
    if (const std::optional<QString> error = pasteError()) {
        PMessage::Show(
            PString::translate("Fehler beim Kopieren der Variablenzuordnung.\n%1", "VelkLinkDbGui")
                .arg(withoutPrefix(*error)));
        return;
    }
    auto *const value = new QStandardItem(params->copiedSourceText);
    if (params->copiedIsFormula)
        value->setData(true, FormulaRole);
    if (params->copiedIsIgnored) {
        value->setText(ignoreMarker());
        value->setData(true, IgnoredRole);
    }
    appendVariableMapping(params->copiedTargetVariable, value);
    storeVariableMappings();
}

void TargetMappingWidget::onPasteCondition()
{
    PStringMessageImpl capture(PMsgReply::Cancel, false);
    const std::unique_ptr<VarsetConditionC> condition(
        VarsetConditionC::create(params->copiedCondition, sourceVariables));
    capture.deactivate();
    if (!condition) {
        PMessage::Show(
            PString::translate("Fehler beim Kopieren der Bedingung:\n%1", "VelkLinkDbGui")
                .arg(withoutPrefix(capture.buffer())));
        return;
    }
    appendCondition(params->copiedCondition);
    storeConditions();
}
