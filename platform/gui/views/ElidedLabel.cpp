#include "ElidedLabel.h"

#include <QPainter>
#include <QStyle>

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget *parent)
    : QLabel(parent)
    , m_mode(mode)
{
    setTextFormat(Qt::PlainText);
    setMinimumWidth(1); // a long text must not keep what it is in from getting narrower
}

ElidedLabel::~ElidedLabel() = default;

QString ElidedLabel::shownText() const
{
    if (textFormat() != Qt::PlainText)
        return text();
    return fontMetrics().elidedText(text(), m_mode, contentsRect().width() - 2 * margin());
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (shown == text() || hasSelectedText())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), int(Qt::AlignLeft | Qt::AlignVCenter),
                          palette(), isEnabled(), shown, foregroundRole());
}
