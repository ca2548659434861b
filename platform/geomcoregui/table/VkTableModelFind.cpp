#include "TableCellText.h"
#include "VkTableModelPrivate.h"

#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

namespace {

/// Looks for a text in the cells of a view, a row of the file split once.
class CellFinder
{
public:
    CellFinder(const VkTableModelPrivate &model, const QString &text)
        : m_model(model)
        , m_search(text)
        , m_data(model.tableData)
        , m_isPlain(model.table.isPlain())
        , m_cells(m_data ? size_t(m_data->columnCount()) : 0)
    {
        for (const TableColumn &column : model.columns)
            m_fileColumns.push_back(fileColumn(column));
    }

    [[nodiscard]] bool isEmpty() const { return m_search.isEmpty(); }

    /// First column of the row that holds the text between two columns, looking from \a first to
    /// \a last, which may lie before it; -1 if there is none.
    int columnIn(int row, int first, int last)
    {
        split(row);
        const int step = first <= last ? 1 : -1;
        for (int column = first; column != last + step; column += step) {
            if (holds(row, column))
                return column;
        }
        return -1;
    }

private:
    static constexpr int NoCell = -1;
    static constexpr int OtherCell = -2;

    /// Column of the file whose bytes the view shows; else NoCell for a status column, OtherCell.
    [[nodiscard]] int fileColumn(const TableColumn &column) const
    {
        if (column.isStatus())
            return NoCell;
        const int index = VKTab::LineView::columnOf(column.var.getVarId());
        const bool isRaw =
            m_data && index >= 0 && index < m_data->columnCount() && showsRawText(*m_data, index);
        return isRaw ? index : OtherCell;
    }

    void split(int row)
    {
        const VKTab::LineId id = m_model.rows.lineId(row);
        m_isRaw = m_isPlain || VKTab::LineView(m_model.table, id).isPlain();
        if (m_isRaw)
            m_data->cells(m_data->rowOf(id), m_cells, m_scratch);
    }

    [[nodiscard]] bool holds(int row, int column) const
    {
        const int file = m_fileColumns[size_t(column)];
        if (file == NoCell)
            return false;
        if (file == OtherCell || !m_isRaw)
            return m_search.isIn(shownText(m_model.lineAt(row), m_model.columns.at(column).var));
        const std::string_view cell = m_cells[size_t(file)];
        return m_search.isIn(cell) && !m_data->isMissing(cell);
    }

    const VkTableModelPrivate &m_model;
    TextSearch m_search;
    std::shared_ptr<const VKTab::TableData> m_data;
    bool m_isPlain;
    bool m_isRaw = false;
    std::vector<int> m_fileColumns;
    std::vector<std::string_view> m_cells;
    std::string m_scratch;
};

} // namespace

QModelIndex VkTableModel::find(const QString &text, const QModelIndex &from, bool backwards) const
{
    const ViewLanguage language;
    CellFinder finder(*d, text);
    const int count = rowCount();
    const int last = columnCount() - 1;
    if (finder.isEmpty() || count == 0 || last < 0)
        return {};
    const int step = backwards ? -1 : 1;
    const int lineBegin = backwards ? last : 0;
    const int lineEnd = last - lineBegin;
    // The row of `from` is looked at twice: behind it first, before it and at it last.
    int row = from.isValid() ? from.row() : (backwards ? count - 1 : 0);
    const int next = from.isValid() ? from.column() + step : lineBegin;
    for (int i = 0; i <= count; ++i, row = (row + step + count) % count) {
        const bool isRest = i == 0 && (backwards ? next >= 0 : next <= last);
        const bool isHead = i == count && from.isValid();
        int found = -1;
        if (isRest)
            found = finder.columnIn(row, next, lineEnd);
        else if (isHead)
            found = finder.columnIn(row, lineBegin, from.column());
        else if (i > 0 && i < count)
            found = finder.columnIn(row, lineBegin, lineEnd);
        if (found >= 0)
            return index(row, found);
    }
    return {};
}
