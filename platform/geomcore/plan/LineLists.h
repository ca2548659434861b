#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace Plan {

/// A short list for each line, one behind the other in one block. Filled in the order of the lines.
template<class Item>
class LineLists
{
public:
    void reserve(size_t lines) { m_ends.reserve(lines); }
    void add(const Item &item) { m_items.push_back(item); }
    /// What was added since belongs to the next line.
    void endLine() { m_ends.push_back(m_items.size()); }
    [[nodiscard]] std::span<const Item> of(size_t line) const
    {
        if (line >= m_ends.size())
            return {};
        const size_t begin = line == 0 ? 0 : m_ends[line - 1];
        return std::span(m_items).subspan(begin, m_ends[line] - begin);
    }

private:
    std::vector<size_t> m_ends;
    std::vector<Item> m_items;
};

} // namespace Plan
