#include "LineI.h"

namespace VKTab {

LineI::~LineI() = default;

} // namespace VKTab
