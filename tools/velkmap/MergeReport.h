#pragma once

#include <release/merge/mergeFiles.h>

QT_BEGIN_NAMESPACE
class QTextStream;
QT_END_NAMESPACE

namespace VelkRelease {
class SameLines;
}

namespace velkmap {

class CommandLine;

// What all commands that merge have in common.

/// --report, --target and --allow.
void addMergeOptions(CommandLine &line);
/// \a same must live as long as the result.
[[nodiscard]] VelkRelease::MergeOptions mergeOptions(const CommandLine &line,
                                                     VelkRelease::SameLines &same);
/// A line for each release.
void tellMerge(const VelkRelease::MergedFile &merged, QTextStream &out);
/// Writes what --report wants; false after a message if that fails.
[[nodiscard]] bool writeMergeReport(const CommandLine &line, const VelkRelease::MergedFile &merged,
                                    const char *command, QTextStream &err);

} // namespace velkmap
