#include "VkTableViewBase.h"

#include <boost/signals2/signal.hpp>

namespace {

/// All listeners are asked; one that declines decides.
struct NobodyDeclines
{
    using result_type = bool;

    template<class Iterator>
    bool operator()(Iterator first, Iterator last) const
    {
        bool agreed = true;
        for (; first != last; ++first)
            agreed = *first != -1 && agreed;
        return agreed;
    }
};

} // namespace

struct VkTableViewBase::Signals
{
    boost::signals2::signal<int(const VKTab::Content &, QMenu *, int, int), NobodyDeclines> popup;
    boost::signals2::signal<int(const VKTab::Content &, int, int)> clicked;
};

VkTableViewBase::VkTableViewBase()
    : m_signals(std::make_unique<Signals>())
{
}

VkTableViewBase::~VkTableViewBase() = default;

boost::signals2::connection VkTableViewBase::connectPopupShow(const PopupSlot &slot)
{
    return m_signals->popup.connect(slot);
}

boost::signals2::connection VkTableViewBase::connectTableClicked(const TableClickedSlot &slot)
{
    return m_signals->clicked.connect(slot);
}

bool VkTableViewBase::askPopupShow(QMenu *menu, PopupArea area, int row) const
{
    return m_signals->popup(getTable(), menu, area, row);
}

void VkTableViewBase::announceTableClicked(int line, int button) const
{
    m_signals->clicked(getTable(), line, button);
}
