#pragma once

#include "ResolveRangeOptionsI.h" // IWYU pragma: export
