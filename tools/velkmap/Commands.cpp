#include "Commands.h"

#include "AssignCommand.h"
#include "ChainCommand.h"
#include "CreateCommand.h"
#include "ExplainCommand.h"
#include "ExportCommand.h"
#include "HistoryCommand.h"
#include "ImportCommand.h"
#include "JoinCommand.h"
#include "LinkCommand.h"
#include "MergeCommand.h"
#include "ProofCommand.h"
#include "ReportCommand.h"
#include "ReviewCommand.h"
#include "RunCommand.h"
#include "SearchCommand.h"
#include "ShareCommand.h"
#include "StatsCommand.h"

#include <core/Version.h>

#include <QTextStream>

#include <algorithm>

namespace velkmap {

namespace {

void printHelp(QTextStream &out)
{
    out << "Usage: velkmap COMMAND [options]\n"
           "Carries the table lines of a catalog release over to the next release.\n\n"
           "Commands:\n";
    for (const Command &command : commands())
        out << "  " << command.name.leftJustified(9) << command.summary << '\n';
    out << "\n'velkmap COMMAND --help' tells a command's options; 'velkmap --version' the "
           "version.\n"
           "\nExit status:\n";
    for (const auto &[status, text] : exitStatusTexts)
        out << QString::number(int(status)).rightJustified(5) << "  " << text << '\n';
}

} // namespace

const QList<Command> &commands()
{
    static const QList<Command> list = {
        {"import", "makes a catalog of a folder tree of CSV tables", runImport},
        {"create", "writes a release mapping with the targets of each old project", runCreate},
        {"assign", "assigns the lines of a release mapping", runAssign},
        {"join", "puts the parts of several machines together", runJoin},
        {"merge", "merges two changed copies of a mapping file", runMerge},
        {"share", "shares a mapping file with others, and tells who works on it", runShare},
        {"update", "merges what others published into a shared mapping file", runUpdate},
        {"publish", "makes a shared mapping file the newest shared copy", runPublish},
        {"chain", "writes the mapping over two that follow each other", runChain},
        {"stats", "counts the lines by their state", runStats},
        {"export", "writes a release mapping as a CSV file", runExport},
        {"review", "groups the open lines by how they differ from their proposals", runReview},
        {"explain", "tells why a line is assigned so, and its other candidates", runExplain},
        {"report", "writes how far a release is as a page of HTML", runReport},
        {"history", "tells who decided what about lines, when and why", runHistory},
        {"link", "writes the confirmed assignments into a link database", runLink},
        {"proof", "tells which numbers of a link database are in a bad place", runProof},
        {"search", "finds projects by words and by values of their tables", runSearch},
        {"run", "runs a script over mappings and tables", runScript},
    };
    return list;
}

ExitStatus run(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    if (arguments.isEmpty()) {
        printHelp(err);
        return ExitStatus::WrongUsage;
    }
    const QString &name = arguments.first();
    if (name == "--help" || name == "-h" || name == "help") {
        printHelp(out);
        return ExitStatus::Done;
    }
    if (name == "--version") {
        out << "velkmap " << velkVersion() << '\n';
        return ExitStatus::Done;
    }
    const auto &list = commands();
    const auto found =
        std::ranges::find_if(list, [&](const Command &command) { return command.name == name; });
    if (found == list.end()) {
        err << "velkmap: there is no command '" << name << "'\nTry 'velkmap --help'.\n";
        return ExitStatus::WrongUsage;
    }
    return found->run(arguments.mid(1), out, err);
}

ExitStatus finish(ExitStatus status, QTextStream &out, QTextStream &err)
{
    out.flush();
    if (out.status() == QTextStream::Ok)
        return status;
    err << "velkmap: standard output cannot be written\n";
    err.flush();
    return ExitStatus::ResultUnwritable;
}

} // namespace velkmap
