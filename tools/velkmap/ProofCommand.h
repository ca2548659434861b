#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap proof: which numbers of a link database a mapping leaves in a bad place.
ExitStatus runProof(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
