#pragma once

#include "VkTableView.h"

#include <boost/signals2/signal.hpp>

#include <QObject>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QLabel;
QT_END_NAMESPACE

class EmptyTableLabel;
class TableColumnOrder;
class TableColumnWidths;
class TableFilterBar;
class TableFindBar;
class TableGrid;
class TableSelectionLink;
class VkTableModel;

class VkTableViewPrivate : public QObject
{
    Q_OBJECT

public:
    explicit VkTableViewPrivate(VkTableView *view);
    ~VkTableViewPrivate() override;

    void setTable(const VKTab::ContentRef &table);
    void setActive(bool following);
    void setZoomFactor(double factor);
    void applyZoom();
    void showTitle();
    void retranslate();
    void copy() const;
    void setFilterBarShown(bool shown);

    VkTableView *q;
    QLabel *title;
    TableGrid *grid;
    VkTableModel *model;
    TableFilterBar *filterBar;
    TableFindBar *findBar;
    EmptyTableLabel *empty;
    TableSelectionLink *selection = nullptr;
    TableColumnWidths *widths = nullptr;
    TableColumnOrder *columnOrder = nullptr;
    QLabel *hits; ///< rows that the quick filters leave
    bool filtersKept = false;
    bool takesTable = false; ///< widths and order of the columns are still to come
    bool headerVisible = true;
    double zoom = 1;
    boost::signals2::signal<int(const VKTab::Content &, int, const QString &)> iconClicked;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    enum class Command {
        None,
        Find,
        FindNext,
        FindPrevious,
        Filter,
        Copy,
        Larger,
        Smaller,
        Normal,
        Close
    };

    void layOut();
    void connectGrid();
    [[nodiscard]] Command commandOf(const QKeyEvent &event) const;
    void run(Command command);
    void onModelReset();
    void onCellClicked(const QModelIndex &index, Qt::MouseButton button);
    void onIconActivated(const QModelIndex &index);
    void showMenu(VkTableViewBase::PopupArea area, int row, int column, const QPoint &position);
    void addMenuRows(QMenu *menu, int column);
    void addSortRows(QMenu *menu, int column);
    void addColumnRows(QMenu *menu, int column);
    void showHits();
    void keepFilters();
    void takeFilters();
    void sort(int column, Qt::SortOrder order);
};
