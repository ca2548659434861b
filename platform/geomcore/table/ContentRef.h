#pragma once

#include "Content.h" // IWYU pragma: export
