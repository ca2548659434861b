#pragma once

#include "TableField.h"

#include <array>

namespace VKTab {

/// Names of kinds and types in a descriptor, in the order in which an error lists them.
template<class Enum>
struct NamedValue
{
    const char *name;
    Enum value;
};

inline constexpr std::array<NamedValue<FieldKind>, 5> FieldKindNames{{
    {"plain", FieldKind::Plain},
    {"range", FieldKind::Range},
    {"computed", FieldKind::Computed},
    {"internal", FieldKind::Internal},
    {"topology", FieldKind::Topology},
}};

inline constexpr std::array<NamedValue<FieldType>, 6> FieldTypeNames{{
    {"string", FieldType::String},
    {"number", FieldType::Number},
    {"integer", FieldType::Integer},
    {"boolean", FieldType::Boolean},
    {"date", FieldType::Date},
    {"datetime", FieldType::DateTime},
}};

/// Name of a value; null if it has none.
template<class Enum, size_t Count>
[[nodiscard]] const char *nameOf(const std::array<NamedValue<Enum>, Count> &names, Enum value)
{
    for (const auto &entry : names) {
        if (entry.value == value)
            return entry.name;
    }
    return nullptr;
}

} // namespace VKTab
