#pragma once

#include "ExitStatus.h"

#include <release/pattern/GoneFamilies.h>
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
/// What lines without a successor have in common.
[[nodiscard]] const VelkRelease::GoneGroup::Words &goneWords();

} // namespace velkmap
