// The part of TargetMappingWidget that tells, while a condition or formula is being written, what
// it would mean, and that offers a condition for the selected lines.
#include "RuleEffectLabel.h"
#include "TargetItemRole.h"
#include "TargetMappingParamSet.h"
#include "TargetMappingWidget.h"

#include <core/message/PStringMessageImpl.h>
#include <core/text/countText.h>
#include <core/text/PString.h>
#include <formula/DlgFormulaEditor.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <release/decide/CommonValues.h>

#include <QComboBox>
#include <QFrame>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <memory>

namespace {

/// Characters of a condition on a button.
constexpr int ShownCondition = 80;

} // namespace

void TargetMappingWidget::watch(DlgFormulaEditor *dialog, const ChangedTarget &changedTarget)
{
    auto *const label = new RuleEffectLabel(params->projectMapping, index, sourceContent, dialog);
    dialog->layout()->addWidget(label);
    const auto tell = [dialog, label, changedTarget] {
        label->setChangedTarget(changedTarget(dialog->getFormula()));
    };
    connect(dialog->findChild<QPlainTextEdit *>(), &QPlainTextEdit::textChanged, label, tell);
    tell();
}

void TargetMappingWidget::watchCondition(DlgFormulaEditor *dialog, int row)
{
    offerCondition(dialog);
    watch(dialog, [this, row](const QString &text) { return withCondition(row, text); });
}

void TargetMappingWidget::watchFormula(DlgFormulaEditor *dialog, int row)
{
    watch(dialog, [this, row](const QString &text) { return withFormula(row, text); });
}

std::optional<PrjMappingTargetC> TargetMappingWidget::withCondition(int row,
                                                                    const QString &text) const
{
    if (!params)
        return std::nullopt;
    const PStringMessageImpl capture(PMsgReply::Cancel, false);
    PrjMappingTargetC target = params->projectMapping.findTarget(index);
    target.clearConditions();
    for (int i = 0; i < std::max(row + 1, conditionModel->rowCount()); ++i) {
        const QString condition = i == row ? text : conditionModel->index(i, 1).data().toString();
        if (condition.isEmpty())
            continue;
        const VarsetConditionI *const made = VarsetConditionC::create(condition, sourceVariables);
        if (!made && i == row)
            return std::nullopt;
        target.addCondition(made);
    }
    return target;
}

std::optional<PrjMappingTargetC> TargetMappingWidget::withFormula(int row,
                                                                  const QString &text) const
{
    if (!params)
        return std::nullopt;
    const PStringMessageImpl capture(PMsgReply::Cancel, false);
    return withModifier(row, VarsetValueMappingC::create(text, sourceVariables, targetVariables));
}

std::optional<PrjMappingTargetC> TargetMappingWidget::withVariables(int row, const QString &source,
                                                                    const QString &targetName) const
{
    if (!params || source.isEmpty() || targetName.isEmpty())
        return std::nullopt;
    const PStringMessageImpl capture(PMsgReply::Cancel, false);
    return withModifier(row, std::make_unique<VarsetVarMappingC>(source, targetName).release());
}

std::optional<PrjMappingTargetC>
TargetMappingWidget::withModifier(int row, const VarsetModifierI *made) const
{
    if (!made)
        return std::nullopt;
    PrjMappingTargetC target = params->projectMapping.findTarget(index);
    target.clearModifier();
    for (int i = 0; i < variableModel->rowCount(); ++i)
        target.addModifier(i == row ? made : makeModifier(i));
    return target;
}

void TargetMappingWidget::watchBox(QComboBox *box, const QModelIndex &cell)
{
    auto *const frame = new QFrame(box, Qt::ToolTip);
    frame->setObjectName(QStringLiteral("ruleEffectOfBox"));
    frame->setFrameStyle(QFrame::Box);
    auto *const layout = new QVBoxLayout(frame);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto *const label = new RuleEffectLabel(params->projectMapping, index, sourceContent, frame);
    label->setWordWrap(false); // a window of its own is as wide as the text
    layout->addWidget(label);
    const QPersistentModelIndex at(cell);
    const auto tell = [this, box, frame, label, at](int entry) {
        const QString name = box->itemData(entry, VariableNameRole).toString();
        const QModelIndex source = variableModel->index(at.row(), 2);
        const QModelIndex targetName = variableModel->index(at.row(), 1);
        const bool isPlain =
            !source.data(FormulaRole).toBool() && !source.data(IgnoredRole).toBool();
        std::optional<PrjMappingTargetC> changed;
        if (at.isValid() && at.column() == 2)
            changed = withVariables(at.row(), name, targetName.data().toString());
        else if (at.isValid() && isPlain)
            changed = withVariables(at.row(), source.data().toString(), name);
        label->setChangedTarget(changed);
        frame->setVisible(changed.has_value());
        frame->move(box->mapToGlobal(QPoint(0, -frame->sizeHint().height())));
    };
    connect(box, &QComboBox::highlighted, label, tell);
    connect(box, &QComboBox::currentIndexChanged, label, tell);
}

void TargetMappingWidget::offerCondition(DlgFormulaEditor *dialog)
{
    const QList<int> lines =
        params->selectedSourceLines ? params->selectedSourceLines() : QList<int>();
    const VelkRelease::CommonValues common = VelkRelease::commonValues(sourceContent, lines);
    if (common.condition.isEmpty())
        return;
    auto *const button = new QPushButton(dialog);
    button->setObjectName(QStringLiteral("offeredCondition"));
    button->setAutoDefault(false);
    QString shown = common.condition;
    if (shown.size() > ShownCondition)
        shown = shown.left(ShownCondition) + QStringLiteral("…");
    button->setText(PString::translate("Aus der Auswahl (%1): %2", "VelkLinkDbGui")
                        .arg(countText(lines.size()), shown.replace(u'&', "&&")));
    button->setToolTip(common.condition.toHtmlEscaped());
    dialog->layout()->addWidget(button);
    connect(button, &QPushButton::clicked, dialog, [dialog, condition = common.condition] {
        const QString text = dialog->getFormula();
        dialog->setFormula(text.trimmed().isEmpty() ? condition
                                                    : text + QStringLiteral(" .AND. ") + condition);
    });
}
