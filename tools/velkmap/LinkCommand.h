#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap link: writes the confirmed assignments into a link database.
ExitStatus runLink(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
