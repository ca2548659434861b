#pragma once

#include "TableColumns.h"
#include "TableColumnValues.h"
#include "TableRows.h"
#include "VkTableModel.h"

#include <boost/signals2/connection.hpp>

#include <QHash>
#include <QIcon>

#include <atomic>
#include <map>
#include <optional>

class TextSearch;

/// Rows between which something changed that the views do not know yet.
class DirtyRows
{
public:
    void add(int row) { add(row, row); }
    void add(int first, int last)
    {
        m_first = isEmpty() ? first : std::min(m_first, first);
        m_last = std::max(m_last, last);
    }
    void clear() { m_first = m_last = -1; }
    [[nodiscard]] bool isEmpty() const { return m_last < 0; }
    [[nodiscard]] int first() const { return m_first; }
    [[nodiscard]] int last() const { return m_last; }

private:
    int m_first = -1;
    int m_last = -1;
};

class VkTableModelPrivate
{
public:
    explicit VkTableModelPrivate(VkTableModel *model);

    // Following the table.
    void connectTable();
    void onInvalidated(VKTab::Content::InvalidateFlags flags);
    void onLineStatus(const VKTab::LineId &line);
    void onLineModified(const VKTab::LineId &line);
    void refresh(VKTab::Content::InvalidateFlags flags);
    void noteUsedStatusColumns();
    [[nodiscard]] int countUsedStatusColumns() const;
    void scheduleFlush();
    void flush();
    void flush(DirtyRows &rows, int firstColumn, int lastColumn, const QList<int> &roles);

    // Columns and rows.
    void takeChoice(const TableColumnChoice &choice);
    void refreshColumns();
    void refreshRows();
    void resetTo(const QList<TableColumn> &columns);
    void forgetCells();
    [[nodiscard]] TableRows makeRows();
    [[nodiscard]] QList<VkTableModel::ValueCount> valueCounts(const VKTab::VarId &variable);
    [[nodiscard]] const TableColumn *column(int index) const;
    struct SortedValues;
    SortedValues &values(const VKTab::Var &var);

    // Cells.
    [[nodiscard]] const VKTab::Line &lineAt(int row) const;
    [[nodiscard]] QVariant statusData(int row, const TableColumn &column, int index,
                                      int role) const;
    [[nodiscard]] QVariant valueData(int row, const VKTab::Var &var, int role) const;
    /// The cut text of a cell that is far too long to be shown, without making all of it.
    [[nodiscard]] std::optional<QString> longText(int row, const VKTab::Var &var) const;
    [[nodiscard]] QString rangeText(int row, const VKTab::Var &var) const;
    [[nodiscard]] QString valueToolTip(int row, const VKTab::Var &var) const;
    [[nodiscard]] const VKTab::StatusValue *state(int row, const TableColumn &column) const;
    [[nodiscard]] QString toolTip(int row, const TableColumn &column, int index,
                                  QWidget *widget) const;
    [[nodiscard]] QString remark(int row) const;
    [[nodiscard]] QIcon icon(const QString &file) const;
    [[nodiscard]] QVariant columnHeader(const TableColumn &column, int role) const;

    /// The values of a column with their ranks, made when first asked for.
    struct SortedValues
    {
        std::unique_ptr<TableColumnValues> values;
        std::optional<std::vector<quint32>> ranks;
        const std::vector<quint32> &ranked()
        {
            if (!ranks)
                ranks = values->ranks();
            return *ranks;
        }
    };

    VkTableModel *q;
    VkTableModel::LineRemarks remarks; // may be empty
    VKTab::ContentRef table;
    std::shared_ptr<const VKTab::TableData> tableData; // of the rows
    TableColumnChoice choice;
    std::atomic<bool> hiddenShown = false; // choice.hidden, for all threads
    QList<TableColumn> columns;
    int statusColumns = 0;
    int usedStatusColumns = 0; // of them, as far as the views know
    TableRows rows;
    std::map<VKTab::VarId, QString> quickFilters;
    std::optional<TableColumn> sortedBy;
    Qt::SortOrder order = Qt::AscendingOrder;
    std::map<VKTab::VarId, SortedValues> sortedValues;

    bool following = true;
    VKTab::Content::InvalidateFlags missed; // while not following
    DirtyRows dirtyStatus;
    DirtyRows dirtyValues;
    bool flushScheduled = false;

    mutable VKTab::Line line; // the one asked for last
    mutable VKTab::LineId lineId;
    mutable QHash<QString, QIcon> icons;

    boost::signals2::scoped_connection invalidated;
    boost::signals2::scoped_connection lineStatus;
    boost::signals2::scoped_connection lineModified;
};
