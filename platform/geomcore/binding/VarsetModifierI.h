#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QString>

class MapVarValueC;
class PJsonValue;
namespace VKTab {
class BoundModifiers;
} // namespace VKTab

/// One rule of a target that makes the values with which its table is searched from those of a
/// source line. Immutable, so it may be shared between targets and threads. The order of the
/// virtual operations is part of the interface.
class VELKGEOMCORE_EXPORT VarsetModifierI
{
public:
    VarsetModifierI() = default;
    VarsetModifierI(const VarsetModifierI &) = delete;
    VarsetModifierI &operator=(const VarsetModifierI &) = delete;
    virtual ~VarsetModifierI();

    /// The caller owns the copy.
    [[nodiscard]] virtual VarsetModifierI *clone() const = 0;
    /// Changes one value of out. A target's modifiers are called in order with the same in, the
    /// values of the source line; out begins as a copy of them.
    virtual void updateVarset(const QHash<QString, MapVarValueC> &in,
                              QHash<QString, MapVarValueC> &out) const = 0;
    /// Writes the rule into an object of the mapping file.
    virtual void toJson(PJsonValue &out) const = 0;
    /// Does to the columns of a table what updateVarset does to a varset.
    virtual void bind(VKTab::BoundModifiers &bound) const = 0;
};
