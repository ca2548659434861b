#include "ExplainCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "ReleaseFile.h"

#include <core/json/JsonWriter.h>
#include <release/decide/RangeCoverage.h>
#include <release/pattern/LineComparer.h>

#include <QTextStream>

#include <cmath>

namespace velkmap {

namespace {

using VelkRelease::LineComparer;
using VelkRelease::RangeCoverage;

constexpr const char *ExplainDescription =
    "Tells of one source line where it is assigned to, the old and the new value of each\n"
    "variable, and the lines that it may have become, with their probability and what speaks\n"
    "for and against each; of a line whose value ranges are divided, which of the old values\n"
    "have a new line, which have none and which have several. Changes nothing.";

/// At most so many values are named in a text; JSON has all.
constexpr int namedValues = 20;

/// What is known of the line.
struct ExplainReport
{
    QString path;
    int line = -1;
    QString designation;
    QString target;      ///< path of the target that holds the line; empty if none does
    int targetLine = -1; ///< -1: none
    int state = 0;
    std::optional<LineComparer::Pair> assigned;
    LineCandidatesC candidates;
    RangeCoverage coverage;
};

constexpr const char *stateNames[] = {"to check", "assigned by the program", "confirmed"};
constexpr const char *outcomeNames[] = {"equal", "replaced", "near", "different", "missing"};

void setStanding(ExplainReport &report, const PrjMappingC &mapping)
{
    const int index = report.assigned ? report.assigned->target : -1;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC target = mapping.findTarget(i);
        if (!target.containsLine(report.line) || (index >= 0 && i != index))
            continue;
        const PrjMappingTargetLineC entry = target.getMappedLine(report.line);
        report.target = target.getTargetPath();
        report.targetLine = entry.getTargetLineId();
        report.state = int(entry.getState());
        return;
    }
}

void writeVariables(const QList<ComparedVariableC> &variables, const QString &indent,
                    QTextStream &out)
{
    for (const bool equal : {false, true}) {
        for (const ComparedVariableC &variable : variables) {
            if ((variable.outcome == ComparedVariableC::Equal) != equal)
                continue;
            out << indent << QString::fromLatin1(outcomeNames[variable.outcome]).leftJustified(10)
                << variable.name << ": " << variable.oldValue;
            if (!equal)
                out << QStringLiteral(" \u2192 ") << variable.newValue;
            if (variable.supports > 0)
                out << "  (alike in " << variable.supports << " other lines)";
            out << '\n';
        }
    }
}

QString someOf(const QStringList &values)
{
    if (values.size() <= namedValues)
        return values.join(QStringLiteral(" | "));
    return values.first(namedValues).join(QStringLiteral(" | ")) +
           QStringLiteral(" and %1 more").arg(values.size() - namedValues);
}

/// Nothing of a line whose ranges no text divides.
void writeText(const RangeCoverage &coverage, QTextStream &out)
{
    if (coverage.isEmpty())
        return;
    const QStringList missing = coverage.missing();
    out << "values of " << coverage.variables.join(", ") << ": "
        << coverage.values.size() - missing.size() << " of " << coverage.values.size()
        << " have a new line\n";
    const auto row = [&](const char *name, const QStringList &values) {
        if (!values.isEmpty())
            out << "  " << QString::fromLatin1(name).leftJustified(10) << someOf(values) << '\n';
    };
    row("missing", missing);
    row("several", coverage.twice());
    row("unknown", coverage.strange);
}

void writeText(const ExplainReport &report, QTextStream &out)
{
    out << report.path << ':' << report.line;
    if (!report.designation.isEmpty())
        out << "  " << report.designation;
    out << '\n';
    if (report.targetLine < 0) {
        out << (report.state == 2 ? "confirmed to have no successor\n" : "not assigned\n");
    } else {
        out << "assigned to " << report.target << ':' << report.targetLine << ", "
            << (report.state <= 2 ? stateNames[report.state] : "state unknown");
        if (report.assigned && report.assigned->probability > 0)
            out << ", probability " << QString::number(report.assigned->probability, 'f', 2);
        out << '\n';
        if (report.assigned)
            writeVariables(report.assigned->variables, "  ", out);
    }
    writeText(report.coverage, out);
    out << "candidates\n";
    for (const LineCandidateC &candidate : report.candidates.candidates)
        out << "  " << QString::number(candidate.probability, 'f', 2) << "  "
            << candidate.targetPath << ':' << candidate.lineId.value(0) << "  "
            << candidate.explanation << '\n';
    out << "  " << QString::number(report.candidates.noSuccessor, 'f', 2) << "  no successor\n";
    out << report.candidates.explanation << '\n';
}

double roundedShare(double probability)
{
    return std::round(probability * 1e4) / 1e4;
}

void write(JsonWriter &json, std::string_view name, const QString &text)
{
    json.key(name);
    json.value(QStringView(text));
}

void writeVariables(JsonWriter &json, const QList<ComparedVariableC> &variables)
{
    json.key("variables");
    json.beginArray();
    for (const ComparedVariableC &variable : variables) {
        json.beginObject();
        write(json, "name", variable.name);
        write(json, "old", variable.oldValue);
        write(json, "new", variable.newValue);
        json.key("outcome");
        json.value(outcomeNames[variable.outcome]);
        json.key("supports");
        json.value(variable.supports);
        json.endObject();
    }
    json.endArray();
}

void writeJson(const RangeCoverage &coverage, JsonWriter &json)
{
    const auto list = [&](std::string_view name, const QStringList &values) {
        json.key(name);
        json.beginArray();
        for (const QString &value : values)
            json.value(QStringView(value));
        json.endArray();
    };
    json.key("ranges");
    json.beginObject();
    list("variables", coverage.variables);
    json.key("values");
    json.value(int(coverage.values.size()));
    list("missing", coverage.missing());
    list("several", coverage.twice());
    list("unknown", coverage.strange);
    json.endObject();
}

void writeJson(const ExplainReport &report, QTextStream &out)
{
    JsonWriter json(JsonWriter::Indented);
    json.beginObject();
    write(json, "sourcePath", report.path);
    json.key("sourceLine");
    json.value(report.line);
    write(json, "designation", report.designation);
    write(json, "targetPath", report.target);
    json.key("targetLine");
    json.value(report.targetLine);
    json.key("state");
    json.value(report.state);
    if (report.assigned) {
        json.key("probability");
        json.value(roundedShare(report.assigned->probability));
        write(json, "reason", report.assigned->reason);
        writeVariables(json, report.assigned->variables);
    }
    if (!report.coverage.isEmpty())
        writeJson(report.coverage, json);
    json.key("candidates");
    json.beginArray();
    for (const LineCandidateC &candidate : report.candidates.candidates) {
        json.beginObject();
        write(json, "targetPath", candidate.targetPath);
        json.key("targetLine");
        json.value(candidate.lineId.value(0));
        json.key("probability");
        json.value(roundedShare(candidate.probability));
        write(json, "reason", candidate.explanation);
        writeVariables(json, candidate.variables);
        json.endObject();
    }
    json.endArray();
    json.key("noSuccessor");
    json.value(roundedShare(report.candidates.noSuccessor));
    write(json, "explanation", report.candidates.explanation);
    json.endObject();
    out << QString::fromUtf8(json.take());
}

/// The first one of the path, as everywhere.
PrjMappingC mappingOf(const ReleaseMappingC &release, const QString &path)
{
    for (int i = 0; i < release.countMappings(); ++i) {
        if (release.mappingAt(i).getSourcePath() == path)
            return release.mappingAt(i);
    }
    return {};
}

} // namespace

