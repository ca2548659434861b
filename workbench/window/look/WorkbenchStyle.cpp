#include "WorkbenchStyle.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>

namespace {

constexpr int edgeWidth = 2;

void drawEdge(QPainter *painter, const QRect &rect, const QColor &colour, int width)
{
    painter->save();
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->drawRects(QList<QRect>{
        {rect.left(), rect.top(), rect.width(), width},
        {rect.left(), rect.bottom() - width + 1, rect.width(), width},
        {rect.left(), rect.top(), width, rect.height()},
        {rect.right() - width + 1, rect.top(), width, rect.height()},
    });
    painter->restore();
}

void drawCheckOutline(QPainter *painter, const QStyleOption &option)
{
    QColor outline = option.palette.color(QPalette::Active, QPalette::WindowText);
    outline.setAlpha(option.state.testFlag(QStyle::State_Enabled) ? 150 : 70);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(outline);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter->restore();
}

/// Round the cell with the keys, in the colour of its text: that is legible on the cell's ground.
void drawCellFocus(QPainter *painter, const QStyleOption &option)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    drawEdge(painter, option.rect,
             option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text), 1);
}

bool hasEdge(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_PanelButtonTool:
    case QStyle::PE_Frame:
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_FrameTabWidget:
    case QStyle::PE_FrameMenu:
    case QStyle::PE_FrameDockWidget:
    case QStyle::PE_FrameWindow:
    case QStyle::PE_PanelTipLabel:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorItemViewItemCheck:
        return true;
    default:
        return false;
    }
}

} // namespace

WorkbenchStyle::WorkbenchStyle(Look look)
    : QProxyStyle(look == Desktop ? QString() : QStringLiteral("Fusion"))
    , m_look(look)
{
}

WorkbenchStyle::~WorkbenchStyle() = default;

void WorkbenchStyle::outline(QPainter *painter, const QStyleOption &option, const QRect &rect) const
{
    if (m_look != HighContrast)
        return;
    const bool enabled = option.state.testFlag(State_Enabled);
    drawEdge(
        painter, rect,
        option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText),
        1);
}

void WorkbenchStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                   QPainter *painter, const QWidget *widget) const
{
    if (element == PE_FrameFocusRect) {
        // Not only after Tab: keys of commands lead to tables too.
        QStyleOptionFocusRect focus;
        if (const auto *const given = qstyleoption_cast<const QStyleOptionFocusRect *>(option))
            focus = *given;
        else
            static_cast<QStyleOption &>(focus) = *option;
        focus.state |= State_KeyboardFocusChange;
        if (qobject_cast<const QAbstractItemView *>(widget))
            return drawCellFocus(painter, focus);
        return QProxyStyle::drawPrimitive(element, &focus, painter, widget);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool quiet = element == PE_PanelButtonTool && !(option->state & State_Enabled);
    if (hasEdge(element) && !quiet)
        outline(painter, *option, option->rect);
    if (element == PE_IndicatorCheckBox && m_look == Own)
        drawCheckOutline(painter, *option);
    const bool scrolls = element == PE_Frame && qobject_cast<const QAbstractScrollArea *>(widget);
    const bool presses = m_look == HighContrast && element == PE_PanelButtonCommand;
    const bool writes = m_look == HighContrast && element == PE_FrameLineEdit;
    if ((scrolls || presses || writes) && option->state.testFlag(State_HasFocus))
        drawEdge(painter, option->rect, option->palette.color(QPalette::Highlight), edgeWidth);
}

void WorkbenchStyle::drawControl(ControlElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (m_look != HighContrast)
        return;
    if (element == CE_HeaderSection || element == CE_TabBarTabShape || element == CE_Splitter)
        outline(painter, *option, option->rect);
    if (element == CE_TabBarTabShape && option->state.testFlag(State_Selected))
        drawEdge(painter, option->rect, option->palette.color(QPalette::Highlight), edgeWidth);
}

void WorkbenchStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                        QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (m_look != HighContrast)
        return;
    if (control == CC_ScrollBar)
        outline(painter, *option,
                proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget));
    else if (control == CC_ComboBox || control == CC_SpinBox)
        outline(painter, *option, option->rect);
    if (control != CC_ScrollBar && option->state.testFlag(State_HasFocus) &&
        (control == CC_ComboBox || control == CC_SpinBox))
        drawEdge(painter, option->rect, option->palette.color(QPalette::Highlight), edgeWidth);
}

int WorkbenchStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                              QStyleHintReturn *data) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, data);
}

/// Room for the edge round what scrolls.
int WorkbenchStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                const QWidget *widget) const
{
    const int given = QProxyStyle::pixelMetric(metric, option, widget);
    const bool scrolls =
        metric == PM_DefaultFrameWidth && qobject_cast<const QAbstractScrollArea *>(widget);
    return scrolls ? std::max(given, edgeWidth) : given;
}
