#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap stats: the five counts of the release mapping handler, for each project and in all.
ExitStatus runStats(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
