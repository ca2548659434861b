#pragma once

#include <QList>
#include <QString>

/// Something that can be written into a statement.
struct FormulaItem
{
    enum Kind { Function, Operator, Logic, Variable };

    Kind kind = Variable;
    /// What is written; a function without its brackets.
    QString text;
    /// A few words beside it: a variable's value or description, a function's arguments.
    QString detail;
    /// Rich text.
    QString help;
};

/// Functions, comparison and arithmetic operators, and logic of the formula language, in the
/// language of the moment.
[[nodiscard]] QList<FormulaItem> formulaFunctions();
[[nodiscard]] QList<FormulaItem> formulaOperators();
[[nodiscard]] QList<FormulaItem> formulaLogic();

/// Rich text: what a function does, with examples; empty for what is no function.
[[nodiscard]] QString formulaFunctionHelp(QStringView name);
