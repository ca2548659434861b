#pragma once

#include <geomcore/table/Content.h>

#include <boost/signals2/connection.hpp>

#include <QItemSelection>
#include <QList>
#include <QObject>

class TableGrid;
class VkTableModel;

/// Keeps the selected line of a table and the selection of its grid together. The table's is the
/// grid's current line, if that is selected, else the first selected one. A line that is not shown
/// stays the table's selection while nothing is selected in the grid.
class TableSelectionLink : public QObject
{
    Q_OBJECT

public:
    /// The grid has its model already.
    TableSelectionLink(TableGrid *grid, VkTableModel *model);
    ~TableSelectionLink() override;

    void connectTable();
    /// Selects nothing, unheard: the table is about to be another one.
    void clear();
    void setFollowing(bool following);
    /// After a reset of the model, once the grid has its columns: selects and scrolls as before.
    void restore();
    /// In display order.
    [[nodiscard]] QList<VKTab::LineId> selectedLines() const;
    [[nodiscard]] QList<int> selectedRows() const;
    [[nodiscard]] int selectedCount() const;

private:
    void onSelectionChanged();
    void onCurrentChanged();
    void onTableSelected(bool selected);
    void onAboutToReset();
    void announce(bool changed);
    void takeFromTable();
    void selectLines(const QList<VKTab::LineId> &lines);
    [[nodiscard]] VKTab::LineId wanted() const;

    TableGrid *m_grid;
    VkTableModel *m_model;
    bool m_busy = false; // the change is our own
    bool m_following = true;
    bool m_wasMany = false;
    mutable int m_count = -1;          // of selected lines, -1 if not known
    QList<VKTab::LineId> m_remembered; // during a reset
    int m_horizontal = 0;              // scroll positions during a reset
    int m_vertical = 0;
    int m_column = -1; // current column during a reset
    boost::signals2::scoped_connection m_selected;
};
