#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap create: writes a release mapping with the targets of each old project.
ExitStatus runCreate(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
