#include "StatusProgress.h"

#include <core/text/countText.h>
#include <gui/progress/ProgressText.h>

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace {

constexpr int Parts = 1000; // of the bar; counts may be beyond int

int partOf(const PProgressInfo &info)
{
    return info.total > 0
               ? int(std::clamp(double(info.count) / double(info.total), 0.0, 1.0) * Parts)
               : 0;
}

bool canBeReached(const QWidget *widget)
{
    if (!widget || !widget->window()->isVisible())
        return false;
    const QWidget *const modal = QApplication::activeModalWidget();
    return !modal || modal == widget->window();
}

} // namespace

StatusProgress::StatusProgress(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_details(new QLabel(this))
    , m_problems(new QLabel(this))
    , m_cancel(new QToolButton(this))
{
    setObjectName("statusProgress");
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *const part :
         std::initializer_list<QWidget *>{m_text, m_bar, m_details, m_problems, m_cancel})
        layout->addWidget(part);
    m_bar->setObjectName("progressBar");
    m_bar->setFixedWidth(160);
    m_bar->setTextVisible(false);
    m_text->setObjectName("progressText");
    m_details->setObjectName("progressDetails");
    m_problems->setObjectName("progressProblems");
    m_cancel->setObjectName("progressCancel");
    connect(m_cancel, &QToolButton::clicked, this, [this] {
        for (const PProgressInfo &info : std::as_const(m_running)) {
            if (info.cancellable && info.cancel)
                info.cancel->request();
        }
        m_cancel->setEnabled(false);
    });
    retranslate();
    hide();
}

void StatusProgress::showProgress(const QList<PProgressInfo> &running)
{
    if (m_running.isEmpty()) {
        m_cancel->setEnabled(true);
        m_problemCount = 0;
        showProblems();
    }
    m_running = running;
    setVisible(!running.isEmpty());
    if (running.isEmpty())
        return;
    const PProgressInfo &first = running.first();
    m_text->setText(first.text);
    m_bar->setRange(0, first.total < 0 ? 0 : Parts);
    m_bar->setValue(partOf(first));
    m_details->setText(progressDetails(first));
    m_cancel->setVisible(std::ranges::any_of(running, &PProgressInfo::cancellable));
}

void StatusProgress::countProblem()
{
    if (m_running.isEmpty())
        return;
    ++m_problemCount;
    showProblems();
}

void StatusProgress::showProblems()
{
    m_problems->setVisible(m_problemCount > 0);
    m_problems->setText(tr("Fehler und Warnungen: %1").arg(countText(m_problemCount)));
}

bool StatusProgress::owns(const QWidget *widget) const
{
    return widget == m_cancel;
}

void StatusProgress::retranslate()
{
    m_bar->setAccessibleName(tr("Fortschritt"));
    showProblems();
    m_cancel->setText(tr("Abbrechen"));
    m_cancel->setToolTip(tr("Bricht die laufende Arbeit ab; was fertig ist, bleibt"));
}

void StatusProgress::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

StatusProgressDisplay::StatusProgressDisplay(StatusProgress *widget)
    : m_widget(widget)
{
}

StatusProgressDisplay::~StatusProgressDisplay() = default;

void StatusProgressDisplay::showProgress(const QList<PProgressInfo> &running)
{
    if (!std::exchange(m_shown, !running.isEmpty())) // where it began it stays
        m_inWindow = !canBeReached(m_widget);
    if (m_inWindow)
        m_window.showProgress(running);
    else if (m_widget)
        m_widget->showProgress(running);
}

bool StatusProgressDisplay::acceptsInput(const QWidget *widget) const
{
    return m_window.acceptsInput(widget) || (m_widget && m_widget->owns(widget));
}
