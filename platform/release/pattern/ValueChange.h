#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QString>

namespace VelkRelease {

/// How one variable of a line differs from the line that is proposed for it.
struct VELKRELEASE_EXPORT ValueChange
{
    enum Kind : quint8 {
        Replacement, ///< `before` became `after` in several lines, as a whole or as a part
        NumberMap,   ///< new number = old number * factor + offset, in several lines
        NearNumber,  ///< another number close by
        OtherNumber,
        Wording,  ///< another text
        Notation, ///< the same text but for blanks and capitals
        Added,    ///< only the new line has a value
        Missing,  ///< only the old line has one
        Project,  ///< nothing differs but the projects' names: `before` became `after`, if that
                  ///< is a family; no variable
        Changed,  ///< any of these, in lines that have not enough in common for more
        AnyOf,    ///< behind several: each line has one or more of them; no variable
    };
    /// Words for what has no notation of its own.
    struct Words
    {
        QString nearNumber;
        QString otherNumber;
        QString wording;
        QString added;
        QString missing;
        QString notation;
        QString project = {};   ///< "Project"
        QString otherName = {}; ///< of the project
        QString changed = {};
        QString anyOf = {};
    };

    QString variable; ///< by its name in the new table
    Kind kind = Wording;
    QString before; ///< Replacement
    QString after;
    double factor = 1; ///< NumberMap
    double offset = 0;
    bool agreed = false; ///< a modeller has agreed to it

    /// "MATERIAL: St37-2 → S235JR", "L: × 0.5 + 1", "NOTE: " and a word.
    [[nodiscard]] QString text(const Words &words) const;

    /// Names a change exactly, for look-ups only.
    [[nodiscard]] QString lookUpName() const;

    friend bool operator==(const ValueChange &, const ValueChange &) = default;
};

} // namespace VelkRelease
