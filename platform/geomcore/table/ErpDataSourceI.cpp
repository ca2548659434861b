#include "ErpDataSourceI.h"

namespace VKTab {

ErpDataSourceI::~ErpDataSourceI() = default;

} // namespace VKTab
