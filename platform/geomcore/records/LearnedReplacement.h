#pragma once

#include <QString>

/// A change of values that several projects of a release show alike, found when its mapping was
/// created: in these the old value of a variable became the new one. It makes proposals, and
/// nothing certain; what a modeller agreed to is an AgreedReplacement.
struct LearnedReplacement
{
    QString variable; ///< by its name in both tables
    QString before;   ///< whole values, numbers with a point
    QString after;
    int supports = 0; ///< lines that changed so; a project counts as some lines at most
    int cases = 0;    ///< of those that had the old value

    friend bool operator==(const LearnedReplacement &, const LearnedReplacement &) = default;
};
Q_DECLARE_TYPEINFO(LearnedReplacement, Q_RELOCATABLE_TYPE);
