#pragma once

#include "MapVarValueC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QList>
#include <QString>

/// The values of a varset in the order of the hash, as a Finder asks for them.
[[nodiscard]] VELKGEOMCORE_EXPORT QList<TabVarValue>
toTabVarValues(const QHash<QString, MapVarValueC> &varset);
