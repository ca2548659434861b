#include "DesignationLabel.h"

#include <gui/views/Inks.h>

#include <QPainter>
#include <QTextDocumentFragment>

DesignationLabel::DesignationLabel(QWidget *parent)
    : QLabel(parent)
{
}

DesignationLabel::~DesignationLabel() = default;

void DesignationLabel::setComparison(Comparison comparison)
{
    m_comparison = comparison;
    setAccessibleDescription(shownText());
    updateGeometry();
    update();
}

QString DesignationLabel::shownText() const
{
    QString plain = Qt::mightBeRichText(text())
                        ? QTextDocumentFragment::fromHtml(text()).toPlainText()
                        : text();
    switch (m_comparison) {
    case Equal:
        return QStringLiteral("= ") + plain;
    case Different:
        return QStringLiteral("≠ ") + plain;
    case NotCompared:
        break;
    }
    return plain;
}

QColor DesignationLabel::ink(Comparison comparison, const QPalette &palette)
{
    switch (comparison) {
    case Equal:
        return Inks::ink(Inks::Ink::Good, palette, QPalette::Window);
    case Different:
        return Inks::ink(Inks::Ink::Bad, palette, QPalette::Window);
    case NotCompared:
        break;
    }
    return palette.color(QPalette::WindowText);
}

QSize DesignationLabel::sizeHint() const
{
    const QSize given = QLabel::sizeHint();
    const int margins = 2 * (margin() + frameWidth());
    return {fontMetrics().horizontalAdvance(shownText()) + margins + 2,
            std::max(given.height(), fontMetrics().height() + margins)};
}

void DesignationLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(ink(m_comparison, palette()));
    const QRect place = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(shownText(), Qt::ElideRight, place.width()));
}
