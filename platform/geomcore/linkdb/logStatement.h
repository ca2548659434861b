#pragma once

#include <QString>

/// Writes a statement as it goes to the database to the category
/// "tormeva.libs.VelkGeomCore.linkdb", at level 5000. Statements hold the user's values. Any
/// thread.
void logStatement(const QString &sql);
