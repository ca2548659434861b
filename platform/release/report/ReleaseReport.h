#pragma once

#include "ReportNumbers.h"

#include <release/pattern/DifferencePatterns.h>
#include <release/review/OpenReason.h>

#include <QDateTime>

namespace VelkRelease {

/// How far the mapping of a release is: what is told to those who wait for it.
struct ReleaseReport
{
    /// Of a project, or of all projects in a folder and below.
    struct Part
    {
        QString path; ///< of a folder without a slash at its end
        ReportNumbers numbers;
        OpenReasonCounts reasons{};
        bool hasTableError = false; ///< its table could not be read when lines were assigned
    };
    struct OpenLine
    {
        int project = -1; ///< position in `projects`
        int line = -1;
        OpenReason reason = OpenReason::TooUnlike;
        QString designation; ///< empty if the table has none, or cannot be read
    };
    struct GoneLine
    {
        int project = -1;
        int line = -1;
        QString designation;
    };
    /// An accepted or refused sample of lines, as whoever drew it noted it.
    struct Sample
    {
        QDateTime time;
        QString judge;
        int lines = 0; ///< that the sample stands for
        int judged = 0;
        int right = 0;
        std::optional<double> bound; ///< share of wrong lines at most; nothing: refused
        QStringList drawn;           ///< "cat/a.prj:17", those that were judged, in that order
    };
    /// Decisions that were taken over from a former mapping, and not taken back.
    struct Carried
    {
        QDateTime time;
        QString who;
        QString former; ///< its file, without the folder
        QString formerTarget;
        int lines = 0;
        int standing = 0; ///< of them, those that are still as they were taken over
    };
    /// Who decided on something: a step of the editor.
    struct Decision
    {
        QDateTime time;
        QString who;
        QString what;
        QString reason;
        int lines = 0;
    };

    QString name; ///< of the mapping file, without its folder
    QDateTime made;
    QString sourceDate;
    QString targetDate;
    Part total;
    std::vector<Part> folders;  ///< by path
    std::vector<Part> projects; ///< in the order of the release
    DifferencePatterns patterns;
    std::vector<OpenLine> openLines; ///< in the order of the release
    std::vector<GoneLine> goneLines; ///< those that are confirmed to have no successor
    std::vector<Sample> samples;
    std::vector<Carried> carried;
    std::vector<Decision> decisions;
    QStringList errors; ///< what could not be read

    /// "cat/screws/a.prj:7".
    [[nodiscard]] VELKRELEASE_EXPORT QString placeText(int project, int line) const;
};

/// Reads the tables of both releases and makes the report, but for name, time, samples and
/// decisions. \a tell is called on the calling thread with what is done and how much there is.
/// Nothing if the work was cancelled. Any thread.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<ReleaseReport>
makeReleaseReport(const ReleaseMappingC &release, const OpenReasonOptions &options,
                  const std::function<void(int, int)> &tell = {});

} // namespace VelkRelease
