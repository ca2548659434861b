#include "ProgressDisplayI.h"

ProgressDisplayI::~ProgressDisplayI() = default;
