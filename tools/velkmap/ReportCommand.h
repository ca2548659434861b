#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// velkmap report: how far a release is, as a page of HTML.
ExitStatus runReport(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
