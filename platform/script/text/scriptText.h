#pragma once

#include <QString>

/// What the runner of scripts tells, in the language of the user. What a script did wrong in a call
/// is told in English, as the engine does. The catalog is that of VelkGeomCore: this library is
/// linked into programs and has none of its own.
[[nodiscard]] QString scriptText(const char *text);
