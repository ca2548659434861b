#pragma once

#include <QtGlobal>

#include <string_view>
#include <utility>
#include <vector>

namespace Mapper {

class ComparableCell;
class TargetTable;

/// Rows of a table by what one of its variables is similar to: numbers in order, texts by the whole
/// text and by their tokens. Immutable; any thread.
class NearCells
{
public:
    /// Of these rows only.
    NearCells(const TargetTable &table, int variable, const std::vector<int> &rows);

    /// Rows whose cell is similar to the value. If there are more than \a limit, those that equal
    /// it; if these are too many as well, none: the value does not choose among the rows.
    [[nodiscard]] std::vector<int> rows(const ComparableCell &value, size_t limit) const;

private:
    using Numbers = std::vector<std::pair<double, int>>;
    using Hashes = std::vector<std::pair<size_t, int>>;

    void add(std::string_view text, char decimalChar, int row);
    [[nodiscard]] std::vector<int> textRows(std::string_view text, size_t limit) const;

    Numbers m_numbers;
    Hashes m_texts;
    Hashes m_tokens;
};

} // namespace Mapper
