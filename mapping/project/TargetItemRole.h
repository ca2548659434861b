#pragma once

/// What the items of a target's lists say about their text. The values are fixed; Qt's own roles
/// end before them, though its first one for users is another today.
enum TargetItemRole : int {
    RowRole = 32,          ///< row that an editor's entry belongs to
    VariableNameRole = 33, ///< text to store for an editor's entry, empty for the special ones
    FormulaRole = 34,      ///< bool: the text is a formula
    IgnoredRole = 35,      ///< bool: the target variable is ignored
};
