#pragma once

#include "EvaluationMemory.h"
#include "NodeBase.h"
#include "Operand.h"

#include <QStringView>

#include <span>

namespace VKTab {

/// A function of the formula language.
struct ExpressionFunction
{
    using Evaluate = Operand (*)(std::span<const Operand> arguments, EvaluationMemory &memory);

    const char *name;
    int minArguments;
    /// -1: any number.
    int maxArguments;
    NodeType result;
    /// Null for IF, of which only the chosen branch is evaluated.
    Evaluate evaluate;

    /// IF takes a comparison as its first argument, all other arguments are values.
    [[nodiscard]] bool isConditional() const { return evaluate == nullptr; }
};

/// The function of that name, letter case ignored; null if there is none. Lives as long as the
/// library.
[[nodiscard]] const ExpressionFunction *findFunction(QStringView name);

/// Makes a function known until the program ends; \a function and its name live as long. False if
/// the name is taken, or if a formula was read before. For extensions, with addFunctionHelp().
VELKGEOMCORE_EXPORT bool addFunction(const ExpressionFunction &function);

/// All functions, sorted by name.
[[nodiscard]] VELKGEOMCORE_EXPORT std::span<const ExpressionFunction> expressionFunctions();

/// The number with that many decimals, half away from zero as the decimal notation has it; negative
/// digits round before the decimal point.
[[nodiscard]] double rounded(double x, int digits);

/// Evaluation of the functions that make or take apart texts.
namespace TextFunctions {
Operand length(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand subText(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand upper(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand lower(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand trim(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand concat(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand find(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand replace(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand number(std::span<const Operand> arguments, EvaluationMemory &memory);
Operand text(std::span<const Operand> arguments, EvaluationMemory &memory);
} // namespace TextFunctions

} // namespace VKTab
