#include "TourOverlay.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int BubbleWidth = 360;
constexpr int Distance = 12;

} // namespace

TourOverlay::TourOverlay(const QList<Step> &steps, QWidget *window)
    : QWidget(window)
    , m_steps(steps)
    , m_bubble(new QWidget(this))
    , m_title(new QLabel(m_bubble))
    , m_text(new QLabel(m_bubble))
    , m_count(new QLabel(m_bubble))
    , m_back(new QPushButton(tr("&Zurück"), m_bubble))
    , m_next(new QPushButton(m_bubble))
{
    setObjectName("TourOverlay");
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    m_bubble->setAutoFillBackground(true);
    m_bubble->setFixedWidth(BubbleWidth);
    QFont strong = font();
    strong.setBold(true);
    m_title->setFont(strong);
    m_title->setObjectName("tourTitle");
    m_text->setWordWrap(true);
    m_text->setObjectName("tourText");
    m_next->setObjectName("tourNext");
    m_back->setObjectName("tourBack");
    auto *skipButton = new QPushButton(tr("&Überspringen"), m_bubble);
    skipButton->setObjectName("tourSkip");
    for (QPushButton *button : {m_back, m_next, skipButton})
        button->setFocusPolicy(Qt::NoFocus);
    auto *layout = new QVBoxLayout(m_bubble);
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_count);
    buttons->addStretch(1);
    buttons->addWidget(skipButton);
    buttons->addWidget(m_back);
    buttons->addWidget(m_next);
    layout->addLayout(buttons);
    connect(m_next, &QPushButton::clicked, this, &TourOverlay::next);
    connect(m_back, &QPushButton::clicked, this, &TourOverlay::back);
    connect(skipButton, &QPushButton::clicked, this, &TourOverlay::skip);
    window->installEventFilter(this);
    m_formerFocus = window->focusWidget();
    setGeometry(window->rect());
    showStep(0);
    show();
    raise();
    setFocus();
}

void TourOverlay::next()
{
    if (m_step + 1 < m_steps.size())
        showStep(m_step + 1);
    else
        skip();
}

void TourOverlay::back()
{
    if (m_step > 0)
        showStep(m_step - 1);
}

void TourOverlay::skip()
{
    Q_EMIT ended();
    close();
    if (m_formerFocus)
        m_formerFocus->setFocus(Qt::OtherFocusReason);
}

void TourOverlay::showStep(int step)
{
    m_step = step;
    const Step &shown = m_steps.at(step);
    m_title->setText(shown.title);
    m_text->setText(shown.text);
    m_count->setText(QStringLiteral("%1 / %2").arg(step + 1).arg(m_steps.size()));
    m_back->setEnabled(step > 0);
    m_next->setText(step + 1 < m_steps.size() ? tr("&Weiter") : tr("&Fertig"));
    place();
    update();
}

QRect TourOverlay::shownPart() const
{
    const QWidget *const part = m_steps.at(m_step).part;
    if (!part || !part->isVisible())
        return {};
    return QRect(part->mapTo(parentWidget(), QPoint(0, 0)), part->size()).intersected(rect());
}

/// Beside the part where there is most room, or in the middle.
void TourOverlay::place()
{
    m_bubble->adjustSize();
    const QSize size = m_bubble->sizeHint().expandedTo(QSize(BubbleWidth, 0));
    m_bubble->resize(size);
    const QRect part = shownPart();
    QPoint at = rect().center() - QPoint(size.width() / 2, size.height() / 2);
    if (!part.isEmpty()) {
        if (rect().right() - part.right() > size.width() + 2 * Distance)
            at = {part.right() + Distance, part.center().y() - size.height() / 2};
        else if (rect().bottom() - part.bottom() > size.height() + 2 * Distance)
            at = {part.center().x() - size.width() / 2, part.bottom() + Distance};
        else if (part.top() > size.height() + 2 * Distance)
            at = {part.center().x() - size.width() / 2, part.top() - size.height() - Distance};
    }
    m_bubble->move(
        std::clamp(at.x(), Distance, std::max(Distance, width() - size.width() - Distance)),
        std::clamp(at.y(), Distance, std::max(Distance, height() - size.height() - Distance)));
}

void TourOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath dimmed;
    dimmed.addRect(rect());
    const QRect part = shownPart();
    if (!part.isEmpty()) {
        QPainterPath hole;
        hole.addRoundedRect(part.adjusted(-2, -2, 2, 2), 4, 4);
        dimmed -= hole;
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawPath(hole);
    }
    painter.fillPath(dimmed, QColor(0, 0, 0, 130));
    painter.fillRect(m_bubble->geometry().adjusted(-1, -1, 1, 1),
                     palette().color(QPalette::Highlight));
}

void TourOverlay::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        return skip();
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Right:
    case Qt::Key_Space:
        return next();
    case Qt::Key_Left:
        return back();
    default:
        QWidget::keyPressEvent(event);
    }
}

bool TourOverlay::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
        place();
    }
    return QWidget::eventFilter(object, event);
}
