#include "ExpressionFunctions.h"

#include <QString>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <numbers>
#include <vector>

namespace VKTab {

namespace {

using Arguments = std::span<const Operand>;
using Memory = EvaluationMemory;

constexpr double degrees = 180 / std::numbers::pi;
constexpr int mostDigits = 15;
/// 1.005 is a little less than that in binary, and yet its half is to be rounded up.
constexpr double halfwayTolerance = 4e-16;

template<double (*Function)(double)>
Operand unary(Arguments arguments, Memory &)
{
    const auto x = arguments[0].toNumber();
    return x ? Operand::ofNumber(Function(*x)) : Operand();
}

template<double (*Function)(double, double)>
Operand binary(Arguments arguments, Memory &)
{
    const auto a = arguments[0].toNumber();
    const auto b = arguments[1].toNumber();
    return a && b ? Operand::ofNumber(Function(*a, *b)) : Operand();
}

template<double (*Function)(double, double)>
Operand fold(Arguments arguments, Memory &)
{
    auto result = arguments[0].toNumber();
    for (size_t i = 1; i < arguments.size() && result; ++i) {
        const auto next = arguments[i].toNumber();
        result = next ? std::optional(Function(*result, *next)) : std::nullopt;
    }
    return result ? Operand::ofNumber(*result) : Operand();
}

/// The exact values at multiples of 30 degrees that users expect, in spite of pi being rounded.
double cleaned(double x)
{
    for (const double exact : {0.0, 0.5, 1.0}) {
        if (std::abs(std::abs(x) - exact) < 1e-15)
            return std::copysign(exact, x);
    }
    return x;
}

double absolute(double x)
{
    return std::abs(x);
}

double squareRoot(double x)
{
    return std::sqrt(x);
}

double integerPart(double x)
{
    return std::trunc(x);
}

double sine(double x)
{
    return cleaned(std::sin(std::fmod(x, 360) / degrees));
}

double cosine(double x)
{
    return cleaned(std::cos(std::fmod(x, 360) / degrees));
}

/// Infinite, which becomes "no value", at odd multiples of 90 degrees.
double tangent(double x)
{
    return cleaned(sine(x) / cosine(x));
}

double arcSine(double x)
{
    return std::asin(x) * degrees;
}

double arcCosine(double x)
{
    return std::acos(x) * degrees;
}

double arcTangent(double x)
{
    return std::atan(x) * degrees;
}

double arcTangent2(double y, double x)
{
    return std::atan2(y, x) * degrees;
}

double exponential(double x)
{
    return std::exp(x);
}

double naturalLogarithm(double x)
{
    return std::log(x);
}

double decimalLogarithm(double x)
{
    return std::log10(x);
}

double remainder(double a, double b)
{
    return std::fmod(a, b);
}

double smaller(double a, double b)
{
    return std::min(a, b);
}

double larger(double a, double b)
{
    return std::max(a, b);
}

Operand roundTo(Arguments arguments, Memory &)
{
    const auto x = arguments[0].toNumber();
    const auto digits = arguments.size() > 1 ? arguments[1].toNumber() : std::optional(0.0);
    if (!x || !digits || std::abs(*digits) > mostDigits)
        return {};
    return Operand::ofNumber(rounded(*x, int(*digits)));
}

Operand defined(Arguments arguments, Memory &)
{
    return Operand::ofLogical(!arguments[0].hasNoValue());
}

constexpr std::array functions = {
    ExpressionFunction{"ABS", 1, 1, NumberType, unary<absolute>},
    ExpressionFunction{"ACOS", 1, 1, NumberType, unary<arcCosine>},
    ExpressionFunction{"ASIN", 1, 1, NumberType, unary<arcSine>},
    ExpressionFunction{"ATAN", 1, 1, NumberType, unary<arcTangent>},
    ExpressionFunction{"ATAN2", 2, 2, NumberType, binary<arcTangent2>},
    ExpressionFunction{"CONCAT", 1, -1, TextType, TextFunctions::concat},
    ExpressionFunction{"COS", 1, 1, NumberType, unary<cosine>},
    ExpressionFunction{"DEFINED", 1, 1, LogicalType, defined},
    ExpressionFunction{"EXP", 1, 1, NumberType, unary<exponential>},
    ExpressionFunction{"FIND", 2, 2, NumberType, TextFunctions::find},
    ExpressionFunction{"IF", 3, 3, ValueType, nullptr},
    ExpressionFunction{"INT", 1, 1, NumberType, unary<integerPart>},
    ExpressionFunction{"LEN", 1, 1, NumberType, TextFunctions::length},
    ExpressionFunction{"LOG", 1, 1, NumberType, unary<naturalLogarithm>},
    ExpressionFunction{"LOG10", 1, 1, NumberType, unary<decimalLogarithm>},
    ExpressionFunction{"LOWER", 1, 1, TextType, TextFunctions::lower},
    ExpressionFunction{"MAX", 1, -1, NumberType, fold<larger>},
    ExpressionFunction{"MIN", 1, -1, NumberType, fold<smaller>},
    ExpressionFunction{"MOD", 2, 2, NumberType, binary<remainder>},
    ExpressionFunction{"NUM", 1, 1, NumberType, TextFunctions::number},
    ExpressionFunction{"REPLACE", 3, 3, TextType, TextFunctions::replace},
    ExpressionFunction{"ROUND", 1, 2, NumberType, roundTo},
    ExpressionFunction{"SIN", 1, 1, NumberType, unary<sine>},
    ExpressionFunction{"SQRT", 1, 1, NumberType, unary<squareRoot>},
    ExpressionFunction{"SUBSTR", 2, 3, TextType, TextFunctions::subText},
    ExpressionFunction{"TAN", 1, 1, NumberType, unary<tangent>},
    ExpressionFunction{"TEXT", 1, 2, TextType, TextFunctions::text},
    ExpressionFunction{"TRIM", 1, 1, TextType, TextFunctions::trim},
    ExpressionFunction{"UPPER", 1, 1, TextType, TextFunctions::upper},
};

std::atomic_bool formulasWereRead = false;

std::vector<ExpressionFunction> &addedFunctions()
{
    static std::vector<ExpressionFunction> added;
    return added;
}

/// Sorted by name. From the first call on nothing can be added.
const std::vector<ExpressionFunction> &allFunctions()
{
    static const std::vector<ExpressionFunction> all = [] {
        formulasWereRead = true;
        std::vector<ExpressionFunction> sorted(functions.begin(), functions.end());
        sorted.insert(sorted.end(), addedFunctions().begin(), addedFunctions().end());
        std::ranges::sort(
            sorted, [](const auto &a, const auto &b) { return qstricmp(a.name, b.name) < 0; });
        return sorted;
    }();
    return all;
}

} // namespace

double rounded(double x, int digits)
{
    const double scale = std::pow(10, std::abs(digits));
    const double scaled = digits < 0 ? x / scale : x * scale;
    const double whole = std::round(scaled + scaled * halfwayTolerance);
    const double result = digits < 0 ? whole * scale : whole / scale;
    return std::isfinite(result) ? result : x; // too large to have such digits
}

bool addFunction(const ExpressionFunction &function)
{
    std::vector<ExpressionFunction> &added = addedFunctions();
    const auto sameName = [&](const ExpressionFunction &other) {
        return qstricmp(other.name, function.name) == 0;
    };
    if (formulasWereRead || !function.evaluate || std::ranges::any_of(functions, sameName) ||
        std::ranges::any_of(added, sameName))
        return false;
    added.push_back(function);
    return true;
}

const ExpressionFunction *findFunction(QStringView name)
{
    const auto less = [](const ExpressionFunction &function, QStringView wanted) {
        return wanted.compare(QLatin1String(function.name), Qt::CaseInsensitive) > 0;
    };
    const auto &all = allFunctions();
    const auto hit = std::lower_bound(all.begin(), all.end(), name, less);
    if (hit == all.end() || name.compare(QLatin1String(hit->name), Qt::CaseInsensitive) != 0)
        return nullptr;
    return &*hit;
}

std::span<const ExpressionFunction> expressionFunctions()
{
    return allFunctions();
}

} // namespace VKTab
