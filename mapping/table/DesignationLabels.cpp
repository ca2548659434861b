#include "DesignationLabels.h"

#include "DesignationLabel.h"

#include <QColor>
#include <QTextDocument>

namespace {

void compare(QLabel *label, DesignationLabel::Comparison comparison)
{
    if (auto *const shown = qobject_cast<DesignationLabel *>(label))
        shown->setComparison(comparison);
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
    if (sourceText.isEmpty() && targetText.isEmpty()) {
        sourceLabel->clear();
        targetLabel->clear();
        compare(sourceLabel, DesignationLabel::NotCompared);
        compare(targetLabel, DesignationLabel::NotCompared);
        return;
    }
    const bool equal = sourceText == targetText;
    const QColor colour(equal ? Qt::darkGreen : Qt::red);
    sourceLabel->setText(coloured(sourceText, colour));
    targetLabel->setText(coloured(targetText, colour));
    const auto comparison = equal ? DesignationLabel::Equal : DesignationLabel::Different;
    compare(sourceLabel, comparison);
    compare(targetLabel, comparison);
}
