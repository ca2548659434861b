#pragma once

#include <QFlags>

/// States of mapped lines and of project mappings; everything that the editor shows is derived from
/// them.
namespace PRJMAPPING {

/// State of one mapped line. Values above 2 are borne: they count as a line and nothing else.
enum CheckState : int {
    ToCheck = 0,  ///< a person has to look at the assignment, or nobody decided on the line
    Mapped = 1,   ///< assigned by the program and passed its check
    Verified = 2, ///< confirmed by the modeller; without a target line: expired
};

/// State of a project mapping, rolled up for directories and releases.
enum MappingState_ : int {
    StateUsable = 0x001,     ///< lines may be looked up; never rolled up
    StateIncomplete = 0x002, ///< a line assigned by the program only, or no line at all
    StateUnverified = 0x080, ///< at least one unconfirmed change
    StateUnmapped = 0x100,   ///< at least one line without assignment
    StateVerified = 0x200,   ///< at least one confirmed assignment
    StateReserved = 0x400,   ///< rolled up, never set
    StateTableError = 0x800, ///< set by whoever could not open the source table
};
Q_DECLARE_FLAGS(MappingState, MappingState_)
Q_DECLARE_OPERATORS_FOR_FLAGS(MappingState)

/// The bits that a directory and a release take over from their mappings.
inline constexpr MappingState_ RolledUpStates[] = {
    StateIncomplete, StateUnverified, StateUnmapped, StateVerified, StateReserved, StateTableError};

} // namespace PRJMAPPING
