#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap history: who decided what about the lines of a mapping file, when and why.
ExitStatus runHistory(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
