#include "RunCommand.h"

#include "CommandLine.h"
#include "InterruptGuard.h"
#include "LinkDbOption.h"
#include "ReleaseFile.h"

#include <script/run/ScriptSession.h>

#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

namespace {

/// False if the value is no number from 0; without a value it stays.
bool readNumber(const CommandLine &line, const QString &option, double &number)
{
    if (!line.isSet(option))
        return true;
    bool isNumber = false;
    number = line.value(option).toDouble(&isNumber);
    return isNumber && number >= 0 && number <= 1e9;
}

/// A result means that the command is over.
std::optional<ExitStatus> readLimits(const CommandLine &line, ScriptLimits &limits,
                                     QTextStream &err)
{
    double seconds = 0;
    double megabytes = 4000;
    if (!readNumber(line, "time-limit", seconds))
        return line.wrongUsage("--time-limit is no number of seconds", err);
    if (!readNumber(line, "memory-limit", megabytes))
        return line.wrongUsage("--memory-limit is no number of MB", err);
    limits.total = std::chrono::milliseconds(qint64(seconds * 1000));
    limits.bytes = qint64(megabytes * 1'000'000);
    limits.wish = &InterruptGuard::isRequested();
    return std::nullopt;
}

QString absolute(const QString &directory)
{
    return directory.isEmpty() ? QString() : QFileInfo(directory).absoluteFilePath();
}

/// Gives the session what the options name.
std::optional<ExitStatus> prepare(const CommandLine &line, ScriptSession &session, QTextStream &err)
{
    if (line.isSet("mapping")) {
        ReleaseFile file;
        if (const auto failed = file.read(line, err))
            return failed;
        session.setMapping(file.release(),
                           {absolute(line.value("source")), absolute(line.value("target"))});
    }
    QString cause;
    if (!line.isSet("output") || session.setOutput(line.value("output"), &cause))
        return std::nullopt;
    err << "velkmap run: " << line.value("output") << " cannot be written: " << cause << '\n';
    return ExitStatus::ResultUnwritable;
}

ExitStatus statusOf(const ScriptOutcome &outcome, QTextStream &err)
{
    if (outcome.state != ScriptOutcome::Done)
        err << "velkmap run: " << outcome.error.text() << '\n';
    switch (outcome.state) {
    case ScriptOutcome::Done:
        return ExitStatus(outcome.status & 0xff);
    case ScriptOutcome::Stopped:
        return ExitStatus::Interrupted;
    case ScriptOutcome::Unreadable:
        return ExitStatus::InputUnreadable;
    case ScriptOutcome::NotWritten:
        return ExitStatus::ResultUnwritable;
    case ScriptOutcome::Failed:
        break;
    }
    return ExitStatus::ScriptFailed;
}

} // namespace

ExitStatus runScript(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("run",
                     "Runs a script, which is given the words behind its file as args. It\n"
                     "reads what the options name, prints, and writes the output file, which\n"
                     "is complete or absent.");
    line.addWords("FILE", "The script, then its arguments; those that begin with - behind \"--\".");
    line.addOptional("mapping", "FILE", "The mapping file that the script has as 'mapping'.");
    line.addOptional("release", "DATE",
                     "Source date of its release; the last one of the file by default.");
    line.addOptional("source", "ROOT", "Directory that holds the old release's catalog.");
    line.addOptional("target", "ROOT", "Directory that holds the new release's catalog.");
    line.addOptional("output", "FILE", "The file that the script may write, as 'output'.");
    line.addOptional("time-limit", "SECONDS",
                     "Ends a script that takes longer; reading of files does not count.");
    line.addOptional("memory-limit", "MB", "Ends a script that takes more.", "4000");
    LinkDbOption::add(line);
    line.addAllowed();
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    if (line.words().isEmpty())
        return line.wrongUsage("which script?", err);
    const InterruptGuard guard;
    ScriptLimits limits;
    if (const auto over = readLimits(line, limits, err))
        return *over;
    line.takeAllowed();
    LinkDbOption linkDb;
    if (const auto over = linkDb.open(line, err))
        return *over;
    ScriptSession session;
    if (const auto over = prepare(line, session, err))
        return *over;
    session.setArguments(line.words().mid(1));
    session.engine().setLimits(limits);
    session.engine().setPrinter([&out](const QString &text) { out << text << '\n'; });
    session.engine().setBreath([&out] { out.flush(); });
    const ScriptOutcome outcome = session.runFile(line.words().constFirst());
    out.flush();
    return statusOf(outcome, err);
}

} // namespace velkmap
