#include "MergeCommand.h"

#include "CommandLine.h"
#include "MergeReport.h"
#include "ReleaseFile.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/records/KnownRows.h>
#include <release/history/DecisionHistory.h>
#include <release/merge/mergeFiles.h>
#include <release/merge/SameLines.h>

#include <QFileInfo>
#include <QTextStream>

#include <array>

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
bool isEmptyFile(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() && info.size() == 0;
}

/// One of the three files while it is read.
struct Side
{
    QString path;
    MappingFile &file;
    QString error;
    bool isRead = false;
};

std::optional<ExitStatus> tellReading(const Side &side, QTextStream &err)
{
    if (!side.isRead) {
        err << "velkmap merge: " << side.error << "; nothing was written\n";
        return ExitStatus::InputUnreadable;
    }
    for (const QString &note : side.file.notes())
        err << "velkmap merge: " << side.path << ": " << note << '\n';
    return std::nullopt;
}

/// Both sides were made of the base, so they say mostly what it says.
std::optional<ExitStatus> readInput(const CommandLine &line, Input &input, QTextStream &err)
{
    KnownRows rows;
    Side base{line.value("base"), input.base, {}};
    base.isRead = isEmptyFile(base.path) || base.file.readNoting(base.path, rows, &base.error);
    if (const auto failed = tellReading(base, err))
        return failed;
    std::array<Side, 2> sides = {Side{line.value("ours"), input.ours, {}},
                                 Side{line.value("theirs"), input.theirs, {}}};
    WorkerPool::instance().run(int(sides.size()), [&](int i) {
        Side &side = sides[size_t(i)];
        side.isRead = isEmptyFile(side.path) || side.file.readBeside(side.path, rows, &side.error);
    });
    for (const Side &side : sides) {
        if (const auto failed = tellReading(side, err))
            return failed;
    }
    return std::nullopt;
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
