#include "ResolveRangeOptionsI.h"

#include "Var.h"

namespace VKTab {

ResolveRangeOptionsI::~ResolveRangeOptionsI() = default;

ResolveRangeOptionsC::~ResolveRangeOptionsC() = default;

bool ResolveRangeOptionsC::resolves(const Var &var) const
{
    return var.isFW();
}

} // namespace VKTab
