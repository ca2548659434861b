#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <geomcore/value/LineId.h>
#include <geomcore/value/TabVarValue.h>
#include <geomcore/value/VarId.h>

#include <QList>
#include <QString>

namespace VKTab {

class Content;
class Line;

/// Stored variable sets: texts of the form of MidentClass that name the values of a line's ranges.
class VELKGEOMCORE_EXPORT VarsetCreate
{
public:
    /// The variables that stand for a line with the values that it shows: "TMVMAT" and the range
    /// variables of type "SM", "GM", "FM" or "DM" that do not come from the ERP layer.
    [[nodiscard]] static QList<TabVarValue> xVarset(const Line &line);
    /// Their text; empty for an id without line and for a line without such variables.
    [[nodiscard]] static QString createXVarset(const Content &content, const LineId &line);
    /// True if text and line name the same variables of the table with equal values. Names that the
    /// table does not have, and the `excluded` variables, do not count.
    [[nodiscard]] static bool compareXVarset(const Line &line, const QString &text,
                                             const QList<VarId> &excluded);
};

} // namespace VKTab
