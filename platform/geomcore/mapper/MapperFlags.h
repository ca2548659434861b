#pragma once

#include <QFlags>

/// Which values PrjMapperC::updateVarset gives.
enum VarsetModeFlag {
    VarsetAllValues = 0,       ///< every value after the target's modifiers
    VarsetTargetVariables = 1, ///< only those whose variable the target table has
};
Q_DECLARE_FLAGS(VarsetModeFlags, VarsetModeFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(VarsetModeFlags)

/// What PrjMapperC::checkMapping looks at. An automatic assignment is checked with 5.
enum CheckModeFlag {
    CheckValues = 1,       ///< the target line's values are equal, and no other line's are
    CheckDesignations = 2, ///< both lines have the same norm designation
    CheckConditions = 4,   ///< the target's conditions hold
};
Q_DECLARE_FLAGS(CheckModeFlags, CheckModeFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(CheckModeFlags)
