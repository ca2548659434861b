#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

namespace VKTab {

class FilteredTable;
class LineSet;

/// What a filter does. Immutable, so that it may be evaluated on any thread.
class VELKGEOMCORE_EXPORT FilterRule
{
public:
    virtual ~FilterRule();

    [[nodiscard]] virtual QString className() const = 0;
    /// False if evaluating it changes nothing.
    [[nodiscard]] virtual bool isUsed() const = 0;
    /// Takes the lines that it hides out of the set, which has one entry for each row of the table.
    virtual void evaluate(const FilteredTable &table, LineSet &visible) const = 0;
};

} // namespace VKTab
