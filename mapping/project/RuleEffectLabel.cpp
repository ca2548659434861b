#include "RuleEffectLabel.h"

#include <core/text/countText.h>
#include <core/text/PString.h>
#include <release/effect/RuleEffect.h>

namespace {

/// After the last key, so that a word that is typed is looked at once.
constexpr int Delay = 60;
/// Numbers of lines in the text; the tool tip has more.
constexpr int ShownLines = 10;
constexpr int ToolTipLines = 500;

QString numbers(const QList<int> &lines, int limit)
{
    QStringList texts;
    for (const int line : lines.first(std::min(qsizetype(limit), lines.size())))
        texts += QString::number(line);
    if (lines.size() > limit)
        texts += QStringLiteral("…");
    return texts.join(QStringLiteral(", "));
}

} // namespace

RuleEffectLabel::RuleEffectLabel(const PrjMappingC &mapping, int target,
                                 const VKTab::ContentRef &table, QWidget *parent)
    : QLabel(parent)
    , m_mapping(mapping)
    , m_target(target)
    , m_table(table)
{
    setObjectName(QStringLiteral("ruleEffect"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setText(QStringLiteral(" "));
    m_pool.setMaxThreadCount(1);
    m_delay.setSingleShot(true);
    m_delay.setInterval(Delay);
    connect(&m_delay, &QTimer::timeout, this, &RuleEffectLabel::start);
}

RuleEffectLabel::~RuleEffectLabel()
{
    stop();
    m_pool.waitForDone();
}

void RuleEffectLabel::stop()
{
    if (m_cancelled)
        m_cancelled->store(true);
    m_cancelled.reset();
}

void RuleEffectLabel::setChangedTarget(const std::optional<PrjMappingTargetC> &target)
{
    stop();
    m_changed = target;
    setText(target ? QStringLiteral("…") : QStringLiteral(" "));
    setToolTip(QString());
    if (target)
        m_delay.start();
    else
        m_delay.stop();
}

void RuleEffectLabel::start()
{
    const auto cancelled = std::make_shared<std::atomic<bool>>(false);
    m_cancelled = cancelled;
    m_pool.start([this, cancelled, mapping = m_mapping, target = m_target, changed = *m_changed,
                  table = m_table] {
        const auto effect =
            VelkRelease::ruleEffect(mapping, target, changed, table, cancelled.get());
        if (!effect)
            return;
        const auto show = [this, cancelled, effect] {
            if (cancelled != m_cancelled)
                return;
            setText(textOf(*effect));
            setToolTip(effect->misfits.size() > ShownLines ? numbers(effect->misfits, ToolTipLines)
                                                           : QString());
        };
        QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
    });
}

QString RuleEffectLabel::textOf(const VelkRelease::RuleEffect &effect)
{
    const QString text =
        PString::translate("Zeilen: %1 von %2 · offene, die zugewiesen würden: %3 · bestätigte, "
                           "die nicht mehr passten: %4",
                           "VelkLinkDbGui")
            .arg(countText(effect.taken), countText(effect.lines), countText(effect.settled),
                 countText(qint64(effect.misfits.size())));
    return effect.misfits.isEmpty()
               ? text
               : text + QStringLiteral(" (%1)").arg(numbers(effect.misfits, ShownLines));
}
