#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap explain: why a line is assigned as it is, and where else it may belong.
ExitStatus runExplain(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
