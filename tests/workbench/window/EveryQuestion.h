#pragma once

#include "EveryWindow.h"

/// The questions and messages that differ from others in their text alone, each with a row of its
/// own.
namespace EveryQuestion {

[[nodiscard]] QList<EveryWindow::Window> all();

} // namespace EveryQuestion
