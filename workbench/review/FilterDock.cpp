#include "FilterDock.h"

#include "PatternText.h"
#include "ReportTexts.h"

#include <core/text/countText.h>
#include <release/review/OpenReason.h>
#include <workbench/session/tasks/FilterWork.h>

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using VelkRelease::LineFilter;
using VelkRelease::LineTrait;

namespace {

constexpr int TraitRole = Qt::UserRole;
constexpr int ValueRole = Qt::UserRole + 1;
constexpr int NotRole = Qt::UserRole + 2;

// In the order of differenceText().
constexpr std::array<const char *, 9> differenceKeys{"replacement", "numberMap", "nearNumber",
                                                     "otherNumber", "wording",   "notation",
                                                     "added",       "missing",   "incomparable"};

// Of LineStateFilter, in the order of LineState.
constexpr std::array<const char *, VelkRelease::LineStateCount> stateTexts{
    "Konflikt", "Zu prüfen", "Ohne Ziel", "Automatisch", "Bestätigt", "Ausgelaufen"};

constexpr std::array<const char *, VelkRelease::LineTraitCount> groupTexts{
    QT_TRANSLATE_NOOP("FilterDock", "Zustand"),
    QT_TRANSLATE_NOOP("FilterDock", "Warum offen"),
    QT_TRANSLATE_NOOP("FilterDock", "Art des Unterschieds"),
    QT_TRANSLATE_NOOP("FilterDock", "Unterschied in der Spalte"),
    QT_TRANSLATE_NOOP("FilterDock", "Zuletzt entschieden von"),
    QT_TRANSLATE_NOOP("FilterDock", "Herkunft"),
};

/// Values that are always in the list, in this order.
QStringList standingValues(LineTrait trait)
{
    QStringList values;
    if (trait == LineTrait::State) {
        for (int state = 0; state < VelkRelease::LineStateCount; ++state)
            values += VelkRelease::lineStateKey(VelkRelease::LineState(state));
    } else if (trait == LineTrait::Reason) {
        for (int reason = 0; reason < VelkRelease::OpenReasonCount; ++reason)
            values += VelkRelease::openReasonKey(VelkRelease::OpenReason(reason));
    } else if (trait == LineTrait::Difference) {
        for (const char *const key : differenceKeys)
            values += QLatin1String(key);
    } else if (trait == LineTrait::Origin) {
        values += QStringLiteral("carried");
    }
    return values;
}

/// In the words of the pattern list.
QString differenceText(qsizetype at)
{
    const VelkRelease::ValueChange::Words words = PatternText::words();
    const std::array texts{FilterDock::tr("ersetzter Text"),
                           FilterDock::tr("Zahl umgerechnet"),
                           words.nearNumber,
                           words.otherNumber,
                           words.wording,
                           words.notation,
                           words.added,
                           words.missing,
                           PatternText::incomparable()};
    static_assert(texts.size() == differenceKeys.size());
    return texts[size_t(at)];
}

} // namespace

QString FilterDock::valueText(LineTrait trait, const QString &value)
{
    const qsizetype at = standingValues(trait).indexOf(value);
    if (trait == LineTrait::State && at >= 0)
        return QCoreApplication::translate("LineStateFilter", stateTexts[size_t(at)]);
    if (trait == LineTrait::Reason && at >= 0)
        return ReportTexts::reason(VelkRelease::OpenReason(at));
    if (trait == LineTrait::Difference && at >= 0)
        return differenceText(at);
    if (trait == LineTrait::Origin && at >= 0)
        return tr("aus einem früheren Mapping übernommen");
    if (!value.isEmpty())
        return value;
    return trait == LineTrait::Author ? tr("niemand") : tr("(nichts davon)");
}

