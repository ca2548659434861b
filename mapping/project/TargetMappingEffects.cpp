// The part of TargetMappingWidget that tells, while a condition or formula is being written, what
// it would mean, and that offers a condition for the selected lines.
#include "RuleEffectLabel.h"
#include "TargetMappingParamSet.h"
#include "TargetMappingWidget.h"

#include <core/message/PStringMessageImpl.h>
#include <core/text/PString.h>
#include <formula/DlgFormulaEditor.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <release/decide/CommonValues.h>

#include <QLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardItemModel>

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
    PrjMappingTargetC target = params->projectMapping.findTarget(index);
    target.clearModifier();
    for (int i = 0; i < variableModel->rowCount(); ++i) {
        const VarsetModifierI *const made =
            i == row ? VarsetValueMappingC::create(text, sourceVariables, targetVariables)
                     : makeModifier(i);
        if (!made && i == row)
            return std::nullopt;
        target.addModifier(made);
    }
    return target;
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
                        .arg(QString::number(lines.size()), shown.replace(u'&', "&&")));
    button->setToolTip(common.condition.toHtmlEscaped());
    dialog->layout()->addWidget(button);
    connect(button, &QPushButton::clicked, dialog, [dialog, condition = common.condition] {
        const QString text = dialog->getFormula();
        dialog->setFormula(text.trimmed().isEmpty() ? condition
                                                    : text + QStringLiteral(" .AND. ") + condition);
    });
}
