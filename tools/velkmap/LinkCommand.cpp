#include "LinkCommand.h"

#include "CommandLine.h"
#include "counted.h"
#include "InterruptGuard.h"
#include "LinkDbOption.h"
#include "ReleaseFile.h"
#include "TerminalProgress.h"

#include <release/link/ReleaseLinker.h>

#include <QTextStream>

namespace velkmap {

namespace {

using VelkRelease::ReleaseLinker;
using Outcome = VelkRelease::LinkWriter::Outcome;

constexpr const char *linkDescription =
    "Writes the confirmed assignments of a release mapping into a link database: for each\n"
    "confirmed line the line of the new release, or that it has no successor. Each project\n"
    "is written in one transaction; projects whose links are there already are left alone,\n"
    "so a run that was ended at any moment is taken up by running it again.";

void tellProjects(const ReleaseLinker &linker, bool dryRun, QTextStream &out, QTextStream &err)
{
    for (const ReleaseLinker::Project &project : linker.projects()) {
        const QString name = project.path + " " + project.version;
        if (project.outcome == Outcome::Written)
            out << name << ": " << counted(project.links, "link")
                << (dryRun ? " to write\n" : "\n");
        else if (project.outcome == Outcome::Failed)
            err << "velkmap link: " << name << ": " << project.problem << '\n';
    }
}

void tellSum(const ReleaseLinker &linker, bool dryRun, QTextStream &out)
{
    out << counted(linker.links(Outcome::Written), "link") << " of "
        << counted(linker.count(Outcome::Written), "project")
        << (dryRun ? " would be written, " : " written, ")
        << counted(linker.links(Outcome::Unchanged), "link") << " of "
        << counted(linker.count(Outcome::Unchanged), "project")
        << (linker.links(Outcome::Unchanged) == 1 ? " is there already" : " are there already");
    if (const int failed = linker.count(Outcome::Failed); failed > 0)
        out << ", " << counted(failed, "project") << " failed";
    out << '\n';
}

} // namespace

ExitStatus runLink(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("link", linkDescription);
    ReleaseFile::addOptions(line);
    LinkDbOption::add(line);
    line.addOptional("writers", "N", "Connections that write to a server at once.", "2");
    line.addFlag("dry-run", "Tells what would be written and writes nothing.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    LinkDbSettings settings;
    if (const auto failed = LinkDbOption::read(line, settings, err))
        return *failed;
    bool isNumber = false;
    const int writers = line.value("writers").toInt(&isNumber);
    if (!isNumber || writers < 1)
        return line.wrongUsage("--writers is no number above 0: " + line.value("writers"), err);
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;

    const InterruptGuard guard;
    const bool dryRun = line.isSet("dry-run");
    ReleaseLinker linker(settings);
    linker.setDryRun(dryRun);
    linker.setWriters(writers);
    bool done = false;
    {
        TerminalProgress terminal;
        linker.setObserver([&](const ReleaseLinker::Progress &progress) {
            terminal.show(progress.projects, progress.totalProjects, progress.links);
        });
        done = linker.run(file.release(), InterruptGuard::isRequested());
    }
    if (!linker.problem().isEmpty()) {
        err << "velkmap link: " << linker.problem() << '\n';
        return dryRun ? ExitStatus::InputUnreadable : ExitStatus::ResultUnwritable;
    }
    tellProjects(linker, dryRun, out, err);
    tellSum(linker, dryRun, out);
    if (const int left = linker.count(Outcome::Interrupted); left > 0) {
        err << "velkmap link: interrupted; run it again for " << counted(left, "other project")
            << '\n';
        return ExitStatus::Interrupted;
    }
    return done ? ExitStatus::Done : ExitStatus::ResultUnwritable;
}

} // namespace velkmap
