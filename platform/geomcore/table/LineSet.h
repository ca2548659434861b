#pragma once

#include <QtGlobal>

#include <bit>
#include <cstddef>
#include <vector>

namespace VKTab {

/// A set of rows of a table, one bit for each.
class LineSet
{
public:
    LineSet() = default;
    /// All of the rows, or none of them.
    LineSet(int count, bool all)
        : m_words((static_cast<std::size_t>(count) + 63) / 64, all ? ~quint64(0) : 0)
        , m_count(count)
    {
        if (all && count % 64 != 0)
            m_words.back() = (quint64(1) << (count % 64)) - 1;
    }

    /// Number of rows that the set could hold.
    [[nodiscard]] int capacity() const { return m_count; }
    [[nodiscard]] bool contains(int row) const { return (word(row) >> (row % 64) & 1) != 0; }
    void insert(int row) { m_words[place(row)] |= quint64(1) << (row % 64); }
    void remove(int row) { m_words[place(row)] &= ~(quint64(1) << (row % 64)); }
    [[nodiscard]] int count() const
    {
        int sum = 0;
        for (const quint64 bits : m_words)
            sum += std::popcount(bits);
        return sum;
    }
    /// Keeps the rows that are in the other set too, which has the same capacity.
    void intersect(const LineSet &other)
    {
        for (std::size_t i = 0; i < m_words.size(); ++i)
            m_words[i] &= other.m_words[i];
    }
    /// Calls `use` with each row of the set, in ascending order.
    template<class Use>
    void forEach(Use use) const
    {
        for (std::size_t i = 0; i < m_words.size(); ++i) {
            for (quint64 bits = m_words[i]; bits != 0; bits &= bits - 1)
                use(static_cast<int>(i * 64) + std::countr_zero(bits));
        }
    }

private:
    [[nodiscard]] static std::size_t place(int row) { return static_cast<std::size_t>(row) / 64; }
    [[nodiscard]] quint64 word(int row) const { return m_words[place(row)]; }

    std::vector<quint64> m_words;
    int m_count = 0;
};

} // namespace VKTab
