#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

#include <optional>

/// What a line of a table is to have in one of its columns. A value.
///
/// Numbers are compared as numbers, to ten significant digits; other texts regardless of case, of
/// accents and of blanks around them. A cell that offers several values ("10;12;16", "10..50/5")
/// fulfils a condition with any of them; a cell without a value fulfils none, not even NotEqual.
struct VELKGEOMCORE_EXPORT CatalogSearchCondition
{
    /// The numbers are kept: callers pass some of them as numbers.
    enum Op {
        Equal = 0,
        Contains = 1, ///< The text has that text in it, for numbers too.
        NotEqual = 2,
        Less = 3,
        LessEqual = 4,
        Greater = 5,
        GreaterEqual = 6,
        Between = 7, ///< From low to high, both included.
        StartsWith = 8,
    };

    /// Name of the column, regardless of case.
    QString variable;
    Op op = Equal;
    QString low;
    /// For Between alone.
    QString high;
    /// Takes only columns of that unit; empty for all.
    QString unit;

    /// Reads "VAR OP VALUE": OP is one of = != < <= > >= ~ (contains) ^ (starts with), and the
    /// value of "=" may be a range, "10..20". A name with such a character stands in double quotes.
    /// Nothing if the text is not of that form; \a error then tells what is wrong.
    [[nodiscard]] static std::optional<CatalogSearchCondition> parse(const QString &text,
                                                                     QString *error = nullptr);

    friend bool operator==(const CatalogSearchCondition &,
                           const CatalogSearchCondition &) = default;
};
