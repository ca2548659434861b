// The part of TargetMappingWidget that brings conditions and variable mappings into the lists and
// back.
#include "AssignmentCollector.h"
#include "editFormula.h"
#include "ignoreMarker.h"
#include "TargetItemRole.h"
#include "TargetMappingParamSet.h"
#include "TargetMappingWidget.h"

#include <core/message/PMessage.h>
#include <core/text/PString.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetParserC.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <geomcore/expression/VarCollector.h>

#include <QLabel>
#include <QStandardItemModel>
#include <QTableView>

#include <algorithm>
#include <memory>

namespace {

void addNames(QStringList &names, const QStringList &added)
{
    for (const QString &name : added)
        if (!names.contains(name))
            names.append(name);
}

/// Null for a text that does not parse.
std::unique_ptr<VKTab::NodeBase> parsed(VarsetParserC &parser, const QString &text)
{
    std::unique_ptr<VKTab::NodeBase> node(parser.parseStatement(text, QString(), true));
    if (node && node->getType() == VKTab::InvalidType)
        node.reset();
    return node;
}

/// In the column of the delete button, where nothing is to be typed.
QStandardItem *buttonItem()
{
    auto *const item = new QStandardItem;
    item->setEditable(false);
    return item;
}

QStandardItem *formulaItem(const QString &text)
{
    auto *const item = new QStandardItem(text);
    item->setData(true, FormulaRole);
    return item;
}

QStandardItem *sourceItem(const VarsetVarMappingC &mapping)
{
    const bool ignored = mapping.getSourceVarName().isEmpty();
    auto *const item = new QStandardItem(ignored ? ignoreMarker() : mapping.getSourceVarName());
    if (ignored)
        item->setData(true, IgnoredRole);
    return item;
}

bool hasConfirmedLine(const PrjMappingTargetC &target)
{
    if (target.lineCounts().verified() == 0)
        return false;
    const LineTable &lines = target.lines();
    return std::any_of(lines.begin(), lines.end(), [](const LineTable::Iterator &line) {
        return line.state() == PRJMAPPING::Verified && line.targetLine() != -1;
    });
}

} // namespace

void TargetMappingWidget::collectVariables(const QString &condition)
{
    VarsetParserC parser(sourceVariables, targetVariables);
    if (const std::unique_ptr<VKTab::NodeBase> node = parsed(parser, condition)) {
        VarCollector collector;
        node->accept(collector, 0, 0);
        addNames(conditionVariables, collector.getNames());
    }
}

void TargetMappingWidget::loadConditions(const PrjMappingTargetC &target)
{
    conditionVariables.clear();
    const QList<const VarsetConditionI *> conditions = target.getConditions();
    for (const VarsetConditionI *const condition : conditions) {
        appendCondition(condition->getCondition());
        collectVariables(condition->getCondition());
    }
}

QString TargetMappingWidget::assignedVariable(const QString &formula) const
{
    VarsetParserC parser(sourceVariables, targetVariables);
    const std::unique_ptr<VKTab::NodeBase> node = parsed(parser, formula);
    if (!node)
        return QString();
    AssignmentCollector collector;
    node->accept(collector, 0, 0);
    const QSet<VKTab::VarId> &ids = collector.getVarIds();
    return ids.size() == 1 ? parser.getVarName(*ids.begin()) : QString();
}

void TargetMappingWidget::loadVariableMappings(const PrjMappingTargetC &target)
{
    const QList<const VarsetModifierI *> modifiers = target.getVarsetModifier();
    for (const VarsetModifierI *const modifier : modifiers) {
        if (const auto *const plain = dynamic_cast<const VarsetVarMappingC *>(modifier)) {
            appendVariableMapping(plain->getTargetVarName(), sourceItem(*plain));
        } else if (const auto *const value = dynamic_cast<const VarsetValueMappingC *>(modifier)) {
            const QString formula = value->getFormula();
            const QString name = assignedVariable(formula);
            if (name.isEmpty())
                PMessage::LogToWindow(formula + QStringLiteral(" ") +
                                      PString::translate("enthält Fehler!", "VelkLinkDbGui"));
            else
                appendVariableMapping(name, formulaItem(formula));
        }
    }
}

