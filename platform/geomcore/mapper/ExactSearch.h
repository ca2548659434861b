#pragma once

#include "LineTexts.h"

#include <functional>
#include <memory>
#include <vector>

namespace VKTab {
class LineIndex;
}

namespace Mapper {

class ElementIndex;
class TargetTable;

/// Finds the lines of a table whose values equal given ones on a set of variables. Numbers are
/// equal by value, other texts after trimming, no value equals no value. A range equals what it
/// contains: one value, or all values of a source range. Immutable; any thread.
class ExactSearch
{
public:
    /// Called for each equal row in display order until it returns false.
    using Visit = std::function<bool(int row)>;

    ExactSearch(const TargetTable &table, const std::vector<int> &variables);

    [[nodiscard]] const std::vector<int> &variables() const { return m_variables; }
    /// Nothing equals a line that has no value in any of the variables.
    void forEach(const LineTexts &line, const Visit &visit) const;
    /// Equal rows in display order, at most \a limit.
    [[nodiscard]] std::vector<int> rows(const LineTexts &line, int limit) const;

    /// Whether one cell equals the value; \a place counts the variables of this search.
    [[nodiscard]] bool equals(const LineTexts::Value &value, int row, size_t place) const;
    [[nodiscard]] bool equals(const LineTexts &line, int row) const;
    /// Whether a cell that equals the value has the same text, or a range of texts has all of them
    /// literally.
    [[nodiscard]] bool equalsAsText(const LineTexts::Value &value, int row, size_t place) const;
    /// Whether every range of the row has the same values as the line, not only contains them.
    [[nodiscard]] bool hasSameRanges(const LineTexts &line, int row) const;

    /// The index that alone decides which rows are equal; null if there are ranges or computed
    /// variables to look at as well.
    [[nodiscard]] const VKTab::LineIndex *onlyIndex() const;

private:
    void forEachOfRing(int first, const LineTexts &line, const Visit &visit) const;
    void forEachCandidate(const std::vector<int> &rows, int after, int ring, const LineTexts &line,
                          const Visit &visit) const;
    [[nodiscard]] bool restEquals(const LineTexts &line, int row) const;
    [[nodiscard]] std::vector<int> elementCandidates(const LineTexts &line) const;

    const TargetTable &m_table;
    std::vector<int> m_variables;
    std::vector<size_t> m_indexed; ///< Places in m_variables that the index compares.
    std::vector<size_t> m_rest;    ///< All others.
    std::shared_ptr<const VKTab::LineIndex> m_index; ///< Null if m_indexed is empty.
};

} // namespace Mapper
