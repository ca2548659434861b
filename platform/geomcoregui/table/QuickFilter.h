#pragma once

#include "TableCellText.h"

#include <QString>

#include <string_view>
#include <vector>

class TableColumnValues;

/// What a user wrote above a column: a text to be held, or a comparison ("=M8", ">=10"); with "!"
/// before it, what it does not say. "=" alone is a missing value, "!=" any other. Several are
/// joined by "&" (all of them) and "|" (one of them, weaker than "&"). Quotes round a text keep
/// such signs in it: ="A|B".
class QuickFilter
{
public:
    explicit QuickFilter(const QString &text);

    /// One entry for each text of the column, by number: whether it passes.
    [[nodiscard]] std::vector<char> passing(const TableColumnValues &values) const;
    /// A filter for exactly these texts, or for all others.
    [[nodiscard]] static QString ofTexts(const QStringList &texts, bool others);

private:
    enum class Kind { Contains, Equal, Less, LessEqual, Greater, GreaterEqual };

    /// One comparison.
    struct Test
    {
        explicit Test(const QString &text);
        /// False for an operator without anything behind it yet.
        [[nodiscard]] bool says() const { return kind == Kind::Equal || !text.isEmpty(); }
        [[nodiscard]] bool passes(std::string_view value, const TableColumnValues &values) const;

        bool isNot = false;
        Kind kind = Kind::Contains;
        QString text;
        TextSearch search;

    private:
        void takeOperator();
        [[nodiscard]] bool equals(std::string_view value, const TableColumnValues &values) const;
        [[nodiscard]] bool compares(std::string_view value, char decimalChar) const;
    };

    [[nodiscard]] bool passes(std::string_view text, const TableColumnValues &values) const;

    std::vector<std::vector<Test>> m_any; ///< of each all
};
