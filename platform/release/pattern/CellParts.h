#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QString>
#include <QStringView>

#include <optional>
#include <utility>
#include <vector>

namespace VelkRelease {

/// Where two values differ: the texts between what both have in common.
struct CellPart
{
    QString before;
    QString after;
    qsizetype beforeAt = 0; ///< where it stands in the old value
    qsizetype afterAt = 0;  ///< and in the new one

    friend bool operator==(const CellPart &, const CellPart &) = default;
};

/// The places where two values differ, in order, token by token if both have the same number of
/// tokens, else all between the tokens that both begin and end with. A token is a run of letters, a
/// number, or any other single character; blanks only part tokens. Nothing for equal values, and
/// the whole values if either is longer than some thousand characters.
[[nodiscard]] VELKRELEASE_EXPORT std::vector<CellPart> differingParts(QStringView before,
                                                                      QStringView after);

/// How many of the old value's tokens, as above, the new one does not have.
[[nodiscard]] VELKRELEASE_EXPORT int countLostTokens(QStringView before, QStringView after);

/// A decimal number with point or comma; nothing for anything else.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<double> numberOf(QStringView text);

/// Factor and offset that make the one number the other, where a short decimal number does it.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<double> factorOf(double before, double after);
[[nodiscard]] VELKRELEASE_EXPORT std::optional<double> offsetOf(double before, double after);
/// The factor of a usual change of units, if the new number as it is \a written is the old one in
/// the other unit, and has enough digits to tell.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<double> unitFactorOf(double before, double after,
                                                                    QStringView written);
/// Half of what the last decimal place of a number says: so much may it have been rounded.
[[nodiscard]] VELKRELEASE_EXPORT double roundingOf(QStringView written);
/// Whether the number as it is \a written is what factor and offset make of the one \a before, as
/// far as it has decimal places.
[[nodiscard]] VELKRELEASE_EXPORT bool isMapped(double before, double factor, double offset,
                                               QStringView written);

} // namespace VelkRelease
