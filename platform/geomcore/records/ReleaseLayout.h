#pragma once

#include <QtGlobal>

#include <cstddef>
#include <iterator>
#include <string_view>

/// How a release is laid out in the mapping file: what has which members, of which kind, and which
/// of them have to be there. docs/schema/mapping.schema.json says the same for others.
namespace ReleaseLayout {

/// What is being read.
enum Place {
    Outside,
    Release,
    Replacements,
    Replacement,
    AllLearned,
    Learned,
    Mappings,
    Mapping,
    Targets,
    Target,
    Conditions,
    Modifiers,
    Modifier,
    Lines,
    Row,
};

/// Of a member's value.
enum Kind {
    TextKind,
    IntegerKind,
    BooleanKind,
    ArrayKind,
};

/// Indexes into Members.
enum Key : int {
    NoKey = -1,
    SourceDate,
    TargetDate,
    ReplacementsKey,
    ReplacementFolder,
    ReplacementVariable,
    ReplacementBefore,
    ReplacementAfter,
    ReplacementFactor,
    ReplacementOffset,
    LearnedKey,
    LearnedVariable,
    LearnedBefore,
    LearnedAfter,
    LearnedFactor,
    LearnedOffset,
    LearnedSupports,
    LearnedCases,
    MappingsKey,
    SourcePath,
    SourceVersion,
    MappingTabVersion,
    State,
    TargetsKey,
    Path,
    Version,
    TabVersion,
    Valid,
    ProposedRules,
    ConditionsKey,
    ModifiersKey,
    LinesKey,
    ModifierKind,
    ModifierSource,
    ModifierTarget,
    ModifierFormula,
};

struct Member
{
    Place place;
    std::string_view name;
    Kind kind;
    bool required;
    Place inside; ///< where an array leads to
};

inline constexpr Member Members[] = {
    {Release, "sourceDate", TextKind, true, Outside},
    {Release, "targetDate", TextKind, true, Outside},
    {Release, "replacements", ArrayKind, false, Replacements},
    {Replacement, "folder", TextKind, true, Outside},
    {Replacement, "variable", TextKind, true, Outside},
    {Replacement, "before", TextKind, false, Outside},
    {Replacement, "after", TextKind, false, Outside},
    {Replacement, "factor", TextKind, false, Outside},
    {Replacement, "offset", TextKind, false, Outside},
    {Release, "learned", ArrayKind, false, AllLearned},
    {Learned, "variable", TextKind, true, Outside},
    {Learned, "before", TextKind, false, Outside},
    {Learned, "after", TextKind, false, Outside},
    {Learned, "factor", TextKind, false, Outside},
    {Learned, "offset", TextKind, false, Outside},
    {Learned, "supports", IntegerKind, true, Outside},
    {Learned, "cases", IntegerKind, true, Outside},
    {Release, "mappings", ArrayKind, false, Mappings},
    {Mapping, "sourcePath", TextKind, true, Outside},
    {Mapping, "sourceVersion", TextKind, true, Outside},
    {Mapping, "tabVersion", TextKind, true, Outside},
    {Mapping, "state", IntegerKind, true, Outside},
    {Mapping, "targets", ArrayKind, true, Targets},
    {Target, "path", TextKind, true, Outside},
    {Target, "version", TextKind, true, Outside},
    {Target, "tabVersion", TextKind, true, Outside},
    {Target, "valid", BooleanKind, true, Outside},
    {Target, "proposed", BooleanKind, false, Outside},
    {Target, "conditions", ArrayKind, true, Conditions},
    {Target, "modifiers", ArrayKind, true, Modifiers},
    {Target, "lines", ArrayKind, true, Lines},
    {Modifier, "kind", TextKind, true, Outside},
    {Modifier, "source", TextKind, false, Outside},
    {Modifier, "target", TextKind, false, Outside},
    {Modifier, "formula", TextKind, false, Outside},
};
inline constexpr std::size_t MemberCount = std::size(Members);
static_assert(MemberCount <= 64, "a bit for each");

/// The member of that name, NoKey if there is none.
[[nodiscard]] int keyOf(Place place, std::string_view name);
/// A bit for each member of a place.
[[nodiscard]] quint64 membersOf(Place place);
/// The same of those that have to be there.
[[nodiscard]] quint64 requiredOf(Place place);

} // namespace ReleaseLayout
