#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <geomcore/table/Content.h>

#include <QAbstractTableModel>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

class VkTableModelPrivate;

/// The lines of a table as rows: first a column for each status key of its options, if these show
/// status columns, then one for each variable that is shown, in the table's column order. The rows
/// are those of the table's line mapping, less what the quick filters leave out, in the order of
/// the mapping or sorted by one column.
///
/// Follows the table: invalidated columns, filters and values, changed cells and status values.
/// Changes of single lines are gathered until the event loop runs and then reported as one range.
/// GUI thread except where an operation says more.
class VELKGEOMCOREGUI_EXPORT VkTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Role {
        LineIdRole = Qt::UserRole, ///< VKTab::LineId of a cell's line
        VarIdRole,                 ///< int, variable of a column; -1 for a status column
        StatusKeyRole,             ///< name of a column's status key, else empty
        RangeRole,                 ///< text of the range that a cell offers, else empty
        WholeTextRole,             ///< text of a value, however long; Qt::DisplayRole is cut
    };

    explicit VkTableModel(QObject *parent = nullptr);
    ~VkTableModel() override;

    [[nodiscard]] VKTab::ContentRef getTable() const;
    /// Takes sorting and quick filters back.
    void setTable(const VKTab::ContentRef &table);
    /// A model that does not follow its table catches up when it does so again.
    void setFollowing(bool following);

    /// Hidden variables are shown. False at first. Any thread.
    [[nodiscard]] bool showHiddenVars() const;
    /// Any thread: nothing happens if that is so already; from another thread than the model's own
    /// the change comes when the model's thread gets to it.
    void setShowHiddenVars(bool show);
    /// Columns of topological variables. True at first.
    void setShowTopoValues(bool show);
    /// Columns of variables that serve the library or the host. False at first.
    void setShowInternalValues(bool show);

    /// Not valid for a row out of range.
    [[nodiscard]] VKTab::LineId lineId(int row) const;
    /// -1 if the line has no row.
    [[nodiscard]] int rowOf(const VKTab::LineId &line) const;
    /// Row of the table's line mapping, from 0; -1 for a row out of range.
    [[nodiscard]] int mappingRow(int row) const;
    /// Status columns are the first ones.
    [[nodiscard]] int statusColumnCount() const;
    /// Some line has, or had, a value in that status column.
    [[nodiscard]] bool isStatusColumnUsed(int column) const;
    /// Not valid for a status column.
    [[nodiscard]] VKTab::Var variable(int column) const;
    /// Column of a variable, -1 if it is not shown.
    [[nodiscard]] int columnOf(const VKTab::VarId &variable) const;
    /// Asks the handler, if there is one, with that widget.
    [[nodiscard]] QString statusToolTip(const QModelIndex &index, QWidget *widget) const;

    /// What is to be said of a line beside its values, as plain text; empty: nothing. Such a line
    /// has an asterisk behind its number, and the text in the tool tips of number and status. Set
    /// anew when it would say something else.
    using LineRemarks = std::function<QString(const VKTab::LineId &line)>;
    void setLineRemarks(const LineRemarks &remarks);

    /// Shows only lines whose value holds the text, upper and lower case alike; "=" before it asks
    /// for the whole value, "<", "<=", ">" and ">=" for numbers. An empty text ends the filter.
    /// Variables that are not shown keep theirs, without effect.
    void setQuickFilter(const VKTab::VarId &variable, const QString &text);
    [[nodiscard]] QString quickFilter(const VKTab::VarId &variable) const;
    /// A text of a column and the rows that have it.
    struct ValueCount
    {
        QString text; ///< empty: the value is missing
        int count = 0;
        bool passes = false; ///< the column's quick filter
    };
    /// The texts of a variable among the rows that all other quick filters leave, in ascending
    /// order; missing values last.
    [[nodiscard]] QList<ValueCount> valueCounts(const VKTab::VarId &variable) const;
    void clearQuickFilters();
    [[nodiscard]] bool hasQuickFilter() const;

    /// Column that sorts, -1 for none.
    [[nodiscard]] int sortColumn() const;
    [[nodiscard]] Qt::SortOrder sortOrder() const;

    /// Next cell whose text holds the given one, upper and lower case alike, after `from` by rows,
    /// round the end of the table. `from` itself comes last; one that is not valid stands before
    /// the first cell (behind the last one backwards). Not valid if there is none.
    [[nodiscard]] QModelIndex find(const QString &text, const QModelIndex &from,
                                   bool backwards) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Values that are numbers by size, then texts with the numbers in them by size, lines without
    /// value last in either order. Lines with equal values keep the order of the mapping. Column -1
    /// gives that order back to all.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

Q_SIGNALS:
    /// A status column in which no line had a value has one now, see isStatusColumnUsed().
    void statusColumnCameIntoUse();

private:
    friend class VkTableModelPrivate;
    std::unique_ptr<VkTableModelPrivate> d;
};
