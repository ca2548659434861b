#include "ClashGroups.h"
#include "mergeEntries.h"
#include "mergeFiles.h"

#include <core/json/JsonWriter.h>
#include <geomcore/records/MappingChangeType.h>

#include <algorithm>
#include <array>

namespace VelkRelease {

namespace {

constexpr std::array clashNames = {"line",           "conditions",     "variableMapping",
                                   "targetVersion",  "targetOrder",    "targetRemoved",
                                   "projectVersion", "projectRemoved", "targetDate"};
constexpr std::array reasonNames = {"sameDecision", "sameValues", "combined"};
constexpr std::array wayNames = {"assigned", "toCheck", "confirmed",
                                 "removed",  "expired", "unknown"};

void writeText(JsonWriter &json, const char *key, const QString &text)
{
    if (text.isEmpty())
        return;
    json.key(key);
    json.value(text);
}

void writeStanding(JsonWriter &json, const char *key, const LineStanding &standing)
{
    json.key(key);
    json.beginArray();
    for (const LineEntry &entry : standing) {
        json.beginObject();
        json.key("target");
        json.value(entry.target);
        json.key("line");
        json.value(entry.line.getTargetLineId());
        json.key("state");
        json.value(int(entry.line.getState()));
        writeText(json, "extended", entry.line.getExtended());
        json.endObject();
    }
    json.endArray();
}

void writeClash(JsonWriter &json, const MergeClash &clash)
{
    json.beginObject();
    json.key("kind");
    json.value(clashNames[clash.kind]);
    writeText(json, "project", clash.sourcePath);
    writeText(json, "version", clash.sourceVersion);
    writeText(json, "target", clash.target);
    if (clash.kind == MergeClash::Line) {
        json.key("line");
        json.value(clash.line);
        writeStanding(json, "base", clash.base);
        writeStanding(json, "ours", clash.ours);
        writeStanding(json, "theirs", clash.theirs);
    }
    if (clash.kind == MergeClash::TargetRemoved || clash.kind == MergeClash::ProjectRemoved) {
        json.key("removedBy");
        json.value(clash.removedByOurs ? "ours" : "theirs");
    }
    json.endObject();
}

void writeWay(JsonWriter &json, const char *key, const LineWay &way)
{
    json.key(key);
    json.beginObject();
    json.key("kind");
    json.value(wayNames[way.kind]);
    writeText(json, "target", way.target);
    json.endObject();
}

void writeQuestion(JsonWriter &json, const ClashGroup &group, const QList<MergeClash> &clashes)
{
    json.beginObject();
    json.key("project");
    json.value(group.sourcePath);
    writeText(json, "version", group.sourceVersion);
    writeWay(json, "ours", group.ours);
    writeWay(json, "theirs", group.theirs);
    json.key("lines");
    json.beginArray(true);
    for (const int clash : group.clashes)
        json.value(clashes[clash].line);
    json.endArray();
    json.endObject();
}

void writeSettled(JsonWriter &json, const MergeSettled &settled)
{
    json.beginObject();
    json.key("project");
    json.value(settled.sourcePath);
    json.key("line");
    json.value(settled.line);
    json.key("reason");
    json.value(reasonNames[settled.reason]);
    writeStanding(json, "ours", settled.ours);
    writeStanding(json, "theirs", settled.theirs);
    json.endObject();
}

void writeChange(JsonWriter &json, const QString &project, const MappingChange &change)
{
    json.beginObject();
    json.key("project");
    json.value(project);
    json.key("type");
    json.value(change.type);
    if (MappingChangeType::isOfLine(change.type) ||
        change.type == MappingChangeType::ExtendedText) {
        json.key("line");
        json.value(change.lineId);
        json.key("targetLine");
        json.value(change.targetLine.getTargetLineId());
        json.key("state");
        json.value(int(change.targetLine.getState()));
        writeText(json, "extended", change.targetLine.getExtended());
    }
    writeText(json, "target", change.target.getTargetPath());
    writeText(json, "oldVersion", change.oldProjectVersion);
    writeText(json, "newVersion", change.newProjectVersion);
    writeText(json, "oldTableVersion", change.oldTableVersion);
    writeText(json, "newTableVersion", change.newTableVersion);
    json.endObject();
}

/// In the order in which they were entered.
void writeChanges(JsonWriter &json, const char *key, const MappingChangeMap &changes)
{
    json.key(key);
    json.beginArray();
    for (const auto &project : changes.uniqueKeys()) {
        QList<MappingChange> ofProject = changes.values(project);
        std::ranges::reverse(ofProject);
        for (const MappingChange &change : std::as_const(ofProject))
            writeChange(json, project.second, change);
    }
    json.endArray();
}

template<class List, class Write>
void writeList(JsonWriter &json, const char *key, const List &list, Write write)
{
    json.key(key);
    json.beginArray();
    for (const auto &element : list)
        write(json, element);
    json.endArray();
}

void writeRelease(JsonWriter &json, const MergeResult &result, bool isKept)
{
    json.beginObject();
    json.key("sourceDate");
    json.value(result.release.getSourceDate());
    if (isKept) {
        json.key("removedByOneSide");
        json.value(true);
    }
    writeList(json, "clashes", result.clashes, writeClash);
    writeList(
        json, "questions", groupClashes(result.clashes),
        [&](JsonWriter &to, const ClashGroup &group) { writeQuestion(to, group, result.clashes); });
    writeList(json, "settled", result.settled, writeSettled);
    writeChanges(json, "notTaken", result.local);
    writeChanges(json, "theirs", result.online);
    json.endObject();
}

} // namespace

QByteArray mergeReport(const MergedFile &merged)
{
    JsonWriter json(JsonWriter::Indented);
    json.beginObject();
    json.key("releases");
    json.beginArray();
    for (const MergeResult &result : merged.releases)
        writeRelease(json, result, merged.keptDates.contains(result.release.getSourceDate()));
    json.endArray();
    json.endObject();
    json.lineFeed();
    return json.take();
}

} // namespace VelkRelease
