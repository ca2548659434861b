#include "IndexTreeErpSourceI.h"

IndexTreeErpSourceI::~IndexTreeErpSourceI() = default;
