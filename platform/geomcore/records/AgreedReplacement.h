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
    /// Of texts: the old value has what is replaced, not inside of a word or number.
    [[nodiscard]] bool isFoundIn(const QString &value) const;
    /// The new value for an old one: of texts with every place replaced, of numbers, which have
    /// \a decimalChar, for a value that is a number as a whole. The value itself if nothing of it
    /// is meant.
    [[nodiscard]] QString applied(const QString &value, QChar decimalChar = u'.') const;

    friend bool operator==(const AgreedReplacement &, const AgreedReplacement &) = default;
};
Q_DECLARE_TYPEINFO(AgreedReplacement, Q_RELOCATABLE_TYPE);
