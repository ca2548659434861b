#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/LineCounts.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>

namespace VelkRelease {

/// By what lines of a release are chosen.
enum class LineTrait : quint8 {
    State,      ///< lineStateKey()
    Reason,     ///< why it is open: openReasonKey()
    Difference, ///< kinds of difference from its proposal: "replacement", "numberMap",
                ///< "nearNumber", "otherNumber", "wording", "notation", "added", "missing", or
                ///< "incomparable"; several may hold for a line
    Column,     ///< variables in which it differs from its proposal
    Author,     ///< who decided on it last
    Origin,     ///< "carried": over from a former mapping, and still as it was carried over
};
inline constexpr int LineTraitCount = 6;

/// What became of an entry of a line, in the order of urgency. An entry in conflict is only that.
enum class LineState : quint8 { Conflict, ToCheck, NotFound, Proposed, Confirmed, Expired };
inline constexpr int LineStateCount = 6;
[[nodiscard]] VELKRELEASE_EXPORT LineState lineState(int targetLine, PRJMAPPING::CheckState state,
                                                     bool conflict);
/// It needs a decision.
[[nodiscard]] VELKRELEASE_EXPORT bool isOpen(LineState state);
[[nodiscard]] VELKRELEASE_EXPORT QString lineStateKey(LineState state);

/// Which lines are meant: those that every choice accepts.
struct VELKRELEASE_EXPORT LineFilter
{
    /// Values of which a line has any, or has none. An empty text stands for lines without a value
    /// of that trait. No values at all: any line.
    struct Choice
    {
        QStringList values;
        bool isNot = false;

        [[nodiscard]] bool accepts(const QStringList &ofLine) const;
        friend bool operator==(const Choice &, const Choice &) = default;
    };
    std::array<Choice, LineTraitCount> choices;

    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] Choice &of(LineTrait trait) { return choices[size_t(trait)]; }
    [[nodiscard]] const Choice &of(LineTrait trait) const { return choices[size_t(trait)]; }

    /// As a settings file keeps it; what cannot be read is an empty filter.
    [[nodiscard]] QByteArray toText() const;
    [[nodiscard]] static LineFilter fromText(const QByteArray &text);

    friend bool operator==(const LineFilter &, const LineFilter &) = default;
};

} // namespace VelkRelease
