#pragma once

#include "ExitStatus.h"

#include <release/pattern/ValueChange.h>

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap review: in which ways the open lines of a release differ from their proposals.
ExitStatus runReview(const QStringList &arguments, QTextStream &out, QTextStream &err);

/// What changes without a notation of their own are called.
[[nodiscard]] const VelkRelease::ValueChange::Words &changeWords();

} // namespace velkmap