ExitStatus runExplain(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("explain", ExplainDescription);
    ReleaseFile::addOptions(line);
    line.addRequired("line", "PATH:LINE", "Source path of the project, and number of the line.");
    CatalogRoots::addOptions(line);
    line.addFlag("json", "Prints what is known as JSON.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    const QString place = line.value("line");
    const qsizetype colon = place.lastIndexOf(u':');
    bool isNumber = false;
    ExplainReport report;
    report.path = place.left(qMax(qsizetype(0), colon));
    report.line = place.mid(colon + 1).toInt(&isNumber);
    if (colon < 1 || !isNumber)
        return line.wrongUsage("--line needs PATH:LINE, not " + place, err);
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    CatalogRoots roots;
    if (const auto failed = roots.take(line, "explain", err))
        return *failed;
    const PrjMappingC mapping = mappingOf(file.release(), report.path);
    if (!mapping.isValid())
        return line.wrongUsage("the mapping has no project " + report.path, err);
    LineComparer comparer(roots.source(), mapping, file.release());
    for (const QString &error : comparer.errors())
        err << "velkmap explain: " << error << '\n';
    if (!comparer.isValid())
        return ExitStatus::InputUnreadable;
    if (!comparer.hasLine(report.line))
        return line.wrongUsage(report.path + " has no line " + QString::number(report.line), err);
    report.designation = comparer.designation(report.line);
    report.assigned = comparer.assigned(report.line);
    report.candidates = comparer.candidates(report.line);
    report.coverage = comparer.coverage(report.line);
    setStanding(report, mapping);
    if (line.isSet("json"))
        writeJson(report, out);
    else
        writeText(report, out);
    return comparer.errors().isEmpty() ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

} // namespace velkmap
