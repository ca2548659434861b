#pragma once

#include <QString>
#include <QStringView>

namespace velkmap {

/// What the path of a project, relative to the catalog root, says about which project it is.

/// The path without its first component, the catalog.
[[nodiscard]] QString pathInCatalog(const QString &projectPath);
/// The file name without extension, in lower case and without anything but letters and digits:
/// "Bolts/DIN_931-A.prj" gives "din931a".
[[nodiscard]] QString foldedName(QStringView projectPath);
/// How much two folded names have in common, 0 to 1: twice the longest common subsequence over the
/// sum of the lengths.
[[nodiscard]] double nameLikeness(QStringView a, QStringView b);

} // namespace velkmap
