#include "VarsetModifierI.h"

VarsetModifierI::~VarsetModifierI() = default;
