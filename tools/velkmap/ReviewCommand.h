#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap review: in which ways the open lines of a release differ from their proposals.
ExitStatus runReview(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
