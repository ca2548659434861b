#include "MergeCommand.h"

#include "CommandLine.h"
#include "MergeReport.h"
#include "ReleaseFile.h"

#include <release/history/DecisionHistory.h>
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

ExitStatus write(const CommandLine &line, const VelkRelease::MergedFile &merged, QTextStream &err)
{
    QString error;
    if (merged.file.write(line.value("out"), &error))
        return writeMergeReport(line, merged, "merge", err) ? ExitStatus::Done
                                                            : ExitStatus::ResultUnwritable;
    err << "velkmap merge: " << error << '\n';
    return ExitStatus::ResultUnwritable;
}

/// Who decided what on both sides. The result is whole without that.
void takeHistories(const CommandLine &line, QTextStream &err)
{
    for (const char *side : {"ours", "theirs"}) {
        QString error;
        if (line.value(side) != line.value("out") &&
            !VelkRelease::DecisionHistory::adopt(line.value(side), line.value("out"), &error))
            err << "velkmap merge: the history of " << line.value(side)
                << " is not taken along: " << error << '\n';
    }
}

} // namespace

ExitStatus runMerge(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("merge", description);
    line.addRequired("base", "FILE", "The mapping file from which both sides started.");
    line.addRequired("ours", "FILE", "What we made of it.");
    line.addRequired("theirs", "FILE", "What the other side made of it.");
    line.addRequired("out", "FILE", "Result; may be one of the three.");
    addMergeOptions(line);
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
    const VelkRelease::MergedFile merged =
        VelkRelease::mergeFiles(input.base, input.ours, input.theirs, mergeOptions(line, same));
    if (const ExitStatus written = write(line, merged, err); written != ExitStatus::Done)
        return written;
    takeHistories(line, err);
    tellMerge(merged, out);
    return merged.clashes() ? ExitStatus::Clashes : ExitStatus::Done;
}

} // namespace velkmap
