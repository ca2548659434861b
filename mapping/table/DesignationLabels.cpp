#include "DesignationLabels.h"

#include <QColor>
#include <QLabel>
#include <QPalette>
#include <QTextDocument>

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

/// As it stands, whatever signs are in it.
QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped())
                                     : text;
}

QString coloured(const QString &text, const QColor &colour)
{
    return QStringLiteral("<span style=\"color:%1;\">%2</span>")
        .arg(colour.name(), text.toHtmlEscaped());
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
    sourceLabel->setToolTip(plainToolTip(sourceText)); // where the label is too narrow
    targetLabel->setToolTip(plainToolTip(targetText));
    setGround(sourceLabel, !sourceText.isEmpty());
    setGround(targetLabel, !targetText.isEmpty());
    if (sourceText.isEmpty() && targetText.isEmpty()) {
        sourceLabel->clear();
        targetLabel->clear();
        return;
    }
    const QColor colour(sourceText == targetText ? Qt::darkGreen : Qt::red);
    sourceLabel->setText(coloured(sourceText, colour));
    targetLabel->setText(coloured(targetText, colour));
}
