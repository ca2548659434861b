#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <geomcore/table/Content.h>

#include <boost/signals2/connection.hpp>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

/// What whoever shows a table needs of its view. GUI thread. The order of the virtual operations is
/// part of the interface.
class VELKGEOMCOREGUI_EXPORT VkTableViewBase
{
public:
    /// Area of a popup: 0 the cells, 1 the column header.
    enum PopupArea {
        PopupCells = 0,
        PopupHeader = 1,
    };
    /// Table, menu to fill, area, and row in the table's line mapping (from 1; 0 for none). Returns
    /// 0, or -1 to have no menu at all.
    using PopupSlot = std::function<int(const VKTab::Content &, QMenu *, int, int)>;
    /// Table, line number (-1 beside the lines), and 1 for the left button, 0 for another button or
    /// the keyboard. The result is not used.
    using TableClickedSlot = std::function<int(const VKTab::Content &, int, int)>;

    VkTableViewBase();
    VkTableViewBase(const VkTableViewBase &) = delete;
    VkTableViewBase &operator=(const VkTableViewBase &) = delete;

    virtual ~VkTableViewBase();
    /// A view that is not active stands still; it shows what changed meanwhile when it becomes
    /// active again. Views are active at first.
    virtual void setActive(bool active) = 0;
    /// True if cells cannot be edited in this view.
    [[nodiscard]] virtual bool isViewOnlyMode() const = 0;
    /// The shown table; a reference to nothing if there is none.
    [[nodiscard]] virtual VKTab::ContentRef getTable() const = 0;
    /// A reference to nothing empties the view. The table's selection becomes the view's.
    virtual void setTable(VKTab::ContentRef table) = 0;
    /// Positions are in pixels from the begin of the table; those beyond its end mean the end.
    virtual void setHorizontalScrollPos(int position) = 0;
    [[nodiscard]] virtual int getHorizontalScrollPos() const = 0;
    virtual void setVerticalScrollPos(int position) = 0;
    [[nodiscard]] virtual int getVerticalScrollPos() const = 0;

    /// Called before a context menu opens; the rows of the view itself come after what is added.
    boost::signals2::connection connectPopupShow(const PopupSlot &slot);
    /// Called when a line, or the place below the last one, was clicked, after it was selected.
    boost::signals2::connection connectTableClicked(const TableClickedSlot &slot);

protected:
    /// Asks all listeners; false if one wants no menu.
    [[nodiscard]] bool askPopupShow(QMenu *menu, PopupArea area, int row) const;
    void announceTableClicked(int line, int button) const;

private:
    struct Signals;
    std::unique_ptr<Signals> m_signals;
};
