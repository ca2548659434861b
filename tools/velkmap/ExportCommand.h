#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap export: the release as a CSV file, one row a source line.
ExitStatus runExport(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
