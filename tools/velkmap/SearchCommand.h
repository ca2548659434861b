#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap search: finds projects through the index of a catalog root, which it brings up to date.
ExitStatus runSearch(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
