#include "MergeCommand.h"

#include "CommandLine.h"
#include "ReleaseFile.h"

#include <core/files/DurableFile.h>
#include <release/merge/ClashGroups.h>
#include <release/merge/mergeFiles.h>
#include <release/merge/SameLines.h>

#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

namespace {

constexpr const char *description =
    "Merges two changed copies of a mapping file. What one side changed is taken, what\n"
    "both changed alike too. Lines that both decided differently are written as theirs\n"
    "and marked as being in conflict, to be settled in the editor (exit status 4).\n"
    "For version control: %O is the base, %A ours and out, %B theirs.";

struct Input
{
    MappingFile base;
    MappingFile ours;
    MappingFile theirs;
};

/// An empty file holds no release; so version control names a file that was not there.
std::optional<ExitStatus> readFile(const QString &path, MappingFile &file, QTextStream &err)
{
    const QFileInfo info(path);
    if (info.isFile() && info.size() == 0)
        return std::nullopt;
    QString error;
    if (!file.read(path, QString(), &error)) {
        err << "velkmap merge: " << error << "; nothing was written\n";
        return ExitStatus::InputUnreadable;
    }
    for (const QString &note : file.notes())
        err << "velkmap merge: " << path << ": " << note << '\n';
    return std::nullopt;
}

std::optional<ExitStatus> readInput(const CommandLine &line, Input &input, QTextStream &err)
{
    if (const auto failed = readFile(line.value("base"), input.base, err))
        return failed;
    if (const auto failed = readFile(line.value("ours"), input.ours, err))
        return failed;
    return readFile(line.value("theirs"), input.theirs, err);
}

void tell(const VelkRelease::MergedFile &merged, QTextStream &out)
{
    for (const VelkRelease::MergeResult &result : merged.releases) {
        const auto lines = std::ranges::count(result.clashes, VelkRelease::MergeClash::Line,
                                              &VelkRelease::MergeClash::kind);
        out << result.release.getSourceDate() << ": " << result.online.size()
            << " changes of theirs, " << result.settled.size() << " made by both, " << lines
            << " lines clash in " << VelkRelease::groupClashes(result.clashes).size() << " ways, "
            << result.clashes.size() - lines << " other clashes\n";
    }
    for (const QString &date : merged.keptDates)
        out << date << ": removed by one side, changed by the other; it stays\n";
}

ExitStatus write(const CommandLine &line, const VelkRelease::MergedFile &merged, QTextStream &err)
{
    QString error;
    bool written = merged.file.write(line.value("out"), &error);
    if (written && line.isSet("report"))
        written = DurableFile::write(line.value("report"), mergeReport(merged), &error);
    if (written)
        return ExitStatus::Done;
    err << "velkmap merge: " << error << '\n';
    return ExitStatus::ResultUnwritable;
}

} // namespace

ExitStatus runMerge(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("merge", description);
    line.addRequired("base", "FILE", "The mapping file from which both sides started.");
    line.addRequired("ours", "FILE", "What we made of it.");
    line.addRequired("theirs", "FILE", "What the other side made of it.");
    line.addRequired("out", "FILE", "Result; may be one of the three.");
    line.addOptional("report", "FILE", "Writes clashes, questions and changes as JSON.");
    line.addOptional("target", "ROOT",
                     "Directory that holds the new release's catalog: different lines of a target\n"
                     "that say the same are no clash then.");
    line.addAllowed();
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    line.takeAllowed();
    EditLock lock;
    if (const auto failed = takeLock(lock, line.value("out"), err))
        return *failed;
    Input input;
    if (const auto failed = readInput(line, input, err))
        return *failed;

    VelkRelease::SameLines same(line.value("target"));
    VelkRelease::MergeOptions options;
    if (line.isSet("target")) {
        options.sameLines = [&](const QString &target, int one, int other) {
            return same.areSame(target, one, other);
        };
    }
    const VelkRelease::MergedFile merged =
        VelkRelease::mergeFiles(input.base, input.ours, input.theirs, options);
    if (const ExitStatus written = write(line, merged, err); written != ExitStatus::Done)
        return written;
    tell(merged, out);
    return merged.clashes() ? ExitStatus::Clashes : ExitStatus::Done;
}

} // namespace velkmap
