#pragma once

#include <QPair>
#include <QString>

/// Versions of a target project and of its table, each empty if it cannot be told.
/// \a targetPath is relative to the catalog root.
[[nodiscard]] QPair<QString, QString> readProjectVersions(const QString &targetPath);
