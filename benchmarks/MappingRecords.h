#pragma once

#include <geomcore/records/ReleaseMappingC.h>

namespace velkbench {

/// A release of one project with one target that holds \a lines entries: most of them assigned,
/// some to be checked or confirmed, a few without target line, a few with an extended text.
ReleaseMappingC bigRelease(int lines);

} // namespace velkbench
