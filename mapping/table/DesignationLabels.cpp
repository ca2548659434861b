#include "DesignationLabels.h"

#include <QColor>
#include <QLabel>
#include <QPalette>

namespace {

/// Both colours are made for a light ground, so they bring one along where the window is dark.
void setGround(QLabel *label, bool shown)
{
    const bool isDark = label->parentWidget() &&
                        label->parentWidget()->palette().color(QPalette::Window).lightness() < 128;
    QPalette palette;
    if (isDark && shown)
        palette.setColor(QPalette::Window, QColor(0xe8, 0xe8, 0xe8));
    label->setPalette(palette);
    label->setAutoFillBackground(isDark && shown);
}

} // namespace

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
    sourceLabel->setToolTip(sourceText); // where the label is too narrow
    targetLabel->setToolTip(targetText);
    if (sourceText.isEmpty() && targetText.isEmpty()) {
        sourceLabel->setText(sourceText);
        targetLabel->setText(targetText);
        setGround(sourceLabel, false);
        setGround(targetLabel, false);
        return;
    }
    const QColor colour(sourceText == targetText ? Qt::darkGreen : Qt::red);
    const QString begin = QStringLiteral("<span style=\"color:%1;\">").arg(colour.name());
    sourceLabel->setText(begin + sourceText + QStringLiteral("</span>"));
    targetLabel->setText(begin + targetText + QStringLiteral("</span>"));
    setGround(sourceLabel, !sourceText.isEmpty());
    setGround(targetLabel, !targetText.isEmpty());
}
