#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

namespace VKTab {

class Var;

/// Says which ranges a ValueRangeIterator walks. Read only, so one may serve several threads.
class VELKGEOMCORE_EXPORT ResolveRangeOptionsI
{
public:
    virtual ~ResolveRangeOptionsI();

    /// Asked for each named variable that the line offers a range of.
    [[nodiscard]] virtual bool resolves(const Var &var) const = 0;
};

/// Walks every range that was named.
class VELKGEOMCORE_EXPORT ResolveRangeOptionsC : public ResolveRangeOptionsI
{
public:
    ~ResolveRangeOptionsC() override;

    [[nodiscard]] bool resolves(const Var &var) const override;
};

} // namespace VKTab
