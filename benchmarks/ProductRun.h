#pragma once

#include "CatalogGenerator.h"

#include <QStringList>

#include <filesystem>

namespace velkbench {

/// Runs a command of the batch program in this process, its output kept back. Throws
/// std::runtime_error with what it said unless it ends with one of the good exit statuses.
void runVelkmap(const QStringList &arguments, const QList<int> &goodStatuses = {0});

[[nodiscard]] QString qtPath(const std::filesystem::path &path);

/// Writes a mapping file that maps every generated project to the project of the same path, without
/// any line: what `velkmap assign` begins with.
void writeEmptyMapping(const std::vector<GeneratedProject> &projects,
                       const std::filesystem::path &file);

/// Numbers of lines of the mapping file's last release by state.
struct StateCounts
{
    int lines = 0;
    int mapped = 0;
    int toCheck = 0;
    int notFound = 0;
};
[[nodiscard]] StateCounts countStates(const std::filesystem::path &mappingFile);

} // namespace velkbench
