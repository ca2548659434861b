#include "IndexTreeDisplayItemI.h"

IndexTreeDisplayItemI::~IndexTreeDisplayItemI() = default;
