#pragma once

#include "LineTexts.h"

#include <geomcore/binding/BoundModifiers.h>

#include <memory>

namespace Mapper {

class ExactSearch;

/// A source line as a target sees it: the variables that both tables have, and their texts. Kept
/// from line to line to save its room.
struct TargetValues
{
    std::shared_ptr<const ExactSearch> search; ///< Knows the variables.
    LineTexts texts;
    VKTab::BoundModifiers::Results results;
};

} // namespace Mapper
