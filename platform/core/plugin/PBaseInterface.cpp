#include "PBaseInterface.h"

PBaseInterface::~PBaseInterface() = default;
