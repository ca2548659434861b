#include "ReviewCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "InterruptGuard.h"
#include "ReleaseFile.h"

#include <core/json/JsonWriter.h>
#include <release/neighbour/ReleaseNeighbours.h>
#include <release/pattern/DifferencePatterns.h>
#include <release/pattern/ReplacementEvidence.h>

#include <QTextStream>

#include <cmath>

namespace velkmap {

namespace {

using VelkRelease::DifferencePatterns;
using VelkRelease::GoneGroup;
using VelkRelease::NeighbourFinding;
using VelkRelease::ReleaseNeighbours;
using VelkRelease::ReplacementEvidence;
using VelkRelease::ValueChange;

constexpr int Examples = 3;

constexpr const char *ReviewDescription =
    "Groups the open lines of a release mapping by how they differ from the lines that are\n"
    "proposed for them: lines, projects, mean probability, exceptions (lines with the same\n"
    "differences and others besides), three examples. Then those without a successor by what\n"
    "they have in common: a folder, a project, a value that no new line has. Changes nothing.\n"
    "Then what was agreed to about values, with the lines that support it and those that do\n"
    "not. Then where the assignments of neighbours do not fit each other (lines that are\n"
    "shifted, swapped, skipped, taken twice), with what would mend it.";

/// What the command tells.
struct ReviewReport
{
    const ReleaseMappingC &release;
    const DifferencePatterns &patterns;
    const ReleaseNeighbours &neighbours;
    QList<ReplacementEvidence> evidence; ///< of the release's replacements
};

QString doubtText(const DifferencePatterns &patterns, int pattern, const QString &text)
{
    return patterns.isDoubtful(pattern) ? QStringLiteral("in doubt: ") + text : text;
}

QString patternText(const DifferencePatterns &patterns, int pattern)
{
    if (const auto &gone = patterns.gone(pattern))
        return doubtText(patterns, pattern, gone->text(goneWords()));
    if (!patterns.isComparable(pattern))
        return QStringLiteral("cannot be compared");
    QStringList texts;
    for (const ValueChange &change : patterns.changes(pattern))
        texts << change.text(changeWords());
    return doubtText(patterns, pattern,
                     texts.isEmpty() ? QStringLiteral("no difference") : texts.join("; "));
}

QString placeText(const ReleaseMappingC &release, const DifferencePatterns::Place &place)
{
    return release.mappingAt(place.project).getSourcePath() + u':' + QString::number(place.line);
}

QString replacementText(const AgreedReplacement &replacement)
{
    ValueChange change;
    change.variable = replacement.variable;
    change.kind = replacement.isNumeric() ? ValueChange::NumberMap : ValueChange::Replacement;
    change.before = replacement.before;
    change.after = replacement.after;
    change.factor = replacement.isNumeric() ? replacement.factor.toDouble() : 1;
    change.offset = replacement.offset.toDouble();
    return change.text(changeWords());
}

QString stepsText(int steps)
{
    const int count = std::abs(steps);
    return QString::number(count) + (count == 1 ? " line too far " : " lines too far ") +
           (steps > 0 ? "down" : "up");
}

QString findingText(const NeighbourFinding &finding)
{
    const QString first = QString::number(finding.firstLine);
    const QString last = QString::number(finding.lastLine);
    switch (finding.kind) {
    case NeighbourFinding::Shifted:
        return "lines " + first + " to " + last + " are shifted, " + stepsText(finding.steps);
    case NeighbourFinding::Swapped:
        return "lines " + first + " and " + last + " are swapped";
    case NeighbourFinding::Misplaced:
        return "line " + first + " is misplaced, " + stepsText(finding.steps);
    case NeighbourFinding::TakenTwice:
        return "line " + first + " has the target line of another one, which it is unlike";
    case NeighbourFinding::Skipped:
        break;
    }
    return "line " + first + " is skipped, and a line that fits is free";
}

QString repairsText(const NeighbourFinding &finding)
{
    QStringList texts;
    for (const NeighbourFinding::Repair &repair : finding.repairs) {
        if (texts.size() == Examples) {
            texts << QStringLiteral("...");
            break;
        }
        texts << QString::number(repair.line) + QStringLiteral(" \u2192 ") +
                     (repair.targetLine == -1 ? QStringLiteral("open")
                                              : QString::number(repair.targetLine));
    }
    return texts.join(", ");
}

void writeNeighbours(const ReviewReport &report, QTextStream &out)
{
    for (const ReleaseNeighbours::Place &place : report.neighbours.places)
        out << report.release.mappingAt(place.project).getSourcePath() << ": "
            << findingText(place.finding) << "; mended: " << repairsText(place.finding) << '\n';
    out << report.neighbours.checkedLines
        << " assigned lines were looked at beside their neighbours, "
        << report.neighbours.places.size() << " places do not fit\n";
}

void writePatterns(const ReviewReport &report, const std::vector<int> &ranked, const char *head,
                   QTextStream &out)
{
    const DifferencePatterns &patterns = report.patterns;
    if (!ranked.empty())
        out << "     lines  projects  probability  exceptions  " << head << '\n';
    for (const int pattern : ranked) {
        const DifferencePatterns::Numbers numbers = patterns.numbers(pattern);
        out << QString::number(numbers.lines).rightJustified(10)
            << QString::number(numbers.projects).rightJustified(10)
            << QString::number(numbers.probability, 'f', 2).rightJustified(13)
            << QString::number(numbers.exceptions).rightJustified(12) << "  "
            << patternText(patterns, pattern) << '\n';
        QStringList examples;
        for (const DifferencePatterns::Place &place : patterns.places(pattern, Examples))
            examples << placeText(report.release, place);
        out << QString(47, u' ') << examples.join(", ") << '\n';
    }
}

void writeTable(const ReviewReport &report, QTextStream &out)
{
    const DifferencePatterns &patterns = report.patterns;
    const std::vector<int> ranked = patterns.ranked();
    const std::vector<int> gone = patterns.rankedGone();
    writePatterns(report, ranked, "differences", out);
    writePatterns(report, gone, "without a successor", out);
    for (qsizetype i = 0; i < report.evidence.size(); ++i) {
        const AgreedReplacement replacement = report.release.getReplacements().at(i);
        out << "agreed" << (replacement.folder.isEmpty() ? QString() : " in " + replacement.folder)
            << ": " << replacementText(replacement) << ", " << report.evidence[i].supports
            << " lines support it, " << report.evidence[i].counterExamples << " do not\n";
    }
    out << patterns.openLines() << " open lines with a proposal differ in " << ranked.size()
        << " ways\n";
    if (!gone.empty())
        out << patterns.goneLines() << " open lines have no successor, in " << gone.size()
            << " groups\n";
    writeNeighbours(report, out);
}

double rounded(double probability)
{
    return std::round(probability * 1e4) / 1e4;
}

void writeText(JsonWriter &json, std::string_view name, const QString &text)
{
    json.key(name);
    json.value(QStringView(text));
}

void writeChange(JsonWriter &json, const ValueChange &change)
{
    static constexpr const char *kinds[] = {"replacement", "numberMap", "nearNumber", "otherNumber",
                                            "wording",     "notation",  "added",      "missing",
                                            "project",     "changed",   "further"};
    json.beginObject();
    writeText(json, "variable", change.variable);
    json.key("kind");
    json.value(kinds[change.kind]);
    const bool isRename = change.kind == ValueChange::Project && change.before != change.after;
    if (change.kind == ValueChange::Replacement || isRename) {
        writeText(json, "before", change.before);
        writeText(json, "after", change.after);
    } else if (change.kind == ValueChange::NumberMap) {
        writeText(json, "factor", QString::number(change.factor, 'g', 6));
        writeText(json, "offset", QString::number(change.offset, 'g', 6));
    }
    json.key("agreed");
    json.value(change.agreed);
    json.endObject();
}

void writePlaces(JsonWriter &json, const ReleaseMappingC &release,
                 const std::vector<DifferencePatterns::Place> &places)
{
    json.beginArray(true);
    for (const DifferencePatterns::Place &place : places)
        json.value(QStringView(placeText(release, place)));
    json.endArray();
}

void writeNumbers(JsonWriter &json, const DifferencePatterns::Numbers &numbers)
{
    json.key("lines");
    json.value(numbers.lines);
    json.key("projects");
    json.value(numbers.projects);
    json.key("probability");
    json.value(rounded(numbers.probability));
}

void writePattern(JsonWriter &json, const ReviewReport &report, int pattern)
{
    const DifferencePatterns::Numbers numbers = report.patterns.numbers(pattern);
    json.beginObject();
    writeText(json, "text", patternText(report.patterns, pattern));
    json.key("comparable");
    json.value(report.patterns.isComparable(pattern));
    json.key("doubtful");
    json.value(report.patterns.isDoubtful(pattern));
    json.key("changes");
    json.beginArray();
    for (const ValueChange &change : report.patterns.changes(pattern))
        writeChange(json, change);
    json.endArray();
    writeNumbers(json, numbers);
    json.key("exceptions");
    json.value(numbers.exceptions);
    json.key("examples");
    writePlaces(json, report.release, report.patterns.places(pattern, Examples));
    json.endObject();
}

void writeGone(JsonWriter &json, const ReviewReport &report, int pattern)
{
    const DifferencePatterns::Numbers numbers = report.patterns.numbers(pattern);
    const VelkRelease::GoneGroup &group = *report.patterns.gone(pattern);
    json.beginObject();
    writeText(json, "text", patternText(report.patterns, pattern));
    writeText(json, "kind", group.key());
    if (group.kind == VelkRelease::GoneGroup::Value) {
        writeText(json, "variable", group.variable);
        writeText(json, "value", group.value);
    } else {
        writeText(json, "place", group.place);
    }
    json.key("doubtful");
    json.value(report.patterns.isDoubtful(pattern));
    writeNumbers(json, numbers);
    json.key("examples");
    writePlaces(json, report.release, report.patterns.places(pattern, Examples));
    json.endObject();
}

void writeNeighbours(JsonWriter &json, const ReviewReport &report)
{
    static constexpr const char *kinds[] = {"shifted", "swapped", "misplaced", "takenTwice",
                                            "skipped"};
    json.key("checkedLines");
    json.value(report.neighbours.checkedLines);
    json.key("neighbours");
    json.beginArray();
    for (const auto &[project, finding] : report.neighbours.places) {
        const PrjMappingC mapping = report.release.mappingAt(project);
        json.beginObject();
        writeText(json, "project", mapping.getSourcePath());
        json.key("kind");
        json.value(kinds[finding.kind]);
        json.key("firstLine");
        json.value(finding.firstLine);
        json.key("lastLine");
        json.value(finding.lastLine);
        json.key("steps");
        json.value(finding.steps);
        json.key("repairs");
        json.beginArray();
        for (const NeighbourFinding::Repair &repair : finding.repairs) {
            json.beginObject();
            json.key("line");
            json.value(repair.line);
            writeText(json, "targetPath", mapping.targetAt(repair.target).getTargetPath());
            json.key("targetLine");
            json.value(repair.targetLine);
            json.endObject();
        }
        json.endArray();
        json.endObject();
    }
    json.endArray();
}

void writeJson(const ReviewReport &report, QTextStream &out)
{
    JsonWriter json(JsonWriter::Indented);
    json.beginObject();
    writeText(json, "sourceDate", report.release.getSourceDate());
    writeText(json, "targetDate", report.release.getTargetDate());
    json.key("openLines");
    json.value(report.patterns.openLines());
    json.key("patterns");
    json.beginArray();
    for (const int pattern : report.patterns.ranked())
        writePattern(json, report, pattern);
    json.endArray();
    json.key("goneLines");
    json.value(report.patterns.goneLines());
    json.key("gone");
    json.beginArray();
    for (const int pattern : report.patterns.rankedGone())
        writeGone(json, report, pattern);
    json.endArray();
    json.key("agreed");
    json.beginArray();
    for (qsizetype i = 0; i < report.evidence.size(); ++i) {
        const AgreedReplacement replacement = report.release.getReplacements().at(i);
        json.beginObject();
        writeText(json, "text", replacementText(replacement));
        writeText(json, "folder", replacement.folder);
        json.key("supports");
        json.value(report.evidence[i].supports);
        json.key("counterExamples");
        json.value(report.evidence[i].counterExamples);
        json.endObject();
    }
    json.endArray();
    writeNeighbours(json, report);
    json.endObject();
    out << QString::fromUtf8(json.take());
}

} // namespace

const ValueChange::Words &changeWords()
{
    static const ValueChange::Words words{"near number",    "other number",
                                          "other wording",  "value added",
                                          "value missing",  "other spelling",
                                          "project's name", "another one",
                                          "another value",  "and others that many lines have"};
    return words;
}

const GoneGroup::Words &goneWords()
{
    static const GoneGroup::Words words{
        "whole folder without target: %1", "whole project without target: %1",
        "target project is gone: %1", "%1: %2 is gone", "no similar line: %1"};
    return words;
}

ExitStatus runReview(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("review", ReviewDescription);
    ReleaseFile::addOptions(line);
    CatalogRoots::addOptions(line);
    line.addOptional("project", "PATH", "Source path of a project to look at; may be repeated.");
    line.addFlag("json", "Prints the patterns as JSON.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    CatalogRoots roots;
    if (const auto failed = roots.take(line, "review", err))
        return *failed;
    const ReleaseMappingC &release = file.release();
    const QStringList projects = line.values("project");
    for (const QString &project : projects) {
        bool known = false;
        for (int i = 0; i < release.countMappings() && !known; ++i)
            known = release.mappingAt(i).getSourcePath() == project;
        if (!known)
            return line.wrongUsage("the mapping has no project " + project, err);
    }
    const InterruptGuard guard;
    const auto wanted = [&](int i) {
        return projects.isEmpty() || projects.contains(release.mappingAt(i).getSourcePath());
    };
    const auto patterns =
        DifferencePatterns::compute(roots.source(), release, InterruptGuard::isRequested(), wanted);
    if (!patterns)
        return ExitStatus::Interrupted;
    const auto neighbours =
        ReleaseNeighbours::compute(roots.source(), release, InterruptGuard::isRequested(), wanted);
    if (!neighbours)
        return ExitStatus::Interrupted;
    ReviewReport report{release, *patterns, *neighbours, {}};
    for (const AgreedReplacement &replacement : release.getReplacements()) {
        const auto evidence = VelkRelease::replacementEvidence(roots.source(), release, replacement,
                                                               InterruptGuard::isRequested());
        if (!evidence)
            return ExitStatus::Interrupted;
        report.evidence.append(*evidence);
    }
    QStringList errors = patterns->errors() + neighbours->errors;
    errors.removeDuplicates();
    for (const QString &error : errors)
        err << "velkmap review: " << error << '\n';
    if (line.isSet("json"))
        writeJson(report, out);
    else
        writeTable(report, out);
    return errors.isEmpty() ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

} // namespace velkmap
