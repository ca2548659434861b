#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// Merges what two people made of a mapping file; fit for a merge driver of version control.
ExitStatus runMerge(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
