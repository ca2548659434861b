#pragma once

#include "ExitStatus.h"

#include <QStringList>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace velkmap {

/// Begins to share a mapping file, tells how it stands to the shared copy and who works on it, and
/// takes folders over.
ExitStatus runShare(const QStringList &arguments, QTextStream &out, QTextStream &err);
/// Merges what others published into a mapping file.
ExitStatus runUpdate(const QStringList &arguments, QTextStream &out, QTextStream &err);
/// Makes a mapping file the newest shared copy.
ExitStatus runPublish(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace velkmap
