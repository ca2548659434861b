#include "SearchCommand.h"

#include "CommandLine.h"
#include "counted.h"
#include "InterruptGuard.h"
#include "TerminalProgress.h"
#include <core/json/JsonWriter.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/search/CatalogIndex.h>
#include <geomcore/search/CatalogSearch.h>

#include <QTextStream>

#include <optional>

namespace velkmap {

namespace {

/// Texts of files on one row of the output, whatever is in them.
QString oneRow(const QString &text)
{
    QString row = text;
    for (QChar &c : row) {
        if (c.category() == QChar::Other_Control)
            c = u' ';
    }
    return row;
}

void writeRows(const CatalogSearchResult &result, QTextStream &out)
{
    for (const CatalogSearchHit &hit : result.hits) {
        out << oneRow(hit.path) << "  " << oneRow(hit.title);
        if (hit.lineCount >= 0)
            out << "  (" << counted(hit.lineCount, "line");
        if (hit.lineCount >= 0 && hit.matchingLines >= 0)
            out << ", " << hit.matchingLines << " found";
        out << (hit.lineCount >= 0 ? ")\n" : "\n");
        for (const CatalogSearchLine &line : hit.lines)
            out << "    " << line.lineNumber << ": " << oneRow(line.text) << '\n';
    }
}

const char *nameOf(CatalogSearchState state)
{
    switch (state) {
    case CatalogSearchState::Found:
        return "found";
    case CatalogSearchState::NothingFound:
        return "nothingFound";
    case CatalogSearchState::IndexBuilding:
        return "indexBuilding";
    case CatalogSearchState::IndexMissing:
        return "indexMissing";
    case CatalogSearchState::Failed:
        return "failed";
    case CatalogSearchState::Cancelled:
        return "cancelled";
    }
    return "";
}

void writeHit(JsonWriter &json, const CatalogSearchHit &hit)
{
    json.beginObject();
    json.key("path");
    json.value(hit.path);
    json.key("title");
    json.value(hit.title);
    json.key("normNumber");
    json.value(hit.normNumber);
    json.key("lines");
    json.value(hit.lineCount);
    json.key("matchingLines");
    json.value(hit.matchingLines);
    json.key("firstLines");
    json.beginArray();
    for (const CatalogSearchLine &line : hit.lines) {
        json.beginObject();
        json.key("line");
        json.value(line.lineNumber);
        json.key("text");
        json.value(line.text);
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

void writeJson(const CatalogSearchResult &result, QTextStream &out)
{
    JsonWriter json(JsonWriter::Indented);
    json.beginObject();
    json.key("state");
    json.value(nameOf(result.state));
    json.key("hasMore");
    json.value(result.hasMore);
    json.key("projects");
    json.beginArray();
    for (const CatalogSearchHit &hit : result.hits)
        writeHit(json, hit);
    json.endArray();
    json.endObject();
    out << QString::fromUtf8(json.take());
}

/// One run of the command.
class SearchCommand
{
public:
    SearchCommand(const QString &index, const QString &root, QTextStream &err)
        : m_index(index)
        , m_root(root)
        , m_err(err)
    {
    }

    /// A result means that the command is over.
    std::optional<ExitStatus> update(bool anew);
    CatalogSearchResult search(const CatalogSearchQuery &query);
    ExitStatus statusOf(const CatalogSearchResult &result);

private:
    const QString m_index;
    const QString m_root;
    QTextStream &m_err;
};

std::optional<ExitStatus> SearchCommand::update(bool anew)
{
    CatalogIndexUpdate update(m_index, m_root);
    if (anew)
        update.setMakesAnew();
    TerminalProgress progress;
    const CatalogIndexOutcome outcome =
        update.run(CatalogIndexUpdate::Files, [&progress](int done, int total) {
            if (total > 0)
                progress.showProjects(done, total);
            return !InterruptGuard::isRequested();
        });
    for (const QString &directory : outcome.unreadable)
        m_err << directory << ": the directory cannot be read\n";
    switch (outcome.state) {
    case CatalogIndexOutcome::Done:
        return std::nullopt;
    case CatalogIndexOutcome::Cancelled:
        return ExitStatus::Interrupted;
    case CatalogIndexOutcome::Busy:
        m_err << "velkmap search: another program brings the index up to date; it is searched as "
                 "it is\n";
        return std::nullopt;
    case CatalogIndexOutcome::RootUnreadable:
        m_err << "velkmap search: " << outcome.errorText << '\n';
        return ExitStatus::InputUnreadable;
    case CatalogIndexOutcome::Failed:
        break;
    }
    m_err << "velkmap search: the index could not be written: " << outcome.errorText << '\n';
    return ExitStatus::ResultUnwritable;
}

CatalogSearchResult SearchCommand::search(const CatalogSearchQuery &query)
{
    return CatalogSearch(m_index, m_root).run(query, &InterruptGuard::isRequested());
}

ExitStatus SearchCommand::statusOf(const CatalogSearchResult &result)
{
    switch (result.state) {
    case CatalogSearchState::Found:
        return ExitStatus::Done;
    case CatalogSearchState::NothingFound:
        m_err << "velkmap search: nothing was found\n";
        return ExitStatus::NothingFound;
    case CatalogSearchState::IndexBuilding:
        m_err << "velkmap search: the index is not complete yet; what it has so far was searched\n";
        return ExitStatus::IndexBuilding;
    case CatalogSearchState::Cancelled:
        return ExitStatus::Interrupted;
    case CatalogSearchState::IndexMissing:
        m_err << "velkmap search: there is no index of this root in " << m_index << '\n';
        return ExitStatus::InputUnreadable;
    case CatalogSearchState::Failed:
        break;
    }
    m_err << "velkmap search: the index could not be read: " << result.errorText << '\n';
    return ExitStatus::InputUnreadable;
}

/// False if the value is no number from 0.
bool readCount(const CommandLine &line, const QString &option, int &count)
{
    bool isNumber = false;
    count = line.value(option).toInt(&isNumber);
    return isNumber && count >= 0;
}

} // namespace

ExitStatus runSearch(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line(
        "search", "Finds projects that have all words in their path, title, norm numbers,\n"
                  "designations or table, and a line that fulfils all conditions. An index makes\n"
                  "that fast; it is made, and brought up to date, on the way.");
    line.addWords("WORD", "Begins of words to be found; case and accents do not count.");
    line.addOptional("root", "ROOT", "Folder that holds the catalogs.",
                     IndexTreeC::instance()->catalogRoot().native());
    line.addOptional("where", "\"VAR OP VALUE\"",
                     "Condition for a line, may be repeated. OP: = != < <= > >= ~ (contains) ^\n"
                     "(begins with); = takes a range too: \"L = 10..20\".");
    line.addOptional("below", "PATH", "Only below CATALOG/FOLDER; may be repeated.");
    line.addOptional("limit", "N", "At most so many projects; 0: all.", "200");
    line.addOptional("lines", "N", "So many of the lines of each project.", "3");
    line.addFlag("json", "Prints the projects as JSON.");
    line.addOptional("index", "FILE", "Where the index is kept; else in the user's cache.");
    line.addFlag("no-update", "Searches the index as it is.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    CatalogSearchQuery query;
    query.text = line.words().join(' ');
    query.below = line.values("below");
    if (!readCount(line, "limit", query.limit))
        return line.wrongUsage("--limit is no number", err);
    if (!readCount(line, "lines", query.linesPerHit))
        return line.wrongUsage("--lines is no number", err);
    for (const QString &text : line.values("where")) {
        QString error;
        const auto condition = CatalogSearchCondition::parse(text, &error);
        if (!condition)
            return line.wrongUsage("--where: " + error, err);
        query.conditions.append(*condition);
    }
    if (query.isEmpty())
        return line.wrongUsage("there is nothing to look for", err);
    const InterruptGuard guard;
    const QString root = line.value("root");
    const QString index = line.value("index");
    SearchCommand command(index.isEmpty() ? CatalogIndex::standardFile(root) : index, root, err);
    const bool updates = !line.isSet("no-update");
    if (updates) {
        if (const auto over = command.update(false))
            return *over;
    }
    CatalogSearchResult result = command.search(query);
    if (result.isDamaged && updates) {
        if (const auto over = command.update(true))
            return *over;
        result = command.search(query);
    }
    if (line.isSet("json"))
        writeJson(result, out);
    else
        writeRows(result, out);
    if (result.hasMore)
        err << "velkmap search: there are more; --limit 0 shows all\n";
    return command.statusOf(result);
}

} // namespace velkmap
