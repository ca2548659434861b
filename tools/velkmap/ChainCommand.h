#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap chain: writes the mapping over two mappings that follow each other.
ExitStatus runChain(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
