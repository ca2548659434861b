#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <geomcore/value/LineId.h>
#include <geomcore/value/Value.h>

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace VKTab {

class Var;

/// Where an ErpLayer has its columns and values from. Called on the table's thread.
class VELKGEOMCORE_EXPORT ErpDataSourceI
{
public:
    virtual ~ErpDataSourceI();

    /// The columns; ids and sources are set by the layer.
    [[nodiscard]] virtual QList<Var> columns() const = 0;
    /// The values of a line by column name, empty if it has none; nothing if they could not be
    /// read.
    [[nodiscard]] virtual std::optional<QHash<QString, Value>> values(const LineId &line) = 0;
};

} // namespace VKTab
