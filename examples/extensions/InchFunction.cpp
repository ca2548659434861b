// A function of formulas: MM('1/4') and MM('1 1/2') are inches, written as fractions, in
// millimetres.

#include <core/plugin/Extensions.h>
#include <geomcore/expression/ExpressionFunctions.h>
#include <geomcore/expression/FunctionHelp.h>

namespace {

using VKTab::Operand;

constexpr double millimetresPerInch = 25.4;

std::optional<double> fraction(std::string_view text)
{
    const size_t bar = text.find('/');
    if (bar == std::string_view::npos)
        return VKTab::parseDecimal(text);
    const auto above = VKTab::parseDecimal(text.substr(0, bar));
    const auto below = VKTab::parseDecimal(text.substr(bar + 1));
    if (!above || !below || *below == 0)
        return std::nullopt;
    return *above / *below;
}

// Without a value for what is no number of inches: a formula says then that it has none.
Operand millimetres(std::span<const Operand> arguments, VKTab::EvaluationMemory &memory)
{
    const auto text = arguments[0].toText(memory);
    if (!text)
        return {};
    const size_t blank = text->rfind(' ');
    const bool mixed = blank != std::string_view::npos;
    const auto whole = mixed ? VKTab::parseDecimal(text->substr(0, blank)) : 0.0;
    const auto rest = fraction(mixed ? text->substr(blank + 1) : *text);
    return whole && rest ? Operand::ofNumber((*whole + *rest) * millimetresPerInch) : Operand();
}

} // namespace

VELK_EXTENSION
{
    if (!VKTab::addFunction({"MM", 1, 1, VKTab::NumberType, millimetres}))
        return;
    VKTab::addFunctionHelp({"MM",
                            "inches",
                            "Inches, a number or a fraction such as '1 1/2', in millimetres.",
                            {{{"MM('1/4')", "6.35"}, {"MM('1 1/2')", "38.1"}}}});
}
