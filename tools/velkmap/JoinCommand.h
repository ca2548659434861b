#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap join: puts the parts that several machines assigned into the mapping.
ExitStatus runJoin(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
