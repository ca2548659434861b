#pragma once

#include "TableCellText.h"

#include <QString>

#include <string_view>
#include <vector>

class TableColumnValues;

/// What a user wrote above a column: a text to be held, or a comparison ("=M8", ">=10").
class QuickFilter
{
public:
    explicit QuickFilter(const QString &text);

    /// One entry for each text of the column, by number: whether it passes.
    [[nodiscard]] std::vector<char> passing(const TableColumnValues &values) const;

private:
    enum class Kind { Contains, Equal, Less, LessEqual, Greater, GreaterEqual };

    [[nodiscard]] bool passes(std::string_view text, const TableColumnValues &values) const;
    [[nodiscard]] bool equals(std::string_view text, const TableColumnValues &values) const;
    [[nodiscard]] bool compares(std::string_view text, char decimalChar) const;
    void takeOperator();

    QString m_text;
    Kind m_kind = Kind::Contains;
    TextSearch m_search;
};
