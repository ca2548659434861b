#pragma once

#include <QString>

/// Folders of the catalog by name: "parts/bolts", or with "*" for any characters and "?" for one,
/// neither of them a slash: "parts/*/din9??". What is below belongs to them.
namespace VelkRelease::FolderPattern {

/// Without slashes at the end, and without empty pieces.
[[nodiscard]] QString cleaned(const QString &pattern);
/// Whether a project or folder is one of them or lies below.
[[nodiscard]] bool holds(const QString &pattern, const QString &path);
/// Whether a path can be that both of them hold.
[[nodiscard]] bool overlap(const QString &one, const QString &other);

} // namespace VelkRelease::FolderPattern
