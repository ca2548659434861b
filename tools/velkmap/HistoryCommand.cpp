#include "HistoryCommand.h"

#include "CommandLine.h"

#include <release/history/DecisionHistory.h>

#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

namespace {

using VelkRelease::DecisionHistory;

constexpr const char *historyDescription =
    "Tells who decided what about the lines of a mapping file, when and why: what the editor\n"
    "noted in the journal beside the file, in journals that were put aside, and in other\n"
    "copies that were merged into it. The oldest decision comes first.";

void writeDecision(const DecisionHistory::Decision &decision, QTextStream &out)
{
    const auto side = [](const QList<DecisionHistory::Entry> &entries) {
        return entries.isEmpty() ? QString("nothing") : DecisionHistory::text(entries);
    };
    out << decision.time.toString(Qt::ISODate) << ' ' << decision.author << ' ' << decision.path
        << ':' << decision.line;
    if (!decision.former.isEmpty() || !decision.next.isEmpty())
        out << ": " << side(decision.former) << " -> " << side(decision.next) << " ("
            << decision.action << ')';
    if (!decision.reason.isEmpty())
        out << ", reason: " << decision.reason;
    out << (decision.isSaved ? "\n" : ", not saved\n");
}

} // namespace

ExitStatus runHistory(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("history", historyDescription);
    line.addRequired("mapping", "FILE", "The mapping file.");
    line.addOptional("release", "DATE", "Only decisions about the release of this source date.");
    line.addOptional("project", "PATH", "Only lines of this project of the old release.");
    line.addOptional("line", "N", "Only this line of it.");
    line.addFlag("csv", "Prints the decisions as CSV.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    bool isNumber = false;
    const int number = line.value("line").toInt(&isNumber);
    if (line.isSet("line") && (!isNumber || number < 0))
        return line.wrongUsage("--line is no number of a line: " + line.value("line"), err);
    if (line.isSet("line") && !line.isSet("project"))
        return line.wrongUsage("--line needs --project", err);
    const QString mapping = line.value("mapping");
    DecisionHistory history;
    QString error = mapping + ": no such file";
    if (!QFileInfo(mapping).isFile() || !history.read(mapping, &error)) {
        err << "velkmap history: " << error << '\n';
        return ExitStatus::InputUnreadable;
    }
    if (line.isSet("csv"))
        out << DecisionHistory::csvHeader();
    for (const DecisionHistory::Decision &decision : history.decisions()) {
        if ((line.isSet("release") && decision.release != line.value("release")) ||
            (line.isSet("project") && decision.path != line.value("project")) ||
            (line.isSet("line") && decision.line != number))
            continue;
        if (line.isSet("csv"))
            out << DecisionHistory::csvRow(decision);
        else
            writeDecision(decision, out);
    }
    if (history.damagedRows() > 0)
        err << "velkmap history: rows of the journal that cannot be read: " << history.damagedRows()
            << '\n';
    return ExitStatus::Done;
}

} // namespace velkmap
