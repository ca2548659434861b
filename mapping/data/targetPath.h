#pragma once

#include <QString>

/// Where a target project is: below the local catalog root (the reference in the result stays as it
/// is, for PPathName to resolve), or an address in the repository of the catalog that the path
/// begins with. Empty if the path does not tell. Works on any thread.
[[nodiscard]] QString targetPath(bool local, const QString &storedPath);
