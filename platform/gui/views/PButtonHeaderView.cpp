#include "PButtonHeaderView.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QToolTip>

#include <algorithm>

PButtonHeaderView::PButtonHeaderView(const QSize &buttonSize, Qt::Orientation orientation,
                                     QWidget *parent)
    : QHeaderView(orientation, parent)
    , m_buttonSize(buttonSize)
{
    viewport()->setMouseTracking(true);
    setStretchLastSection(true);
    setSectionsClickable(true);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QHeaderView::sectionCountChanged, this, &PButtonHeaderView::fitFirstSection);
}

PButtonHeaderView::~PButtonHeaderView() = default;

void PButtonHeaderView::setButtonForSection(int section, const QString &text, const QIcon &icon,
                                            const QString &toolTip)
{
    m_buttons.insert(section, {text, icon, toolTip});
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(text.isEmpty() ? toolTip : text);
    if (section < count())
        resizeSection(section, sectionSizeHint(section));
    viewport()->update();
}

void PButtonHeaderView::setModel(QAbstractItemModel *model)
{
    QHeaderView::setModel(model);
    fitFirstSection();
}

/// The model may get its columns later.
void PButtonHeaderView::fitFirstSection()
{
    if (count() > 0)
        setSectionResizeMode(0, QHeaderView::ResizeToContents);
}

int PButtonHeaderView::buttonWidth(const Button &button) const
{
    const int text = button.text.isEmpty() ? 0 : fontMetrics().horizontalAdvance(button.text) + 8;
    return m_buttonSize.width() + text;
}

QRect PButtonHeaderView::rectIn(const QRect &sectionRect, const Button &button) const
{
    const int height = std::min(m_buttonSize.height(), sectionRect.height());
    return QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                               QSize(buttonWidth(button), height), sectionRect);
}

QRect PButtonHeaderView::buttonRect(int section) const
{
    const auto found = m_buttons.constFind(section);
    if (found == m_buttons.constEnd() || section >= count() || isSectionHidden(section))
        return {};
    const int position = sectionViewportPosition(section);
    const int size = sectionSize(section);
    const QRect rect = orientation() == Qt::Horizontal
                           ? QRect(position, 0, size, viewport()->height())
                           : QRect(0, position, viewport()->width(), size);
    return rectIn(rect, *found);
}

int PButtonHeaderView::buttonAt(const QPoint &position) const
{
    const int section = logicalIndexAt(position);
    return section >= 0 && buttonRect(section).contains(position) ? section : -1;
}

void PButtonHeaderView::setHovered(int section)
{
    if (section == m_hovered)
        return;
    m_hovered = section;
    viewport()->update();
}

/// Qt's own header cuts a text that does not fit, whatever the mode.
void PButtonHeaderView::initStyleOptionForIndex(QStyleOptionHeader *option, int section) const
{
    QHeaderView::initStyleOptionForIndex(option, section);
    if (orientation() != Qt::Horizontal)
        return;
    const int margins = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    option->text = option->fontMetrics.elidedText(option->text, textElideMode(),
                                                  sectionSize(section) - margins);
}

void PButtonHeaderView::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, section);
    painter->restore();
    const auto found = m_buttons.constFind(section);
    if (found == m_buttons.constEnd())
        return;
    QStyleOptionToolButton option;
    option.initFrom(this);
    option.rect = rectIn(rect, *found);
    option.icon = found->icon;
    option.iconSize = m_buttonSize - QSize(8, 8);
    option.text = found->text;
    option.toolButtonStyle =
        found->text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon;
    option.subControls = QStyle::SC_ToolButton;
    option.state.setFlag(QStyle::State_AutoRaise);
    option.state.setFlag(QStyle::State_MouseOver, section == m_hovered);
    option.state.setFlag(QStyle::State_Raised, section == m_hovered);
    option.state.setFlag(QStyle::State_Sunken, section == m_pressed && section == m_hovered);
    option.state.setFlag(QStyle::State_HasFocus, section == m_current);
    style()->drawComplexControl(QStyle::CC_ToolButton, &option, painter, this);
    if (section == m_current)
        paintFocus(option, painter);
}

/// Styles frame the buttons of a tool bar weakly or not at all.
void PButtonHeaderView::paintFocus(const QStyleOption &button, QPainter *painter) const
{
    QStyleOptionFocusRect frame;
    frame.QStyleOption::operator=(button);
    frame.state.setFlag(QStyle::State_KeyboardFocusChange);
    frame.backgroundColor = palette().color(QPalette::Button);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, painter, this);
}

QSize PButtonHeaderView::sectionSizeFromContents(int section) const
{
    QSize size = QHeaderView::sectionSizeFromContents(section);
    if (const auto found = m_buttons.constFind(section); found != m_buttons.constEnd())
        size = size.expandedTo(QSize(buttonWidth(*found), m_buttonSize.height()));
    return size;
}

void PButtonHeaderView::mousePressEvent(QMouseEvent *event)
{
    const int section = buttonAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || section < 0) {
        QHeaderView::mousePressEvent(event);
        return;
    }
    m_pressed = section;
    viewport()->update();
}

void PButtonHeaderView::mouseMoveEvent(QMouseEvent *event)
{
    setHovered(buttonAt(event->position().toPoint()));
    if (m_pressed < 0)
        QHeaderView::mouseMoveEvent(event);
}

void PButtonHeaderView::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_pressed < 0 || event->button() != Qt::LeftButton) {
        QHeaderView::mouseReleaseEvent(event);
        return;
    }
    const int pressed = std::exchange(m_pressed, -1);
    viewport()->update();
    if (buttonAt(event->position().toPoint()) == pressed)
        Q_EMIT buttonClicked(pressed);
}

/// From left to right, as they are seen.
QList<int> PButtonHeaderView::sectionsWithButton() const
{
    QList<int> sections;
    for (int visual = 0; visual < count(); ++visual) {
        const int section = logicalIndex(visual);
        if (m_buttons.contains(section) && !isSectionHidden(section))
            sections.append(section);
    }
    if (layoutDirection() == Qt::RightToLeft && orientation() == Qt::Horizontal)
        std::reverse(sections.begin(), sections.end());
    return sections;
}

void PButtonHeaderView::setCurrent(int section)
{
    m_current = section;
    viewport()->update();
}

void PButtonHeaderView::keyPressEvent(QKeyEvent *event)
{
    const QList<int> sections = sectionsWithButton();
    const qsizetype at = sections.indexOf(m_current);
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        setCurrent(sections.value(qMax(at - 1, qsizetype(0)), -1));
        return;
    case Qt::Key_Right:
    case Qt::Key_Down:
        setCurrent(sections.value(qMin(at + 1, sections.size() - 1), -1));
        return;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (at >= 0 && !event->isAutoRepeat())
            Q_EMIT buttonClicked(m_current);
        return;
    default:
        QHeaderView::keyPressEvent(event);
    }
}

void PButtonHeaderView::focusInEvent(QFocusEvent *event)
{
    QHeaderView::focusInEvent(event);
    setCurrent(sectionsWithButton().value(0, -1));
}

void PButtonHeaderView::focusOutEvent(QFocusEvent *event)
{
    QHeaderView::focusOutEvent(event);
    setCurrent(-1);
}

bool PButtonHeaderView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        setHovered(-1);
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const int section = buttonAt(help->pos());
        if (section >= 0) {
            QToolTip::showText(help->globalPos(), m_buttons.value(section).toolTip, viewport(),
                               buttonRect(section));
            return true;
        }
    }
    return QHeaderView::viewportEvent(event);
}
