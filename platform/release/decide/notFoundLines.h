#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/PrjMappingC.h>

namespace VelkRelease {

/// Enters a line among those without target line, in the target for these, which is made if there
/// is none. The mapping's state is not updated.
VELKRELEASE_EXPORT void enterNotFound(PrjMappingC &mapping, int line, PRJMAPPING::CheckState state);
/// Takes a line out of that target, if it is there. The mapping's state is not updated.
VELKRELEASE_EXPORT void leaveNotFound(PrjMappingC &mapping, int line);

/// Takes all lines out of that target that are not confirmed, so that they are looked for again.
VELKRELEASE_EXPORT void forgetNotFound(PrjMappingC &mapping);

} // namespace VelkRelease
