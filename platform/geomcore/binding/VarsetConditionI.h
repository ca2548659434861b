#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

class MapVarValueC;
namespace VKTab {
class LineView;
class Program;
} // namespace VKTab

/// Says which source lines a target is for. Immutable, so it may be shared between targets and
/// threads. The order of the virtual operations is part of the interface.
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
    /// The condition as the mapping file keeps it.
    [[nodiscard]] virtual QString getCondition() const = 0;

    /// Names that the condition reads, each once, in the order of their first appearance.
    [[nodiscard]] QStringList usedVariables() const;
};
