#pragma once

#include "ReleaseReport.h"

#include <QLocale>

namespace VelkRelease {

/// The texts of a report, in the language of whoever makes it.
enum class ReportText : quint8 {
    Title,     ///< "Mapping report: %1", with the mapping's name
    Releases,  ///< "Release %1 to %2"
    Made,      ///< "Made on %1"
    Summary,   ///< "Settled lines: %1 of %2; open: %3"
    TotalHead, ///< a heading, as all that end so
    FolderHead,
    ProjectHead,
    ReasonHead,
    PatternHead,
    GoneGroupHead,
    SampleHead,
    CarriedHead,
    DecisionHead,
    OpenHead,
    GoneHead,
    ErrorHead,
    Lines, ///< the sum of the six that follow
    Confirmed,
    Gone,
    Certain,
    ToCheck,
    WithoutTarget,
    InConflict,
    Folder, ///< of a column, as all that follow
    Project,
    Line,
    Designation,
    Reason,
    Pattern,
    GoneGroup,
    Projects,
    Probability,
    Exceptions,
    Examples,
    Time,
    Who,
    What,
    Judged,
    Right,
    Bound,
    Drawn,
    Former,        ///< a mapping from which decisions were taken over
    Standing,      ///< lines that are still as they were taken over
    Refused,       ///< of a sample
    TableError,    ///< behind a project whose table could not be read
    NotComparable, ///< of a pattern
    NoDifference,  ///< of a pattern
    InDoubt,       ///< "in doubt: %1", of a pattern or group
    InAll,         ///< of the row with the sum of patterns or groups
    Nothing,       ///< of a section without entries
    More,          ///< "and %1 more"
    Count
};

/// How a report is written.
struct ReportForm
{
    std::function<QString(ReportText)> text;
    std::function<QString(OpenReason)> reason; ///< in a few words
    ValueChange::Words changes;
    GoneGroup::Words goneGroups;
    /// A time for people.
    std::function<QString(const QDateTime &)> time;
    /// A count for people.
    std::function<QString(int)> number = [](int count) {
        return QString::number(count);
    };
    QLocale locale = QLocale::c();           ///< of shares
    QString language = QStringLiteral("en"); ///< a BCP 47 tag
    int mostRows = -1;                       ///< of a list of lines, patterns or decisions; -1: all
};

/// One page of HTML 5 that needs no other file, simple enough for QTextDocument.
[[nodiscard]] VELKRELEASE_EXPORT QString reportHtml(const ReleaseReport &report,
                                                    const ReportForm &form);

} // namespace VelkRelease
