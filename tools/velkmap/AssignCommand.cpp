#include "AssignCommand.h"

#include "CommandLine.h"
#include "counted.h"
#include "InterruptGuard.h"
#include "ReleaseFile.h"
#include "TerminalProgress.h"

#include <core/files/DurableFile.h>
#include <core/parallel/WorkerPool.h>
#include <geomcore/csv/csvCell.h>
#include <geomcore/index/IndexTreeC.h>
#include <release/assign/AssignmentPart.h>
#include <release/assign/ReleaseAssigner.h>
#include <release/chain/carryDecisions.h>
#include <release/history/CarriedHistory.h>

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <optional>

namespace velkmap {

namespace {

constexpr const char *description =
    "Assigns the table lines of a release's projects to lines of their targets.\n"
    "Existing assignments stay, with --force only the confirmed ones. Projects whose\n"
    "tables, or whose targets' tables with --force, cannot be read keep their lines.\n"
    "Ctrl+C ends the work and writes the projects that are done (exit status 130).";

void addAssignOptions(CommandLine &line)
{
    ReleaseFile::addOptions(line);
    line.addRequired("source", "ROOT", "Directory that holds the old release's catalog.");
    line.addRequired("target", "ROOT", "Directory that holds the new release's catalog.");
    line.addOptional("project", "PATH", "Source path of a project to assign; may be repeated.");
    line.addOptional("shard", "I/N",
                     "Only the I-th of N shares of the projects, for several machines. The shares\n"
                     "are of about the same size; the mapping stays as it is.");
    line.addOptional("out", "PART", "Where the share goes, for velkmap join.");
    line.addFlag("force", "Works out anew what nobody has confirmed.");
    line.addOptional("former", "FILE",
                     "Mapping file with what was confirmed for the same old release when it led\n"
                     "to an earlier new one. Lines that are not certain take that over: as\n"
                     "proposal, or as assigned where the earlier line has one equal line now.");
    line.addOptional("former-target", "ROOT",
                     "Directory that holds the earlier new release's catalog; for --former.");
    line.addOptional("carried", "FILE", "CSV file to write: the lines that took something over.");
    line.addAllowed();
    line.addOptional("jobs", "N", "Threads that work at once; by default one per processor.", "0");
}

bool isDirectory(const QString &path, QTextStream &err)
{
    if (QFileInfo(path).isDir())
        return true;
    err << "velkmap assign: " << path << " is no directory\n";
    return false;
}

/// How the lines of the projects stand; the parts add up.
QString sumText(const LineCounts &counts)
{
    const int confirmed =
        counts.lines() - counts.notFound() - counts.assigned() - counts.unverified();
    return QString("%1: %2 mapped, %3 to check, %4 confirmed, %5 without target")
        .arg(counted(counts.lines(), "line"), QString::number(counts.assigned()),
             QString::number(counts.unverified()), QString::number(confirmed),
             QString::number(counts.notFound()));
}

/// A wrong catalog gives no error, but hardly any line has a target.
void warnIfNothingFits(const LineCounts &counts, QTextStream &err)
{
    if (counts.notFound() * qint64(2) > counts.lines())
        err << "velkmap assign: more than half of the lines have no target; do source and target "
               "fit the mapping?\n";
}

/// The run of the command on a mapping that was read.
class AssignRun
{
public:
    AssignRun(const CommandLine &line, QTextStream &out, QTextStream &err)
        : m_assigner(line.value("source"))
        , m_out(out)
        , m_err(err)
    {
        m_assigner.setProjects(line.values("project"));
        m_assigner.setForce(line.isSet("force"));
        m_targetRoot = line.value("target");
    }

    /// Says what cannot work at all.
    std::optional<ExitStatus> check(const CommandLine &line, const ReleaseMappingC &release);
    ExitStatus run(ReleaseFile &file);
    /// Works on one share and writes it as a part.
    ExitStatus runShare(const CommandLine &line, const VelkRelease::ShareNumber &number,
                        const ReleaseMappingC &before);

    /// What is carried over from an earlier mapping; says what cannot work.
    std::optional<ExitStatus> takeFormer(const CommandLine &line, const ReleaseMappingC &release);

private:
    [[nodiscard]] bool assign(ReleaseMappingC &release);
    /// False if something could not be read.
    [[nodiscard]] bool carryOver(ReleaseMappingC &release);
    /// Tells what was carried over, and notes it for the editor and for who asks for the history.
    [[nodiscard]] ExitStatus writeCarried(const QString &mappingFile,
                                          const ReleaseMappingC &release) const;
    void tell(const VelkRelease::ReleaseAssigner::Progress &progress, TerminalProgress &terminal);

