#include "LineIdSet.h"

namespace Mapper {

namespace {

std::uint64_t bitOf(int id)
{
    return std::uint64_t(1) << (unsigned(id) & 63U);
}

} // namespace

bool LineIdSet::insert(int id)
{
    const int page = id >> PageBits;
    if (!m_last || page != m_lastPage) {
        m_last = &m_pages.try_emplace(page, Page{}).first->second;
        m_lastPage = page;
    }
    std::uint64_t &word = (*m_last)[(unsigned(id) >> 6U) & (Page().size() - 1)];
    if (word & bitOf(id))
        return false;
    word |= bitOf(id);
    m_order.push_back(id);
    return true;
}

bool LineIdSet::contains(int id) const
{
    const auto page = m_pages.find(id >> PageBits);
    return page != m_pages.end() &&
           (page->second[(unsigned(id) >> 6U) & (Page().size() - 1)] & bitOf(id));
}

void LineIdSet::clear()
{
    m_pages.clear();
    m_order.clear();
    m_last = nullptr;
}

} // namespace Mapper
