#pragma once

/// What MappingChange::type says of a change.
namespace MappingChangeType {

enum Value : int {
    LineChanged = 0, ///< its assignment; a clash is told as this one
    LineAssigned = 1,
    LineRemoved = 2, ///< its assignment; only these three clash with local changes
    TargetRemoved = 3,
    TargetAdded = 4,
    MappingRemoved = 5,
    MappingAdded = 6,
    TargetOrder = 7,
    StateFlags = 8,
    Conditions = 9,
    VariableMappings = 10,
    ExtendedText = 11,
    ProjectVersions = 12, ///< of the source project
    TargetVersions = 13,
};

/// One of those with a source line and an assignment.
[[nodiscard]] constexpr bool isOfLine(int type)
{
    return type >= LineChanged && type <= LineRemoved;
}

} // namespace MappingChangeType
