#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap assign: assigns the lines of the projects of a release mapping, with the editor's own
/// re-assignment.
ExitStatus runAssign(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
