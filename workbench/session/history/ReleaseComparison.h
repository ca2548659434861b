#pragma once

#include <geomcore/records/ReleaseMappingC.h>

#include <QByteArrayList>
#include <QString>

/// What a release that replaces another comes to, worked out before it does. Any thread may make
/// it.
struct ReleaseComparison
{
    /// \a step is the number that the journal gives the changes.
    [[nodiscard]] static ReleaseComparison of(const ReleaseMappingC &before,
                                              const ReleaseMappingC &after, int step);

    QByteArrayList rows; ///< the journal's, in portions that are written in no time
    int lines = 0;       ///< source lines that changed
    QString text;        ///< as StepSummary says it
};
