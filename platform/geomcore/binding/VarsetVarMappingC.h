#pragma once

#include "VarsetModifierI.h"
#include <geomcore/expression/MapVarValueC.h>

/// The target variable takes the value of a source variable, no value if the line does not have it.
/// An empty source name: the target variable is ignored, so its name is taken out. An empty target
/// name: nothing happens.
class VELKGEOMCORE_EXPORT VarsetVarMappingC : public VarsetModifierI
{
public:
    VarsetVarMappingC(const QString &sourceName, const QString &targetName);
    ~VarsetVarMappingC() override;

    [[nodiscard]] QString getSourceVarName() const { return m_source; }
    [[nodiscard]] QString getTargetVarName() const { return m_target; }

    [[nodiscard]] VarsetVarMappingC *clone() const override;
    void updateVarset(const QHash<QString, MapVarValueC> &in,
                      QHash<QString, MapVarValueC> &out) const override;
    void toJson(PJsonValue &out) const override;
    void bind(VKTab::BoundModifiers &bound) const override;

private:
    const QString m_source;
    const QString m_target;
};
