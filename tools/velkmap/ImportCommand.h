#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// `velkmap import`: a folder tree of CSV tables becomes a catalog of projects and tables. Tables
/// that cannot be read are told with file, row and column; all others are imported all the same.
ExitStatus runImport(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
