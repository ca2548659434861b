#pragma once

#include "ExitStatus.h"

#include <QHash>
#include <QStringList>

#include <vector>

class ReleaseMappingC;

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap export: the release as a CSV file, one row a source line.
ExitStatus runExport(const QStringList &arguments, QTextStream &out, QTextStream &err);

/// Further columns of a line that is to be checked.
struct LineReason
{
    double probability = 0;
    QString reason;
};
/// For each mapping of a release, by the line's number.
using LineReasons = std::vector<QHash<int, LineReason>>;
/// The same of ERP numbers.
using LineNumbers = std::vector<QHash<int, QString>>;

/// The rows as RFC 4180 text with line feeds, after a row of names: projects in stored order, the
/// lines of each by source line, then by target. Target path and line are empty and -1 for a line
/// without target; a line of which several targets hold a part has a row for each.
/// With \a reasons two columns more, probability and reason, empty for other lines; with \a numbers
/// the ERP numbers of the source line, with "; " between several.
[[nodiscard]] QByteArray exportedRows(const ReleaseMappingC &release,
                                      const LineReasons *reasons = nullptr,
                                      const LineNumbers *numbers = nullptr);

} // namespace velkmap
