#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace Plan {

/// What speaks for the rows that a line is compared with, added up for each. Made for a thousand
/// rows of a large table, and for very many lines in turn: emptied in the time that filling it
/// took.
class RowVotes
{
public:
    struct Votes
    {
        int row = -1;
        double all = 0;
        double lead = 0;       ///< Of them those that count to be ahead,
        double beyondKeys = 0; ///< and of these those for what is no key.
    };

    /// At most MaxRows different rows until clear().
    Votes &add(int row, double weight, double lead, bool isKey)
    {
        const size_t slot = slotOf(row);
        if (m_slots[slot] < 0) {
            m_slots[slot] = int(m_votes.size());
            m_used.push_back(slot);
            m_votes.push_back({row, 0, 0, 0});
        }
        return add(m_votes[size_t(m_slots[slot])], weight, lead, isKey);
    }
    /// As above for a row that is there; else nothing happens. Null if so.
    [[nodiscard]] const Votes *addTo(int row, double weight, double lead, bool isKey)
    {
        const size_t slot = slotOf(row);
        return m_slots[slot] < 0 ? nullptr
                                 : &add(m_votes[size_t(m_slots[slot])], weight, lead, isKey);
    }
    static Votes &add(Votes &votes, double weight, double lead, bool isKey)
    {
        votes.all += weight;
        votes.lead += lead;
        votes.beyondKeys += isKey ? 0 : lead;
        return votes;
    }
    /// In the order in which they came.
    [[nodiscard]] std::vector<Votes> &rows() { return m_votes; }
    void clear()
    {
        for (const size_t slot : m_used)
            m_slots[slot] = -1;
        m_used.clear();
        m_votes.clear();
    }
    static constexpr int MaxRows = 1024;

    RowVotes() { m_slots.fill(-1); }

private:
    [[nodiscard]] size_t slotOf(int row) const
    {
        size_t slot = (size_t(row) * 0x9e3779b9U >> 7) % m_slots.size();
        while (m_slots[slot] >= 0 && m_votes[size_t(m_slots[slot])].row != row)
            slot = (slot + 1) % m_slots.size();
        return slot;
    }
    std::array<int, size_t(2 * MaxRows)> m_slots;
    std::vector<size_t> m_used;
    std::vector<Votes> m_votes;
};

} // namespace Plan
