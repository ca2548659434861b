#include "LayerI.h"

namespace VKTab {

LayerI::~LayerI() = default;

} // namespace VKTab
