#include "AssignCommand.h"

#include "CommandLine.h"
#include "ReleaseFile.h"
#include "TerminalProgress.h"
#include <release/assign/ReleaseAssigner.h>

#include <core/parallel/WorkerPool.h>
#include <geomcore/index/IndexTreeC.h>

#include <QFileInfo>
#include <QTextStream>

#include <atomic>
#include <csignal>

namespace velkmap {

namespace {

std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free, "set in a signal handler");

/// While it lives, Ctrl+C asks the work to end instead of ending the program. A second Ctrl+C ends
/// it at once.
class InterruptGuard
{
public:
    InterruptGuard()
    {
        interrupted = false;
        m_former = std::signal(SIGINT, [](int) {
            interrupted = true;
            std::signal(SIGINT, SIG_DFL);
        });
    }
    ~InterruptGuard() { std::signal(SIGINT, m_former); }
    InterruptGuard(const InterruptGuard &) = delete;
    InterruptGuard &operator=(const InterruptGuard &) = delete;

private:
    void (*m_former)(int);
};

constexpr const char *description =
    "Assigns the table lines of a release's projects to lines of their targets.\n"
    "Existing assignments stay, with --force only the confirmed ones. Ctrl+C ends\n"
    "the work and keeps what is done (exit status 130).";

void addOptions(CommandLine &line)
{
    ReleaseFile::addOptions(line);
    line.addRequired("source", "ROOT", "Directory that holds the old release's catalog.");
    line.addRequired("target", "ROOT", "Directory that holds the new release's catalog.");
    line.addOptional("project", "PATH", "Source path of a project to assign; may be repeated.");
    line.addFlag("force", "Works out anew what nobody has confirmed.");
    line.addOptional("jobs", "N", "Threads that work at once; by default one per processor.", "0");
}

bool isDirectory(const QString &path, QTextStream &err)
{
    if (QFileInfo(path).isDir())
        return true;
    err << "velkmap assign: " << path << " is no directory\n";
    return false;
}

} // namespace

ExitStatus runAssign(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("assign", description);
    addOptions(line);
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    bool isNumber = false;
    const int jobs = line.value("jobs").toInt(&isNumber);
    if (!isNumber || jobs < 0)
        return line.wrongUsage("--jobs is no number: " + line.value("jobs"), err);
    if (!isDirectory(line.value("source"), err) || !isDirectory(line.value("target"), err))
        return ExitStatus::InputUnreadable;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;

    IndexTreeC::instance()->setCatalogRoot(line.value("target"));
    VelkRelease::ReleaseAssigner assigner(line.value("source"));
    assigner.setProjects(line.values("project"));
    assigner.setForce(line.isSet("force"));
    WorkerPool::instance().setThreads(jobs);
    ReleaseMappingC release = file.release();
    if (const QStringList unknown = assigner.unknownProjects(release); !unknown.isEmpty())
        return line.wrongUsage("the mapping has no project " + unknown.join(", "), err);

    bool allRead = false;
    VelkRelease::ReleaseAssigner::Progress reached;
    {
        const InterruptGuard guard;
        TerminalProgress terminal;
        assigner.setObserver([&](const VelkRelease::ReleaseAssigner::Progress &progress) {
            reached = progress;
            terminal.show(progress.projects, progress.totalProjects, progress.lines);
        });
        allRead = assigner.run(release, interrupted);
    }
    for (const QString &error : assigner.errors())
        err << "velkmap assign: " << error << '\n';
    if (const ExitStatus written = file.write(release, err); written != ExitStatus::Done)
        return written;
    out << reached.projects << " projects with " << reached.lines << " lines assigned\n";
    if (interrupted && reached.projects < reached.totalProjects) {
        err << "velkmap assign: interrupted after " << reached.projects
            << " projects; they are saved, run it again for the others\n";
        return ExitStatus::Interrupted;
    }
    return allRead ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

} // namespace velkmap