    VelkRelease::ReleaseAssigner m_assigner;
    std::optional<ReleaseMappingC> m_former;
    QString m_formerFile;
    QString m_formerRoot;
    QString m_targetRoot;
    QString m_carriedFile;
    VelkRelease::CarryOutcome m_carried;
    VelkRelease::ReleaseAssigner::Progress m_reached;
    bool m_toldInterrupt = false;
    QTextStream &m_out;
    QTextStream &m_err;
};

std::optional<ExitStatus> AssignRun::check(const CommandLine &line, const ReleaseMappingC &release)
{
    const QStringList unknown = m_assigner.unknownProjects(release);
    if (!unknown.isEmpty())
        return line.wrongUsage("the mapping has no project " + unknown.join(", "), m_err);
    const QStringList missing = m_assigner.missingCatalogs(release, line.value("target"));
    for (const QString &directory : missing)
        m_err << "velkmap assign: there is no catalog " << directory << "; nothing was assigned\n";
    if (missing.isEmpty())
        return std::nullopt;
    return ExitStatus::InputUnreadable;
}

void AssignRun::tell(const VelkRelease::ReleaseAssigner::Progress &progress,
                     TerminalProgress &terminal)
{
    m_reached = progress;
    if (InterruptGuard::isRequested() && !m_toldInterrupt) {
        m_toldInterrupt = true;
        m_err << "\nvelkmap assign: ending; what is done will be written\n";
        m_err.flush();
    }
    terminal.show(progress.projects, progress.totalProjects, progress.counts.lines());
}

bool AssignRun::assign(ReleaseMappingC &release)
{
    TerminalProgress terminal;
    m_assigner.setObserver(
        [&](const VelkRelease::ReleaseAssigner::Progress &progress) { tell(progress, terminal); });
    return m_assigner.run(release, InterruptGuard::isRequested());
}

std::optional<ExitStatus> AssignRun::takeFormer(const CommandLine &line,
                                                const ReleaseMappingC &release)
{
    if (!line.isSet("former")) {
        if (line.isSet("former-target") || line.isSet("carried"))
            return line.wrongUsage("--former-target and --carried belong to --former", m_err);
        return std::nullopt;
    }
    if (!line.isSet("former-target"))
        return line.wrongUsage("--former needs --former-target", m_err);
    if (line.isSet("shard"))
        return line.wrongUsage("--former does not go with --shard: use it when all parts are "
                               "joined",
                               m_err);
    m_formerRoot = line.value("former-target");
    if (!isDirectory(m_formerRoot, m_err))
        return ExitStatus::InputUnreadable;
    const QString path = QDir::cleanPath(line.value("former"));
    const QString date = release.getSourceDate();
    const VelkRelease::FormerMapping former = VelkRelease::readFormerMapping(path, release);
    if (former.fault == VelkRelease::FormerFault::Unreadable) {
        m_err << "velkmap assign: " << former.error << '\n';
        return ExitStatus::InputUnreadable;
    }
    if (former.fault != VelkRelease::FormerFault::None) {
        m_err << "velkmap assign: " << path << " has no mapping from " << date
              << " to another release than " << release.getTargetDate() << '\n';
        return ExitStatus::InputUnreadable;
    }
    m_former = former.release;
    m_formerFile = QFileInfo(path).absoluteFilePath();
    m_carriedFile = line.value("carried");
    return std::nullopt;
}

bool AssignRun::carryOver(ReleaseMappingC &release)
{
    const std::atomic<bool> &cancelled = InterruptGuard::isRequested();
    if (!m_former || cancelled)
        return true;
    QStringList errors;
    const auto following = VelkRelease::followingRelease(
        *m_former, release,
        {.formerRoot = m_formerRoot, .targetRoot = m_targetRoot, .cancelled = &cancelled}, errors);
    for (const QString &error : errors)
        m_err << "velkmap assign: " << error << '\n';
    if (!following)
        return true;
    m_carried = VelkRelease::carryDecisions(release, *m_former, *following);
    m_reached.counts = {};
    for (const int position : m_assigner.donePositions())
        m_reached.counts.add(release.mappingAt(position).lineCounts());
    return errors.isEmpty();
}

ExitStatus AssignRun::writeCarried(const QString &mappingFile, const ReleaseMappingC &release) const
{
    if (!m_former)
        return ExitStatus::Done;
    const VelkRelease::CarryOutcome &done = m_carried;
    const auto certain = std::ranges::count_if(done.lines, &VelkRelease::CarriedLine::isCertain);
    m_out << counted(qint64(done.lines.size()), "line")
          << (done.lines.size() == 1 ? " takes" : " take") << " over what was confirmed for "
          << m_former->getTargetDate() << ": " << certain << " assigned, "
          << qint64(done.lines.size()) - certain << " proposed\n";
    if (const int left = done.confirmed - int(done.lines.size()); left > 0)
        m_out << left << " of " << counted(done.confirmed, "confirmed line")
              << (left == 1 ? " does" : " do") << " not: " << done.settled
              << " are settled already, " << done.unfollowed << " have no line to follow, "
              << done.expired << " were confirmed as expired, " << done.unknown
              << " are of unknown projects, " << done.clashing << " were in conflict\n";
    QString error;
    if (!done.lines.empty() &&
        !VelkRelease::writeCarriedJournal(mappingFile, release, m_formerFile,
                                          m_former->getTargetDate(), done.lines, &error)) {
        m_err << "velkmap assign: " << error
              << "; the mapping is written, but not from where its lines come\n";
        return ExitStatus::ResultUnwritable;
    }
    if (m_carriedFile.isEmpty())
        return ExitStatus::Done;
    QByteArray csv = "source project,source line,target project,target line,state\n";
    for (const VelkRelease::CarriedLine &line : m_carried.lines)
        csv += csvCell(line.project) + ',' + QByteArray::number(line.line) + ',' +
               csvCell(line.target) + ',' + QByteArray::number(line.targetLine) +
               (line.isCertain ? ",assigned\n" : ",proposed\n");
    if (DurableFile::write(m_carriedFile, csv, &error))
        return ExitStatus::Done;
    m_err << "velkmap assign: " << error << '\n';
    return ExitStatus::ResultUnwritable;
}

ExitStatus AssignRun::run(ReleaseFile &file)
{
    const InterruptGuard guard; // until the result is written
    ReleaseMappingC release = file.release();
    bool allRead = assign(release);
    for (const QString &error : m_assigner.errors())
        m_err << "velkmap assign: " << error << '\n';
    allRead = carryOver(release) && allRead;
    if (const ExitStatus written = file.write(release, m_err); written != ExitStatus::Done)
        return written;
    m_out << m_reached.projects << " of " << counted(m_reached.totalProjects, "project") << " with "
          << sumText(m_reached.counts) << '\n';
    if (const ExitStatus written =
            writeCarried(QFileInfo(file.path()).canonicalFilePath(), release);
        written != ExitStatus::Done)
        return written;
    warnIfNothingFits(m_reached.counts, m_err);
    if (InterruptGuard::isRequested() && m_reached.projects < m_reached.totalProjects) {
        m_err << "velkmap assign: interrupted after " << counted(m_reached.projects, "project")
              << "; they are saved, run it again for the others\n";
        return ExitStatus::Interrupted;
    }
    return allRead ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

ExitStatus AssignRun::runShare(const CommandLine &line, const VelkRelease::ShareNumber &number,
                               const ReleaseMappingC &before)
{
    const InterruptGuard guard;
    VelkRelease::AssignmentPart part;
    part.number = number;
    part.origin = part.originOf(before);
    part.options = part.optionsOf(line.isSet("force"), line.values("project"));
    const QList<int> all = m_assigner.chosenPositions(before);
    part.projects = int(all.size());
    part.positions = VelkRelease::ReleaseShares(before, all, line.value("source"), number.shares)
                         .positions(number.share);
    m_assigner.setShare(part.positions);
    ReleaseMappingC release = before;
    part.allRead = assign(release);
    part.errors = m_assigner.errors();
    for (const QString &error : m_assigner.errors())
        m_err << "velkmap assign: " << error << '\n';
    if (m_assigner.donePositions() != part.positions) {
        m_err << "velkmap assign: interrupted; part " << number.text() << " was not written\n";
        return ExitStatus::Interrupted;
    }
    part.release = before.head();
    for (const int position : part.positions)
        part.release.appendMapping(release.mappingAt(position));
    QString error;
    if (!part.write(line.value("out"), &error)) {
        m_err << "velkmap assign: " << error << '\n';
        return ExitStatus::ResultUnwritable;
    }
    m_out << "part " << number.text() << ": " << m_reached.projects << " of "
          << counted(part.projects, "project") << " with " << sumText(m_reached.counts) << '\n';
    return part.allRead ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

/// A share without a file for its part, or the other way round, is wrong usage.
std::optional<ExitStatus> shareOf(const CommandLine &line, VelkRelease::ShareNumber &number,
                                  QTextStream &err)
{
    if (line.isSet("shard") != line.isSet("out"))
        return line.wrongUsage("--shard and --out belong together", err);
    if (!line.isSet("shard"))
        return std::nullopt;
    number = VelkRelease::ShareNumber::fromText(line.value("shard"));
    if (number.isValid())
        return std::nullopt;
    return line.wrongUsage("--shard is no share such as 2/8: " + line.value("shard"), err);
}

} // namespace

ExitStatus runAssign(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("assign", description);
    addAssignOptions(line);
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    bool isNumber = false;
    const int jobs = line.value("jobs").toInt(&isNumber);
    if (!isNumber || jobs < 0)
        return line.wrongUsage("--jobs is no number: " + line.value("jobs"), err);
    if (!isDirectory(line.value("source"), err) || !isDirectory(line.value("target"), err))
        return ExitStatus::InputUnreadable;
    VelkRelease::ShareNumber share;
    if (const auto wrong = shareOf(line, share, err))
        return *wrong;
    ReleaseFile file;
    if (!share.isValid()) {
        if (const auto failed = file.lock(line, err))
            return *failed;
    }
    if (const auto failed = file.read(line, err))
        return *failed;

    line.takeAllowed();
    IndexTreeC::instance()->setCatalogRoot(line.value("target"));
    WorkerPool::instance().setThreads(jobs);
    AssignRun run(line, out, err);
    if (const auto failed = run.check(line, file.release()))
        return *failed;
    if (const auto failed = run.takeFormer(line, file.release()))
        return *failed;
    return share.isValid() ? run.runShare(line, share, file.release()) : run.run(file);
}

} // namespace velkmap
