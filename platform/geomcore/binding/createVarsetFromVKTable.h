#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <geomcore/value/LineId.h>

#include <QHash>
#include <QSet>
#include <QString>

class MapVarValueC;

namespace VKTab {
class Content;
class Line;
class Var;
} // namespace VKTab

/// Whether a variable of a table is one of those that varsets have: plain, range or computed, and
/// of the file itself.
[[nodiscard]] VELKGEOMCORE_EXPORT bool entersVarset(const VKTab::Var &var);

/// The plain, range and computed variables of the file with their values on a line, untranslated
/// and in plain notation, hidden ones and empty values included; columns of added layers are left
/// out. `excluded` holds the ids of variables to leave out. This form reads the line as the table
/// has it: a range variable has the stored text, or the value that was applied to it. Empty for an
/// id without line.
[[nodiscard]] VELKGEOMCORE_EXPORT QHash<QString, MapVarValueC>
createVarsetFromVKTable(const VKTab::Content &content, const VKTab::LineId &line,
                        const QSet<int> &excluded);

/// The same for what the line shows now, the values of an iterator included.
[[nodiscard]] VELKGEOMCORE_EXPORT QHash<QString, MapVarValueC>
createVarsetFromVKTable(const VKTab::Line &line, const QSet<int> &excluded);
