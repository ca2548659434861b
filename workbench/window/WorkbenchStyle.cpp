#include "WorkbenchStyle.h"

#include <QPainter>
#include <QPalette>
#include <QStyleOption>

WorkbenchStyle::WorkbenchStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

WorkbenchStyle::~WorkbenchStyle() = default;

void WorkbenchStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                   QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox)
        return;
    QColor outline = option->palette.color(QPalette::Active, QPalette::WindowText);
    outline.setAlpha(option->state.testFlag(State_Enabled) ? 150 : 70);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(outline);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter->restore();
}
