#pragma once

#include <QString>

#include <memory>

namespace VKTab {

class Program;
struct TableField;

/// A statement of a descriptor, or what is wrong with it.
struct TableExpression
{
    std::shared_ptr<const Program> program; ///< Null if the text does not parse.
    QString error;                          ///< Empty if it does.
};

/// Parses a filter condition of a table. Says nothing; any thread.
[[nodiscard]] TableExpression parseCondition(const QString &text);
/// Parses the formula of a computed field: an expression, or an assignment of one. Says nothing.
[[nodiscard]] TableExpression parseFormula(const TableField &field);

} // namespace VKTab
