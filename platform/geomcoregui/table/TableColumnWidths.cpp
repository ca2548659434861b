#include "TableColumnWidths.h"

#include "TableColumnNames.h"
#include "TableColumnOrder.h"
#include "TableGrid.h"
#include "VkTableModel.h"

#include <gui/application/PApplication.h>

#include <QHeaderView>
#include <QScopedValueRollback>

namespace {

const QString section = QStringLiteral("TableColumns");
constexpr int sampleRows = 60;
constexpr int widest = 360; // at zoom factor 1
constexpr int widestRange = 220;

} // namespace

TableColumnWidths::TableColumnWidths(TableGrid *grid, VkTableModel *model)
    : QObject(grid)
    , m_grid(grid)
    , m_model(model)
{
    connect(grid->horizontalHeader(), &QHeaderView::sectionResized, this,
            &TableColumnWidths::onResized);
    connect(grid->horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this,
            &TableColumnWidths::fit);
}

TableColumnWidths::~TableColumnWidths()
{
    store();
}

void TableColumnWidths::setOrder(const TableColumnOrder *order)
{
    m_order = order;
}

void TableColumnWidths::load()
{
    store();
    m_widths.clear();
    m_fitted.clear();
    m_key = TableColumnNames::ofTable(*m_model);
    if (m_key.isEmpty())
        return;
    const QString stored =
        PApplication::getAppConfig()->getItemValue(m_key, section, QString()).GetString();
    for (const QString &entry : stored.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype colon = entry.indexOf(u':');
        const int width = QStringView(entry).mid(colon + 1).toInt();
        if (colon > 0 && width > 0)
            m_widths[TableColumnNames::decoded(entry.left(colon))] = width;
    }
}

void TableColumnWidths::store()
{
    if (!std::exchange(m_changed, false) || m_key.isEmpty())
        return;
    QStringList entries;
    for (const auto &[name, width] : m_widths)
        entries.append(TableColumnNames::encoded(name) + u':' + QString::number(width));
    PApplication::getAppConfig()->SetValue(m_key, section, entries.join(u';'));
}

void TableColumnWidths::apply()
{
    const QScopedValueRollback guard(m_applying, true);
    QHeaderView *const header = m_grid->horizontalHeader();
    showUsedColumns();
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const auto known = m_widths.find(TableColumnNames::ofColumn(*m_model, column));
        header->resizeSection(column, known == m_widths.end() ? fittingWidth(column)
                                                              : qRound(known->second * m_zoom));
    }
}

void TableColumnWidths::showUsedColumns()
{
    const QScopedValueRollback guard(m_applying, true);
    QStringList hiddenByUser;
    if (m_order)
        hiddenByUser = m_order->hidden();
    // The header keeps what was hidden when the model gets other columns.
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const bool unused =
            column < m_model->statusColumnCount() && !m_model->isStatusColumnUsed(column);
        const bool hidden =
            unused || hiddenByUser.contains(TableColumnNames::ofColumn(*m_model, column));
        if (m_grid->isColumnHidden(column) != hidden)
            m_grid->setColumnHidden(column, hidden);
    }
}

void TableColumnWidths::setZoomFactor(double factor)
{
    m_zoom = factor;
    apply();
}

void TableColumnWidths::fit(int column)
{
    m_changed = m_widths.erase(TableColumnNames::ofColumn(*m_model, column)) > 0 || m_changed;
    const QScopedValueRollback guard(m_applying, true);
    m_grid->horizontalHeader()->resizeSection(column, neededWidth(column));
}

void TableColumnWidths::fitAll()
{
    for (int column = 0; column < m_model->columnCount(); ++column)
        fit(column);
}

/// Without a line the caption alone would count.
int TableColumnWidths::fittingWidth(int column)
{
    const QString name = TableColumnNames::ofColumn(*m_model, column);
    const auto fitted = m_fitted.find(name);
    if (m_model->rowCount() == 0 && fitted != m_fitted.end())
        return qRound(fitted->second * m_zoom);
    const int needed = neededWidth(column);
    if (m_model->rowCount() > 0)
        m_fitted[name] = qRound(needed / m_zoom);
    return needed;
}

int TableColumnWidths::neededWidth(int column) const
{
    const int margin = 2 * m_grid->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 6;
    QFont italic = m_grid->font(); // ranges; a little wider than upright
    italic.setItalic(true);
    const QFontMetrics metrics(italic);
    // The caption of a status column is empty.
    int width = column < m_model->statusColumnCount()
                    ? m_grid->iconSize().width() + margin
                    : m_grid->horizontalHeader()->sectionSizeHint(column);
    const int begin = std::max(0, m_grid->rowAt(0));
    const int end = std::min(m_model->rowCount(), begin + sampleRows);
    for (int row = begin; row < end; ++row) {
        const QString text = m_model->index(row, column).data().toString();
        width = std::max(width, metrics.horizontalAdvance(text) + 2 * margin);
    }
    const int most = m_model->variable(column).isFW() ? widestRange : widest;
    return std::min(width, qRound(most * m_zoom));
}

void TableColumnWidths::onResized(int column, int, int newSize)
{
    if (m_applying || newSize <= 0 || column >= m_model->columnCount())
        return;
    m_widths[TableColumnNames::ofColumn(*m_model, column)] = std::max(1, qRound(newSize / m_zoom));
    m_changed = true;
}
