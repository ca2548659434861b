#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

/// A change of values between two releases that a modeller has agreed to: in the lines of a folder
/// the old value of a variable stands for the new one. It says that values belong together, not
/// that lines do, so it makes proposals and nothing certain.
///
/// Either texts are replaced, a token of a value or a whole value, or numbers are mapped: new value
/// = old value * factor + offset.
struct VELKGEOMCORE_EXPORT AgreedReplacement
{
    QString folder;   ///< catalog path of a directory or project; empty: the whole release
    QString variable; ///< by its name in the new table
    QString before;
    QString after;
    /// Decimal numbers with a point, as texts so that they stay as they were written; both empty if
    /// texts are replaced.
    QString factor;
    QString offset;

    [[nodiscard]] bool isNumeric() const { return !factor.isEmpty(); }
    /// It holds for the lines of this project.
    [[nodiscard]] bool holdsIn(const QString &sourcePath) const;

    friend bool operator==(const AgreedReplacement &, const AgreedReplacement &) = default;
};
Q_DECLARE_TYPEINFO(AgreedReplacement, Q_RELOCATABLE_TYPE);
