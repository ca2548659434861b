#include "ElidedCheckBox.h"

#include <QStyleOptionButton>
#include <QStylePainter>

ElidedCheckBox::ElidedCheckBox(const QString &text, QWidget *parent)
    : QCheckBox(text, parent)
{
    setToolTip(text);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

ElidedCheckBox::~ElidedCheckBox() = default;

QSize ElidedCheckBox::minimumSizeHint() const
{
    const int box = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
    const int space = style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
    return {box + space + fontMetrics().averageCharWidth() * 8,
            QCheckBox::minimumSizeHint().height()};
}

QString ElidedCheckBox::shownText() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect place = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    return fontMetrics().elidedText(text(), Qt::ElideRight, place.width(), Qt::TextShowMnemonic);
}

void ElidedCheckBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = shownText();
    painter.drawControl(QStyle::CE_CheckBox, option);
}
