#include "TableValueList.h"

#include "QuickFilter.h"
#include "TableBar.h"
#include "VkTableModel.h"

#include <core/text/countText.h>

#include <QCheckBox>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int valueRole = Qt::UserRole;

/// Of equally frequent values those that come first.
void keepMostFrequent(QList<VkTableModel::ValueCount> *values)
{
    QList<int> counts;
    counts.reserve(values->size());
    for (const VkTableModel::ValueCount &value : std::as_const(*values))
        counts += value.count;
    const auto last = counts.begin() + TableValueList::MaxValues - 1;
    std::nth_element(counts.begin(), last, counts.end(), std::greater<>());
    const int least = *last;
    auto equal = std::count(counts.begin(), last + 1, least);
    values->removeIf([&](const VkTableModel::ValueCount &value) {
        return value.count < least || (value.count == least && equal-- <= 0);
    });
}

} // namespace

TableValueList::TableValueList(VkTableModel *model, const VKTab::VarId &variable, QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , m_list(new QListWidget(this))
    , m_others(new QCheckBox(tableText("Alle außer den gewählten"), this))
{
    setObjectName(QStringLiteral("valueList"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(StyledPanel);
    m_list->setObjectName(QStringLiteral("values"));
    m_list->setAccessibleName(
        tableText("Werte der Spalte %1").arg(model->variable(model->columnOf(variable)).getName()));
    m_list->setUniformItemSizes(true);
    m_others->setObjectName(QStringLiteral("others"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addWidget(m_list);
    layout->addWidget(m_others);
    fill(model, variable);
    m_list->setCurrentRow(0);
    setFocusProxy(m_list);
    connect(m_list, &QListWidget::itemChanged, this, &TableValueList::choose);
    connect(m_others, &QCheckBox::toggled, this, &TableValueList::choose);
}

TableValueList::~TableValueList() = default;

void TableValueList::fill(VkTableModel *model, const VKTab::VarId &variable)
{
    QList<VkTableModel::ValueCount> values = model->valueCounts(variable);
    const auto left = values.size() - MaxValues;
    if (left > 0)
        keepMostFrequent(&values);
    const bool filtered = !model->quickFilter(variable).isEmpty();
    for (const VkTableModel::ValueCount &value : std::as_const(values)) {
        const QString text = value.text.isEmpty() ? tableText("(leer)") : value.text;
        auto *const item = new QListWidgetItem(
            QStringLiteral("%1  (%2)").arg(text, countText(value.count)), m_list);
        item->setData(valueRole, value.text);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(filtered && value.passes ? Qt::Checked : Qt::Unchecked);
    }
    if (left > 0) {
        auto *const rest =
            new QListWidgetItem(tableText("und %Ln seltenere(r) Wert(e)", left), m_list);
        rest->setFlags(Qt::NoItemFlags);
    }
}

void TableValueList::choose()
{
    QStringList chosen;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked &&
            m_list->item(row)->flags().testFlag(Qt::ItemIsUserCheckable))
            chosen += m_list->item(row)->data(valueRole).toString();
    }
    Q_EMIT filterChosen(QuickFilter::ofTexts(chosen, m_others->isChecked()));
}
