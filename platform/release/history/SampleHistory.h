#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace VelkRelease {

/// A sample of lines that somebody judged one by one, as the journal has it.
struct JudgedSample
{
    QDateTime time;  ///< UTC
    QString release; ///< source date
    QString judge;
    int lines = 0;     ///< that the sample stands for
    QStringList drawn; ///< "cat/a.prj:17", those that were judged, in the order of judging
    int judged = 0;
    int right = 0;
    double certainty = 0;
    std::optional<double> bound; ///< share of wrong lines at most; nothing: a line was wrong

    friend bool operator==(const JudgedSample &, const JudgedSample &) = default;
};

/// The samples of all journals of a mapping file, see DecisionHistory::files(), in the order of
/// time. Nothing with \a error if one of the files cannot be read.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<std::vector<JudgedSample>>
readJudgedSamples(const QString &mappingFile, QString *error);

} // namespace VelkRelease
