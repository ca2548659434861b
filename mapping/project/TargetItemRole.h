#pragma once

#include <qnamespace.h>

/// What the items of a target's lists say about their text.
enum TargetItemRole : int {
    RowRole = Qt::UserRole, ///< row that an editor's entry belongs to
    VariableNameRole,       ///< text to store for an editor's entry, empty for the special ones
    FormulaRole,            ///< bool: the text is a formula
    IgnoredRole,            ///< bool: the target variable is ignored
};
