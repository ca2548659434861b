#include "FilterRule.h"

namespace VKTab {

FilterRule::~FilterRule() = default;

} // namespace VKTab
