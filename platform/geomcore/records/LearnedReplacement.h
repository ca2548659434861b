#pragma once

#include <QString>

/// A change of values that several projects of a release show alike, found when its mapping was
/// created. It makes proposals, and nothing certain; what a modeller agreed to is an
/// AgreedReplacement.
///
/// Either an old value of a variable became a new one, or its numbers were mapped: new number = old
/// one * factor + offset.
struct LearnedReplacement
{
    QString variable; ///< by its name in both tables
    QString before;   ///< whole values, numbers with a point
    QString after;
    int supports = 0; ///< lines that changed so; a project counts as some lines at most
    int cases = 0;    ///< of those that had the old value, or a number
    /// Decimal numbers with a point; both empty if numbers are not mapped.
    QString factor = {};
    QString offset = {};

    [[nodiscard]] bool isNumeric() const { return !factor.isEmpty(); }

    friend bool operator==(const LearnedReplacement &, const LearnedReplacement &) = default;
};
Q_DECLARE_TYPEINFO(LearnedReplacement, Q_RELOCATABLE_TYPE);
