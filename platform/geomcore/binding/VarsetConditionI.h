#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QString>

#include <memory>

class MapVarValueC;
namespace VKTab {
class LineView;
class Program;
} // namespace VKTab

/// Says which source lines a target is for. Immutable, so it may be shared between targets and
/// threads.
class VELKGEOMCORE_EXPORT VarsetConditionI
{
public:
    VarsetConditionI() = default;
    VarsetConditionI(const VarsetConditionI &) = delete;
    VarsetConditionI &operator=(const VarsetConditionI &) = delete;
    virtual ~VarsetConditionI();

    [[nodiscard]] virtual bool holds(const QHash<QString, MapVarValueC> &varset) const = 0;
    /// The same on a table line. For many lines of one table see BoundConditions.
    [[nodiscard]] virtual bool holds(const VKTab::LineView &line) const = 0;
    /// The statement to be bound to a table; null for one that never holds.
    [[nodiscard]] virtual std::shared_ptr<const VKTab::Program> program() const = 0;
};
