#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

/// Versions of projects and tables.
class VELKGEOMCORE_EXPORT CipVersionMgmtC
{
public:
    /// Version text "v" + "yyMMddhhmmss" of a date, reckoned in UTC whatever the desk's time zone
    /// and language. \a date is ISO 8601; without an offset it is UTC. Empty if it is no date.
    /// Versions order as their texts do within one century. \a prefix replaces the "v" unless it is
    /// empty.
    [[nodiscard]] static QString MakeVersionFromDate(const QString &date, const QString &prefix);
};
