#include "TableColumnOrder.h"

#include "TableColumnNames.h"
#include "TableGrid.h"
#include "VkTableModel.h"

#include <gui/application/PApplication.h>

#include <QHeaderView>
#include <QScopedValueRollback>

namespace {

const QString hiddenSection = QStringLiteral("HiddenColumns");
const QString orderSection = QStringLiteral("ColumnOrder");
const QString frozenSection = QStringLiteral("FrozenColumns");
const QString noFrozen = QStringLiteral("-"); // no column is called so: names are encoded

QStringList readNames(const QString &section, const QString &key)
{
    QStringList names;
    const QString stored =
        PApplication::getAppConfig()->getItemValue(key, section, QString()).GetString();
    for (const QString &name : stored.split(u';', Qt::SkipEmptyParts))
        names += TableColumnNames::decoded(name);
    return names;
}

void writeNames(const QString &section, const QString &key, const QStringList &names)
{
    QStringList encoded;
    encoded.reserve(names.size());
    for (const QString &name : names)
        encoded += TableColumnNames::encoded(name);
    PApplication::getAppConfig()->SetValue(key, section, encoded.join(u';'));
}

} // namespace

TableColumnOrder::TableColumnOrder(TableGrid *grid, VkTableModel *model)
    : QObject(grid)
    , m_grid(grid)
    , m_model(model)
{
    grid->horizontalHeader()->setSectionsMovable(true);
    connect(grid->horizontalHeader(), &QHeaderView::sectionMoved, this, &TableColumnOrder::onMoved);
}

TableColumnOrder::~TableColumnOrder() = default;

void TableColumnOrder::load()
{
    m_key = TableColumnNames::ofTable(*m_model);
    m_hidden = m_key.isEmpty() ? QStringList() : readNames(hiddenSection, m_key);
    m_order = m_key.isEmpty() ? QStringList() : readNames(orderSection, m_key);
    m_frozen.clear();
    if (!m_key.isEmpty())
        m_frozen =
            PApplication::getAppConfig()->getItemValue(m_key, frozenSection, m_frozen).GetString();
}

void TableColumnOrder::apply()
{
    const QScopedValueRollback guard(m_applying, true);
    QHeaderView *const header = m_grid->horizontalHeader();
    // The header keeps the places of the former table's columns.
    QList<int> columns;
    for (int column = 0; column < m_model->columnCount(); ++column)
        columns += column;
    const auto place = [&](int column) {
        const qsizetype at = m_order.indexOf(TableColumnNames::ofColumn(*m_model, column));
        return at < 0 ? m_order.size() : at; // a new one stands last
    };
    if (!m_order.isEmpty())
        std::stable_sort(columns.begin(), columns.end(),
                         [&](int a, int b) { return place(a) < place(b); });
    for (int visual = 0; visual < columns.size(); ++visual) {
        const int from = header->visualIndex(columns[visual]);
        if (from != visual)
            header->moveSection(from, visual);
    }
    applyFrozen();
}

void TableColumnOrder::setFreezesFirst(bool freezes)
{
    m_freezesFirst = freezes;
    applyFrozen();
}

void TableColumnOrder::applyFrozen()
{
    const QHeaderView *const header = m_grid->horizontalHeader();
    QList<int> columns;
    bool isComplete = m_frozen == noFrozen || (m_frozen.isEmpty() && !m_freezesFirst);
    for (int visual = 0; visual < m_model->columnCount() && !isComplete; ++visual) {
        const int column = header->logicalIndex(visual);
        columns += column;
        isComplete = m_frozen.isEmpty()
                         ? column >= m_model->statusColumnCount() && !m_grid->isColumnHidden(column)
                         : TableColumnNames::encoded(
                               TableColumnNames::ofColumn(*m_model, column)) == m_frozen;
    }
    // The one that the user chose is gone.
    if (!isComplete)
        columns.clear();
    m_grid->setFrozenColumns(columns);
}

bool TableColumnOrder::hasFrozen() const
{
    return !m_grid->frozenColumns().isEmpty();
}

void TableColumnOrder::freezeUpTo(int column)
{
    if (column < 0 || column >= m_model->columnCount())
        return;
    m_frozen = TableColumnNames::encoded(TableColumnNames::ofColumn(*m_model, column));
    store();
    applyFrozen();
}

void TableColumnOrder::freezeNone()
{
    m_frozen = noFrozen;
    store();
    applyFrozen();
}

void TableColumnOrder::onMoved()
{
    if (m_applying)
        return;
    const QHeaderView *const header = m_grid->horizontalHeader();
    m_order.clear();
    for (int visual = 0; visual < m_model->columnCount(); ++visual)
        m_order += TableColumnNames::ofColumn(*m_model, header->logicalIndex(visual));
    store();
    applyFrozen();
}

void TableColumnOrder::store() const
{
    if (m_key.isEmpty())
        return;
    writeNames(hiddenSection, m_key, m_hidden);
    writeNames(orderSection, m_key, m_order);
    PApplication::getAppConfig()->SetValue(m_key, frozenSection, m_frozen);
}

bool TableColumnOrder::canHide(int column) const
{
    if (column < m_model->statusColumnCount())
        return column >= 0;
    int shown = 0;
    for (int other = m_model->statusColumnCount(); other < m_model->columnCount(); ++other)
        shown += m_grid->isColumnHidden(other) ? 0 : 1;
    return shown > 1 && !m_grid->isColumnHidden(column);
}

void TableColumnOrder::hide(int column)
{
    if (!canHide(column))
        return;
    m_hidden += TableColumnNames::ofColumn(*m_model, column);
    store();
    Q_EMIT hiddenChanged();
}

void TableColumnOrder::showAll()
{
    if (m_hidden.isEmpty())
        return;
    m_hidden.clear();
    store();
    Q_EMIT hiddenChanged();
}

/// Visual place of the next column that is shown; -1 at an end.
int TableColumnOrder::neighbour(int column, int step) const
{
    const QHeaderView *const header = m_grid->horizontalHeader();
    if (column < 0 || column >= m_model->columnCount())
        return -1;
    int visual = header->visualIndex(column) + step;
    while (visual >= 0 && visual < header->count() &&
           header->isSectionHidden(header->logicalIndex(visual)))
        visual += step;
    return visual < header->count() ? visual : -1;
}

bool TableColumnOrder::canMove(int column, int step) const
{
    return neighbour(column, step) >= 0;
}

void TableColumnOrder::move(int column, int step)
{
    if (const int to = neighbour(column, step); to >= 0)
        m_grid->horizontalHeader()->moveSection(m_grid->horizontalHeader()->visualIndex(column),
                                                to);
}
