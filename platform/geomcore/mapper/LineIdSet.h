#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace Mapper {

/// Set of line numbers that remembers the order of insertion. Made for numbers that lie close
/// together: a page of bits serves 4096 of them.
class VELKGEOMCORE_EXPORT LineIdSet
{
public:
    LineIdSet() = default;
    // It keeps the place of its last page.
    LineIdSet(const LineIdSet &) = delete;
    LineIdSet &operator=(const LineIdSet &) = delete;

    /// False if the number was there already.
    bool insert(int id);
    [[nodiscard]] bool contains(int id) const;
    [[nodiscard]] const std::vector<int> &inOrder() const { return m_order; }
    void clear();

private:
    static constexpr int PageBits = 12;
    using Page = std::array<std::uint64_t, (1 << PageBits) / 64>;

    std::unordered_map<int, Page> m_pages;
    std::vector<int> m_order;
    int m_lastPage = 0;
    Page *m_last = nullptr;
};

} // namespace Mapper
