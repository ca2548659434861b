#pragma once

#include <cstddef>
#include <cstdint>
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
    void add(std::span<const Item> items)
    {
        m_items.insert(m_items.end(), items.begin(), items.end());
    }
    /// What was added since belongs to the next line.
    void endLine() { m_ends.push_back(std::uint32_t(m_items.size())); }
    /// When all lines are in: room for more goes.
    void finish()
    {
        m_items.shrink_to_fit();
        m_ends.shrink_to_fit();
    }
    [[nodiscard]] std::span<const Item> of(size_t line) const
    {
        if (line >= m_ends.size())
            return {};
        return std::span(m_items).subspan(begin(line), m_ends[line] - begin(line));
    }
    [[nodiscard]] std::span<Item> of(size_t line)
    {
        if (line >= m_ends.size())
            return {};
        return std::span(m_items).subspan(begin(line), m_ends[line] - begin(line));
    }
    [[nodiscard]] size_t lineCount() const { return m_ends.size(); }

private:
    [[nodiscard]] size_t begin(size_t line) const { return line == 0 ? 0 : m_ends[line - 1]; }

    std::vector<std::uint32_t> m_ends;
    std::vector<Item> m_items;
};

} // namespace Plan
