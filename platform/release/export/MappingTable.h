#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QHash>
#include <QStringList>

#include <atomic>
#include <functional>
#include <optional>
#include <vector>

namespace VelkRelease {

/// Further columns of a line that is to be checked.
struct LineReason
{
    double probability = 0;
    QString reason;
};
/// For each mapping of a release, by the line's number.
using LineReasonColumn = std::vector<QHash<int, LineReason>>;
/// The same of ERP numbers.
using LineNumberColumn = std::vector<QHash<int, QString>>;

/// The release as RFC 4180 text with line feeds, a row a source line, after a row of names:
/// projects in stored order, the lines of each by source line, then by target. Target path and line
/// are empty and -1 for a line without target; a line of which several targets hold a part has a
/// row for each. With \a reasons two columns more, probability and reason, empty for other lines;
/// with \a numbers the ERP numbers of the source line, with "; " between several.
[[nodiscard]] VELKRELEASE_EXPORT QByteArray mappingTable(const ReleaseMappingC &release,
                                                         const LineReasonColumn *reasons = nullptr,
                                                         const LineNumberColumn *numbers = nullptr);

/// What speaks for the proposals of a release; reads its tables with the threads of WorkerPool.
/// \a tell is called on the calling thread with the projects that are done. Nothing if
/// \a cancelled became true.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<LineReasonColumn>
lineReasons(const ReleaseMappingC &release, const QString &sourceRoot, QStringList &errors,
            const std::atomic<bool> &cancelled, const std::function<void(int)> &tell = {});

} // namespace VelkRelease
