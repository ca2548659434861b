#include "PLinkDbGuiI.h"

PLinkDbGuiI::~PLinkDbGuiI() = default;
