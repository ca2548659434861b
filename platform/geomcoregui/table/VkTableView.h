#pragma once

#include "VkTableViewBase.h"

#include <QAbstractItemView>
#include <QList>
#include <QWidget>

#include <memory>

QT_BEGIN_NAMESPACE
class QPagedPaintDevice;
QT_END_NAMESPACE

class VkTableModel;
class VkTableViewPrivate;
struct PageHead;

/// View of a table: a grid with an icon column for each status key, a find bar (Ctrl+F) and a row
/// of quick filters (Ctrl+Shift+F). The table's selected line and the view's follow each other.
/// Everything works by keyboard too: F3 and Shift+F3 find again, Ctrl+C copies, Ctrl+Plus,
/// Ctrl+Minus and Ctrl+0 zoom, Space or Enter on an icon clicks it.
///
/// Widths that a user gives to columns are kept in the application's configuration, by table and
/// variable, and so are their order, which of them are hidden and which stay while others scroll.
/// The object names are "grid", "findBar", "filterBar" and "tableTitle".
class VELKGEOMCOREGUI_EXPORT VkTableView : public QWidget, public VkTableViewBase
{
    Q_OBJECT

public:
    /// Table, row in the table's line mapping (from 1), name of the status key. The result is not
    /// used.
    using IconClickedSlot = std::function<int(const VKTab::Content &, int, const QString &)>;

    static constexpr double MinZoomFactor = 0.5;
    static constexpr double MaxZoomFactor = 4.0;
    static constexpr int PrintedRows = 10'000;

    explicit VkTableView(QWidget *parent = nullptr);
    ~VkTableView() override;

    void setActive(bool active) override;
    /// True: values come into a table by its lines' ranges only.
    [[nodiscard]] bool isViewOnlyMode() const override;
    [[nodiscard]] VKTab::ContentRef getTable() const override;
    void setTable(VKTab::ContentRef table) override;
    void setHorizontalScrollPos(int position) override;
    [[nodiscard]] int getHorizontalScrollPos() const override;
    void setVerticalScrollPos(int position) override;
    [[nodiscard]] int getVerticalScrollPos() const override;

    /// The title above the columns: norm number and designation of the table. Shown at first. The
    /// captions of the columns always stay.
    void setHeaderVisible(bool visible);
    [[nodiscard]] bool isHeaderVisible() const;
    /// Columns of topological variables. Shown at first.
    void setShowTopoValues(bool show);
    /// Columns of variables that serve the library or the host. Not shown at first.
    void setShowInternalValues(bool show);
    /// SingleSelection at first. Whole lines are selected.
    void setSelectionMode(QAbstractItemView::SelectionMode mode);
    [[nodiscard]] QAbstractItemView::SelectionMode selectionMode() const;

    /// In display order.
    [[nodiscard]] QList<VKTab::LineId> getSelectedLines() const;
    /// Length of getSelectedLines(), without making the list.
    [[nodiscard]] int getSelectedLineCount() const;
    /// Owned by the view.
    [[nodiscard]] VkTableModel *model() const;
    /// The grid inside, for tests and for placing something over it. Owned by the view.
    [[nodiscard]] QAbstractItemView *grid() const;

    /// Marks the cells of a line that differ from another one, by the names of their variables,
    /// and takes former marks away.
    void setMarkedCells(const VKTab::LineId &line, const QStringList &variables);

    [[nodiscard]] double getZoomFactor() const;
    /// 1 is the size of the application's font; other factors are brought between MinZoomFactor and
    /// MaxZoomFactor.
    void setZoomFactor(double factor);

    /// Called for a click with the left button, or Space or Enter, on an icon; after the listeners
    /// to clicks on the table.
    boost::signals2::connection connectIconClicked(const IconClickedSlot &slot);

    /// Copies the selected lines with the captions of the columns, as text separated by tabs and as
    /// HTML. Nothing happens without a selected line.
    void copySelection() const;
    /// Norm number and designation of the table, as they stand above it; empty without a table.
    [[nodiscard]] QString title() const;
    /// Puts the rows that are shown, with the columns as they stand, onto pages of paper: see
    /// TablePages, which repeats columns that stay in sight. Behind PrintedRows rows the others are
    /// only counted. False if the device cannot be painted on.
    [[nodiscard]] bool print(QPagedPaintDevice &device, const PageHead &head) const;
    void showFindBar();
    void showFilterBar(bool show);
    /// Quick filters and the order of rows are kept in the application's configuration, by table,
    /// and come back with it. Not at first.
    void setFiltersKept(bool kept);
    /// Said in the place of the lines while a filter of the table leaves none of them; nothing at
    /// first.
    void setEmptyText(const QString &text);
    /// Columns with icons and the first one of the values stay in sight while the others scroll,
    /// unless the user froze others of this table. Not at first.
    void setFreezesFirst(bool freezes);
    [[nodiscard]] bool isFrozen(int column) const;
    /// Of the columns that stay, in pixels from the left of the grid's viewport.
    [[nodiscard]] int frozenWidth() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    friend class VkTableViewPrivate;
    std::unique_ptr<VkTableViewPrivate> d;
};
