#include "ReviewJson.h"

#include "ReviewReport.h"

#include <core/json/JsonWriter.h>

#include <QTextStream>

#include <cmath>

namespace velkmap {

namespace {

using VelkRelease::DifferencePatterns;
using VelkRelease::NeighbourFinding;
using VelkRelease::ValueChange;

double rounded(double probability)
{
    return std::round(probability * 1e4) / 1e4;
}

const char *nameOf(ValueChange::Kind kind)
{
    switch (kind) {
    case ValueChange::Replacement:
        return "replacement";
    case ValueChange::NumberMap:
        return "numberMap";
    case ValueChange::NearNumber:
        return "nearNumber";
    case ValueChange::OtherNumber:
        return "otherNumber";
    case ValueChange::Wording:
        return "wording";
    case ValueChange::Notation:
        return "notation";
    case ValueChange::Added:
        return "added";
    case ValueChange::Missing:
        return "missing";
    case ValueChange::Project:
        return "project";
    case ValueChange::Changed:
        return "changed";
    case ValueChange::AnyOf:
        break;
    }
    return "anyOf";
}

const char *nameOf(NeighbourFinding::Kind kind)
{
    switch (kind) {
    case NeighbourFinding::Shifted:
        return "shifted";
    case NeighbourFinding::Swapped:
        return "swapped";
    case NeighbourFinding::Misplaced:
        return "misplaced";
    case NeighbourFinding::TakenTwice:
        return "takenTwice";
    case NeighbourFinding::Skipped:
        break;
    }
    return "skipped";
}

void writeText(JsonWriter &json, std::string_view name, const QString &text)
{
    json.key(name);
    json.value(QStringView(text));
}

void writeChange(JsonWriter &json, const ValueChange &change)
{
    json.beginObject();
    writeText(json, "variable", change.variable);
    json.key("kind");
    json.value(nameOf(change.kind));
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

void writePlaces(JsonWriter &json, const ReviewReport &report,
                 const std::vector<DifferencePatterns::Place> &places)
{
    json.beginArray(true);
    for (const DifferencePatterns::Place &place : places)
        json.value(QStringView(report.placeText(place)));
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
    writeText(json, "text", report.patternText(pattern));
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
    writePlaces(json, report, report.patterns.places(pattern, ReviewReport::Examples));
    json.endObject();
}

void writeGone(JsonWriter &json, const ReviewReport &report, int pattern)
{
    const DifferencePatterns::Numbers numbers = report.patterns.numbers(pattern);
    const VelkRelease::GoneGroup &group = *report.patterns.gone(pattern);
    json.beginObject();
    writeText(json, "text", report.patternText(pattern));
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
    writePlaces(json, report, report.patterns.places(pattern, ReviewReport::Examples));
    json.endObject();
}

void writeNeighbours(JsonWriter &json, const ReviewReport &report)
{
    json.key("checkedLines");
    json.value(report.neighbours.checkedLines);
    json.key("neighbours");
    json.beginArray();
    for (const auto &[project, finding] : report.neighbours.places) {
        const PrjMappingC mapping = report.release.mappingAt(project);
        json.beginObject();
        writeText(json, "project", mapping.getSourcePath());
        json.key("kind");
        json.value(nameOf(finding.kind));
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

} // namespace

void writeReviewJson(const ReviewReport &report, QTextStream &out)
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
        writeText(json, "text", ReviewReport::replacementText(replacement));
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

} // namespace velkmap
