#include "MergeReport.h"

#include "CommandLine.h"
#include "counted.h"

#include <core/files/DurableFile.h>
#include <release/merge/ClashGroups.h>
#include <release/merge/SameLines.h>

#include <QTextStream>

#include <algorithm>

namespace velkmap {

void addMergeOptions(CommandLine &line)
{
    line.addOptional("report", "FILE", "Writes clashes, questions and changes as JSON.");
    line.addOptional("target", "ROOT",
                     "Directory that holds the new release's catalog: different lines of a target\n"
                     "that say the same are no clash then.");
    line.addAllowed();
}

VelkRelease::MergeOptions mergeOptions(const CommandLine &line, VelkRelease::SameLines &same)
{
    VelkRelease::MergeOptions options;
    if (line.isSet("target")) {
        options.sameLines = [&same](const QString &target, int one, int other) {
            return same.areSame(target, one, other);
        };
    }
    return options;
}

void tellMerge(const VelkRelease::MergedFile &merged, QTextStream &out)
{
    for (const VelkRelease::MergeResult &result : merged.releases) {
        const auto lines = std::ranges::count(result.clashes, VelkRelease::MergeClash::Line,
                                              &VelkRelease::MergeClash::kind);
        out << result.release.getSourceDate() << ": " << counted(result.online.size(), "change")
            << " of theirs, " << result.settled.size() << " made by both, "
            << counted(lines, "line") << (lines == 1 ? " clashes in " : " clash in ")
            << counted(qint64(VelkRelease::groupClashes(result.clashes).size()), "way")
            << ", other clashes: " << result.clashes.size() - lines << '\n';
    }
    for (const QString &date : merged.keptDates)
        out << date << ": removed by one side, changed by the other; it stays\n";
}

bool writeMergeReport(const CommandLine &line, const VelkRelease::MergedFile &merged,
                      const char *command, QTextStream &err)
{
    QString error;
    if (!line.isSet("report") ||
        DurableFile::write(line.value("report"), mergeReport(merged), &error))
        return true;
    err << "velkmap " << command << ": " << error << '\n';
    return false;
}

} // namespace velkmap
