#pragma once

#include "ExitStatus.h"

#include <QStringList>

class ReleaseMappingC;

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap export: the release as a CSV file, one row a source line.
ExitStatus runExport(const QStringList &arguments, QTextStream &out, QTextStream &err);

/// The rows as RFC 4180 text with line feeds, after a row of names: projects in stored order, the
/// lines of each by source line, then by target. Target path and line are empty and -1 for a line
/// without target; a line of which several targets hold a part has a row for each.
[[nodiscard]] QByteArray exportedRows(const ReleaseMappingC &release);

} // namespace velkmap