FilterDock::FilterDock(FilterWork *work, QWidget *parent)
    : QDockWidget(parent)
    , m_work(work)
{
    setObjectName("FilterDock");
    auto *const content = new QWidget(this);
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    m_sum = new QLabel(content);
    m_sum->setObjectName("FilterSum");
    m_sum->setWordWrap(true);
    m_list = new QTreeWidget(content);
    m_list->setObjectName("FilterList");
    m_list->setColumnCount(2);
    m_list->setUniformRowHeights(true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_clear = new QPushButton(content);
    m_clear->setObjectName("FilterClear");
    layout->addWidget(m_sum);
    layout->addWidget(m_list);
    layout->addWidget(m_clear);
    setWidget(content);
    for (int trait = 0; trait < VelkRelease::LineTraitCount; ++trait) {
        auto *const group = new QTreeWidgetItem(m_list);
        group->setData(0, TraitRole, trait);
        group->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        group->setExpanded(true);
    }
    connect(m_list, &QTreeWidget::itemChanged, this, &FilterDock::take);
    connect(m_clear, &QPushButton::clicked, this, [this] { m_work->setFilter({}); });
    connect(work, &FilterWork::changed, this, &FilterDock::fill);
    connect(work, &FilterWork::linesChanged, this, &FilterDock::fill);
    connect(work, &FilterWork::readingChanged, this, &FilterDock::writeSum);
    connect(this, &QDockWidget::visibilityChanged, work,
            [this] { m_work->setWanted(!isHidden()); });
    retranslate();
}

FilterDock::~FilterDock() = default;

void FilterDock::focusList()
{
    m_list->setFocus();
    if (!m_list->currentItem())
        m_list->setCurrentItem(m_list->topLevelItem(0));
}

/// The same rows keep their places, so that the keys stay where they are.
void FilterDock::fill()
{
    const QScopedValueRollback filling(m_isFilling, true);
    for (int trait = 0; trait < VelkRelease::LineTraitCount; ++trait)
        fillGroup(LineTrait(trait));
    m_clear->setEnabled(!m_work->filter().isEmpty());
    writeSum();
}

void FilterDock::fillGroup(LineTrait trait)
{
    QTreeWidgetItem *const group = m_list->topLevelItem(int(trait));
    const LineFilter::Choice &choice = m_work->filter().of(trait);
    const QHash<QString, int> counts = m_work->isKnown()
                                           ? m_work->traits().counts(trait, m_work->filter())
                                           : QHash<QString, int>();
    QStringList values = standingValues(trait);
    // A row that was there stays at its place, with 0, as long as the same release is looked at.
    if (m_work->isKnown()) {
        for (int i = 1; i < group->childCount(); ++i)
            values += group->child(i)->data(0, ValueRole).toString();
        values.removeDuplicates();
    }
    QStringList more = counts.keys() + choice.values;
    more.removeDuplicates();
    more.removeIf([&values](const QString &value) { return values.contains(value); });
    std::ranges::sort(more, [&counts](const QString &a, const QString &b) {
        return counts.value(a) != counts.value(b) ? counts.value(a) > counts.value(b) : a < b;
    });
    values += more;
    if (group->childCount() == 0) {
        auto *const isNot = new QTreeWidgetItem(group);
        isNot->setData(0, NotRole, true);
        isNot->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    }
    QTreeWidgetItem *const isNot = group->child(0);
    isNot->setText(0, tr("nicht die gewählten"));
    isNot->setCheckState(0, choice.isNot ? Qt::Checked : Qt::Unchecked);
    while (group->childCount() > values.size() + 1)
        delete group->takeChild(group->childCount() - 1);
    for (int i = 0; i < values.size(); ++i) {
        if (i + 1 >= group->childCount())
            new QTreeWidgetItem(group);
        QTreeWidgetItem *const item = group->child(i + 1);
        item->setData(0, ValueRole, values[i]);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setText(0, valueText(trait, values[i]));
        item->setToolTip(0, item->text(0));
        item->setCheckState(0, choice.values.contains(values[i]) ? Qt::Checked : Qt::Unchecked);
        item->setText(1, m_work->isKnown() ? countText(counts.value(values[i])) : QString());
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
}

/// What the user ticked.
void FilterDock::take(QTreeWidgetItem *item)
{
    QTreeWidgetItem *const group = item->parent();
    if (m_isFilling || !group)
        return;
    m_list->setCurrentItem(item); // keys go on where the mouse was
    LineFilter filter = m_work->filter();
    LineFilter::Choice &choice = filter.of(LineTrait(group->data(0, TraitRole).toInt()));
    const bool on = item->checkState(0) == Qt::Checked;
    const QString value = item->data(0, ValueRole).toString();
    if (item->data(0, NotRole).toBool())
        choice.isNot = on;
    else if (!on)
        choice.values.removeAll(value);
    else if (!choice.values.contains(value))
        choice.values.append(value);
    // Values that have no line any more go: not while one of them is being changed.
    QMetaObject::invokeMethod(
        this, [this, filter] { m_work->setFilter(filter); }, Qt::QueuedConnection);
}

void FilterDock::writeSum()
{
    QString text;
    if (m_work->isReading())
        text = tr("Die Tabellen werden gelesen...");
    else if (m_work->isActive())
        text = tr("%Ln Zeile(n)", nullptr, m_work->numbers().lines) + u' ' +
               tr("in %Ln Projekt(en)", nullptr, m_work->numbers().projects);
    else
        text = tr("Kein Filter: alle Zeilen");
    if (!m_work->errors().isEmpty())
        text += QStringLiteral(" · ") +
                tr("%Ln Tabelle(n) nicht lesbar", nullptr, int(m_work->errors().size()));
    m_sum->setText(text);
    m_sum->setToolTip(m_work->errors().join(u'\n'));
}

void FilterDock::retranslate()
{
    setWindowTitle(tr("Filter über alle Zeilen"));
    m_list->setHeaderLabels({tr("Wert"), tr("Zeilen")});
    m_list->setAccessibleName(windowTitle());
    m_clear->setText(tr("Filter au&fheben"));
    for (int trait = 0; trait < VelkRelease::LineTraitCount; ++trait)
        m_list->topLevelItem(trait)->setText(0, tr(groupTexts[size_t(trait)]));
    fill();
}

void FilterDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}
