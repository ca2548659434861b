#include "VarsetConditionI.h"

VarsetConditionI::~VarsetConditionI() = default;
