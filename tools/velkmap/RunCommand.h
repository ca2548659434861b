#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap run: a script, with the objects that need no window. Its status is that of the script's
/// exit().
ExitStatus runScript(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
