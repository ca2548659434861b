#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QByteArray>
#include <QString>

/// A text as a cell of CSV as RFC 4180 has it, in UTF-8: within quotes if it has commas, quotes or
/// line ends.
[[nodiscard]] VELKGEOMCORE_EXPORT QByteArray csvCell(const QString &text);
