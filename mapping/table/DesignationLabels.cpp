#include "DesignationLabels.h"

#include <QColor>
#include <QLabel>

void DesignationLabels::setSourceText(const QString &text)
{
    sourceText = text;
    show();
}

void DesignationLabels::setTargetText(const QString &text)
{
    targetText = text;
    show();
}

void DesignationLabels::show() const
{
    if (!sourceLabel || !targetLabel)
        return;
    if (sourceText.isEmpty() && targetText.isEmpty()) {
        sourceLabel->setText(sourceText);
        targetLabel->setText(targetText);
        return;
    }
    const QColor colour(sourceText == targetText ? Qt::darkGreen : Qt::red);
    const QString begin = QStringLiteral("<span style=\"color:%1;\">").arg(colour.name());
    sourceLabel->setText(begin + sourceText + QStringLiteral("</span>"));
    targetLabel->setText(begin + targetText + QStringLiteral("</span>"));
}