void TargetMappingWidget::storeConditions()
{
    if (!params)
        return;
    conditionVariables.clear();
    PrjMappingTargetC target = params->projectMapping.findTarget(index);
    target.clearConditions();
    for (int row = 0; row < conditionModel->rowCount(); ++row) {
        const QString text = conditionModel->index(row, 1).data().toString();
        if (text.isEmpty())
            continue;
        QStringList usedVariables;
        target.addCondition(VarsetConditionC::create(text, sourceVariables, usedVariables));
        addNames(conditionVariables, usedVariables);
    }
    showProposed(target);
    if (notify)
        notify(target, index, TargetLinesChanged);
}

VarsetModifierI *TargetMappingWidget::makeModifier(int row) const
{
    const QString name = variableModel->index(row, 1).data().toString();
    const QModelIndex value = variableModel->index(row, 2);
    const QString text = value.data().toString();
    if (value.data(FormulaRole).toBool())
        return VarsetValueMappingC::create(text, sourceVariables, targetVariables);
    return new VarsetVarMappingC(value.data(IgnoredRole).toBool() ? QString() : text, name);
}

void TargetMappingWidget::storeVariableMappings()
{
    if (!params)
        return;
    PrjMappingTargetC target = params->projectMapping.findTarget(index);
    target.clearModifier();
    for (int row = 0; row < variableModel->rowCount(); ++row)
        target.addModifier(makeModifier(row));
    showProposed(target);
    if (notify)
        notify(target, index, TargetModified);
}

void TargetMappingWidget::showProposed(const PrjMappingTargetC &target)
{
    const bool proposed = target.hasProposedRules() && !hasConfirmedLine(target);
    for (QStandardItemModel *const model : {conditionModel, variableModel}) {
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 1; column < model->columnCount(); ++column) {
                QStandardItem *const item = model->item(row, column);
                QFont font = item->font();
                if (font.italic() == proposed)
                    continue;
                font.setItalic(proposed);
                item->setFont(font);
            }
        }
    }
    QString toolTip = target.getTargetPath().toHtmlEscaped();
    if (proposed)
        toolTip +=
            QStringLiteral("<br />") +
            PString::translate("Bedingungen und Variablenzuordnungen sind vorgeschlagen. Sie "
                               "gelten, sobald eine Zeile des Ziels bestätigt ist.",
                               "VelkLinkDbGui");
    pathLabel->setToolTip(toolTip);
}

void TargetMappingWidget::appendCondition(const QString &text)
{
    conditionModel->appendRow({buttonItem(), formulaItem(text)});
}

void TargetMappingWidget::appendVariableMapping(const QString &targetName, QStandardItem *value)
{
    variableModel->appendRow({buttonItem(), new QStandardItem(targetName), value});
}

void TargetMappingWidget::onAddVariableMappingClicked()
{
    appendVariableMapping(QString(), new QStandardItem(QString()));
    const QModelIndex cell = variableModel->index(variableModel->rowCount() - 1, 1);
    variableView->setCurrentIndex(cell);
    variableView->edit(cell);
}

void TargetMappingWidget::onDeleteVarMapping(const QModelIndex &cell, int /*buttonIndex*/)
{
    if (variableModel->removeRows(cell.row(), 1))
        storeVariableMappings();
}

void TargetMappingWidget::onAddConditionClicked()
{
    const auto store = [this](const QString &text) {
        appendCondition(text);
        storeConditions();
    };
    const auto watch = [this](DlgFormulaEditor *dialog) {
        watchCondition(dialog, conditionModel->rowCount());
    };
    editFormula({sourceVariables, targetVariables, QString()}, QString(), parentWidget(),
                *std::shared_ptr(dialogs), {store, watch});
}

void TargetMappingWidget::onDeleteConditionClicked(const QModelIndex &cell, int /*buttonIndex*/)
{
    if (conditionModel->removeRows(cell.row(), 1))
        storeConditions();
}
