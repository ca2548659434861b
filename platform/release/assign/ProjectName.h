#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QString>
#include <QStringView>

namespace VelkRelease {

/// What the path of a project, relative to the catalog root, says about which project it is.

/// The path without its first component, the catalog.
[[nodiscard]] VELKRELEASE_EXPORT QString pathInCatalog(const QString &projectPath);
/// The folder of a project below its catalog, with the slash at its end; empty for the catalog.
[[nodiscard]] VELKRELEASE_EXPORT QString folderInCatalog(const QString &projectPath);
/// The same of a path that is without its catalog already.
[[nodiscard]] VELKRELEASE_EXPORT QString folderOf(const QString &pathInCatalog);
/// The file name without extension, in lower case and without anything but letters and digits:
/// "Bolts/DIN_931-A.prj" gives "din931a".
[[nodiscard]] VELKRELEASE_EXPORT QString foldedName(QStringView projectPath);
/// How much two folded names have in common, 0 to 1: twice the longest common subsequence over the
/// sum of the lengths.
[[nodiscard]] VELKRELEASE_EXPORT double nameLikeness(QStringView a, QStringView b);

} // namespace VelkRelease
