#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>
#include <QStringView>

#include <array>
#include <span>

namespace VKTab {

/// What a user is told of a function of the formula language: its arguments, what it gives, and
/// examples. Each function has one; tests run the examples.
struct VELKGEOMCORE_EXPORT FunctionHelp
{
    /// A statement without variables and its value as a literal of the language.
    struct Example
    {
        const char *statement;
        const char *result;
    };

    const char *name;
    /// German source texts.
    const char *arguments;
    const char *description;
    std::array<Example, 2> examples;

    /// "ROUND(Zahl, Stellen)", in the language of the moment.
    [[nodiscard]] QString signature() const;
    [[nodiscard]] QString text() const;
};

/// The help of a function that an extension has. Its texts are shown as they are.
VELKGEOMCORE_EXPORT void addFunctionHelp(const FunctionHelp &help);

/// Sorted by name.
[[nodiscard]] VELKGEOMCORE_EXPORT std::span<const FunctionHelp> functionHelps();
/// Letter case does not matter; null if there is no such function.
[[nodiscard]] VELKGEOMCORE_EXPORT const FunctionHelp *findFunctionHelp(QStringView name);

} // namespace VKTab
