#include "RangeDock.h"

#include <core/text/countText.h>

#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

using VelkRelease::RangeCoverage;

namespace {

// Told apart without colours too: nothing is hatched, several are crossed.
const QColor coveredColour(76, 145, 65);
const QColor missingColour(200, 60, 50);
const QColor twiceColour(225, 155, 30);

QString someOf(const QStringList &values)
{
    constexpr int shown = 8;
    return values.size() > shown
               ? values.mid(0, shown).join(QStringLiteral(", ")) + QStringLiteral(", …")
               : values.join(QStringLiteral(", "));
}

} // namespace

RangeBar::RangeBar(QWidget *parent)
    : QWidget(parent)
{
    setObjectName("RangeBar");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RangeBar::setCoverage(const RangeCoverage &coverage)
{
    m_values = coverage.values;
    update();
}

QSize RangeBar::sizeHint() const
{
    return {200, fontMetrics().height() + 8};
}

int RangeBar::valueAt(int x) const
{
    if (m_values.isEmpty() || width() <= 0)
        return -1;
    return int(std::clamp<qint64>(qint64(x) * m_values.size() / width(), 0, m_values.size() - 1));
}

/// Of more values than there are pixels the worst one of a pixel is to be seen.
void RangeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const qint64 count = m_values.size();
    for (int x = 0; count > 0 && x < width();) {
        const qint64 first = qint64(x) * count / width();
        const int end = count >= width() ? x + 1 : int((first + 1) * width() / count);
        const qint64 last = std::max(first + 1, qint64(end) * count / width());
        const auto begin = m_values.cbegin() + first;
        const auto stop = m_values.cbegin() + std::min(last, count);
        const bool missing = std::any_of(begin, stop, [](const auto &v) { return v.times == 0; });
        const bool twice = std::any_of(begin, stop, [](const auto &v) { return v.times > 1; });
        const QRect part(x, 0, std::max(1, end - x), height());
        painter.fillRect(part, missing ? missingColour : twice ? twiceColour : coveredColour);
        if (missing || twice)
            painter.fillRect(part,
                             QBrush(Qt::white, missing ? Qt::BDiagPattern : Qt::DiagCrossPattern));
        if (part.width() > 3) {
            painter.setPen(Qt::white);
            painter.drawLine(part.topRight(), part.bottomRight());
        }
        if (part.width() > fontMetrics().horizontalAdvance(begin->text) + 4) {
            painter.setPen(Qt::black);
            const QRect box = fontMetrics().boundingRect(part, Qt::AlignCenter, begin->text);
            painter.fillRect(box.adjusted(-2, 0, 2, 0), QColor(255, 255, 255, 200));
            painter.drawText(part, Qt::AlignCenter, begin->text);
        }
        x = std::max(x + 1, end);
    }
}

bool RangeBar::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *const help = static_cast<QHelpEvent *>(event);
    const int value = valueAt(help->pos().x());
    if (value < 0)
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(),
                           RangeDock::tr("%1: %Ln Zeile(n)", nullptr, m_values[value].times)
                               .arg(m_values[value].text),
                           this);
    return true;
}

RangeDock::RangeDock(QWidget *parent)
    : QDockWidget(parent)
{
    setObjectName("RangeDock");
    auto *const content = new QWidget(this);
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    m_text = new QLabel(content);
    m_text->setObjectName("RangeText");
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_bar = new RangeBar(content);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addStretch();
    setWidget(content);
    retranslate();
}

RangeDock::~RangeDock() = default;

QString RangeDock::text(const RangeCoverage &coverage)
{
    if (coverage.isEmpty())
        return tr("Die Zeile hat keine Wertebereichszuordnung.");
    const QStringList missing = coverage.missing();
    const QStringList twice = coverage.twice();
    QStringList parts{tr("%1: %2 von %Ln Wert(en) zugeordnet", nullptr, int(coverage.values.size()))
                          .arg(coverage.variables.join(QStringLiteral(", ")),
                               countText(coverage.values.size() - missing.size()))};
    if (!missing.isEmpty())
        parts += tr("fehlend: %1").arg(someOf(missing));
    if (!twice.isEmpty())
        parts += tr("mehrfach: %1").arg(someOf(twice));
    if (!coverage.strange.isEmpty())
        parts += tr("nicht im alten Bereich: %1").arg(someOf(coverage.strange));
    return parts.join(QStringLiteral(" · "));
}

void RangeDock::setCoverage(const RangeCoverage &coverage)
{
    m_coverage = coverage;
    m_bar->setCoverage(coverage);
    m_bar->setVisible(!coverage.isEmpty());
    m_text->setText(text(coverage));
    m_bar->setAccessibleDescription(m_text->text());
}

void RangeDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void RangeDock::retranslate()
{
    setWindowTitle(tr("Wertebereich der Zeile"));
    m_bar->setAccessibleName(windowTitle());
    setCoverage(VelkRelease::RangeCoverage(m_coverage));
}
