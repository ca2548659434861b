#include "JournalText.h"

#include <core/json/JsonWriter.h>
#include <core/json/PJsonValue.h>

namespace {

/// More than any mapping has.
constexpr qint64 MaxTargets = 1 << 20;

void writeEntry(JsonWriter &writer, bool there, const PrjMappingTargetLineC &entry)
{
    if (!there) {
        writer.null();
        return;
    }
    writer.beginArray(true);
    writer.value(entry.getTargetLineId());
    writer.value(int(entry.getState()));
    writer.value(QStringView(entry.getExtended()));
    writer.value(entry.getConflict());
    writer.endArray();
}

bool isPlain(const PrjMappingTargetLineC &entry)
{
    return !entry.extendedText() && !entry.getConflict();
}

void writeLine(JsonWriter &writer, const LineDifference &line)
{
    if (line.inBefore && line.inAfter && isPlain(line.before) && isPlain(line.after)) {
        writer.row({line.line, line.before.getTargetLineId(), int(line.before.getState()),
                    line.after.getTargetLineId(), int(line.after.getState())});
        return;
    }
    writer.beginArray(true);
    writer.value(line.line);
    writeEntry(writer, line.inBefore, line.before);
    writeEntry(writer, line.inAfter, line.after);
    writer.endArray();
}

void writeTarget(JsonWriter &writer, const MappingDifference::TargetPair &pair)
{
    writer.beginObject();
    writer.key("at");
    writer.row({pair.before, pair.after});
    if (!pair.headDiffers) {
        writer.key("path");
        writer.value(QStringView(pair.path));
    } else {
        writer.key("before");
        writer.written(pair.headBefore.toJson().toByteArray(true));
        writer.key("after");
        writer.written(pair.headAfter.toJson().toByteArray(true));
    }
    if (!pair.lines.empty()) {
        writer.key("lines");
        writer.beginArray();
        for (const LineDifference &line : pair.lines)
            writeLine(writer, line);
        writer.endArray();
    }
    writer.endObject();
}

std::optional<PrjMappingTargetLineC> readEntry(const PJsonValue &json)
{
    if (!json.isArray() || json.size() < 4)
        return std::nullopt;
    const QString extended = json.at(2).toText();
    return PrjMappingTargetLineC(
        int(json.at(0).toInt()), PRJMAPPING::CheckState(json.at(1).toInt()), json.at(3).toBool(),
        extended.isEmpty() ? ExtendedTextPtr() : ExtendedTextPtr(new ExtendedText(extended)));
}

std::optional<LineDifference> readLine(const PJsonValue &json)
{
    LineDifference line;
    line.line = int(json.at(0).toInt());
    if (json.size() == 5) {
        line.inBefore = line.inAfter = true;
        line.before = PrjMappingTargetLineC(int(json.at(1).toInt()),
                                            PRJMAPPING::CheckState(json.at(2).toInt()), QString());
        line.after = PrjMappingTargetLineC(int(json.at(3).toInt()),
                                           PRJMAPPING::CheckState(json.at(4).toInt()), QString());
        return line;
    }
    if (json.size() != 3)
        return std::nullopt;
    const std::optional<PrjMappingTargetLineC> before = readEntry(json.at(1));
    const std::optional<PrjMappingTargetLineC> after = readEntry(json.at(2));
    line.inBefore = before.has_value();
    line.inAfter = after.has_value();
    line.before = before.value_or(PrjMappingTargetLineC());
    line.after = after.value_or(PrjMappingTargetLineC());
    return line;
}

std::optional<MappingDifference::TargetPair> readTarget(const PJsonValue &json)
{
    MappingDifference::TargetPair pair;
    const PJsonValue at = json.value(QStringLiteral("at"));
    if (at.size() != 2)
        return std::nullopt;
    pair.before = int(at.at(0).toInt());
    pair.after = int(at.at(1).toInt());
    pair.path = json.value(QStringLiteral("path")).toText();
    pair.headDiffers = json.contains(QStringLiteral("after"));
    if (pair.headDiffers) {
        pair.headBefore = TargetHead::fromJson(json.value(QStringLiteral("before")));
        pair.headAfter = TargetHead::fromJson(json.value(QStringLiteral("after")));
    }
    const PJsonValue lines = json.value(QStringLiteral("lines"));
    pair.lines.reserve(std::size_t(lines.size()));
    for (int i = 0; i < lines.size(); ++i) {
        std::optional<LineDifference> line = readLine(lines.at(i));
        if (!line)
            return std::nullopt;
        pair.lines.push_back(*std::move(line));
    }
    return pair;
}

} // namespace

QByteArray JournalText::writeChange(const MappingDifference &difference, int step)
{
    JsonWriter writer(JsonWriter::Compact);
    writer.beginObject();
    writer.key("kind");
    writer.value("change");
    writer.key("step");
    writer.value(step);
    writer.key("project");
    writer.beginArray(true);
    writer.value(QStringView(difference.project.path));
    writer.value(QStringView(difference.project.version));
    writer.value(QStringView(difference.project.tabVersion));
    writer.value(QStringView(difference.tabVersionAfter));
    writer.endArray();
    writer.key("known");
    writer.beginArray(true);
    writer.value(difference.validBefore);
    writer.value(difference.validAfter);
    writer.endArray();
    writer.key("state");
    writer.row({difference.stateBefore.toInt(), difference.stateAfter.toInt()});
    const bool keepsTargets = difference.keepsTargets();
    if (keepsTargets) {
        writer.key("count");
        writer.value(int(difference.targets.size()));
    }
    writer.key("targets");
    writer.beginArray();
    for (const MappingDifference::TargetPair &pair : difference.targets) {
        if (!keepsTargets || pair.headDiffers || !pair.lines.empty())
            writeTarget(writer, pair);
    }
    writer.endArray();
    writer.endObject();
    return writer.take();
}

std::optional<MappingDifference> JournalText::readChange(const PJsonValue &record)
{
    const PJsonValue project = record.value(QStringLiteral("project"));
    const PJsonValue known = record.value(QStringLiteral("known"));
    const PJsonValue state = record.value(QStringLiteral("state"));
    const PJsonValue targets = record.value(QStringLiteral("targets"));
    if (project.size() != 4 || known.size() != 2 || state.size() != 2 || !targets.isArray())
        return std::nullopt;
    MappingDifference result;
    result.project = {project.at(0).toText(), project.at(1).toText(), project.at(2).toText()};
    result.tabVersionAfter = project.at(3).toText();
    result.validBefore = known.at(0).toBool();
    result.validAfter = known.at(1).toBool();
    result.stateBefore = PRJMAPPING::MappingState::fromInt(int(state.at(0).toInt()));
    result.stateAfter = PRJMAPPING::MappingState::fromInt(int(state.at(1).toInt()));
    // With a count the targets are the same before and after, and those without change are left
    // out.
    const bool keepsTargets = record.contains(QStringLiteral("count"));
    const qint64 count = record.value(QStringLiteral("count")).toInt();
    if (count < 0 || count > MaxTargets)
        return std::nullopt;
    result.targets.resize(std::size_t(count));
    for (int i = 0; i < count; ++i)
        result.targets[std::size_t(i)].before = result.targets[std::size_t(i)].after = i;
    for (int i = 0; i < targets.size(); ++i) {
        std::optional<MappingDifference::TargetPair> pair = readTarget(targets.at(i));
        if (!pair || (keepsTargets && (pair->after < 0 || pair->after >= count)))
            return std::nullopt;
        if (keepsTargets) {
            MappingDifference::TargetPair &place = result.targets[std::size_t(pair->after)];
            place = *std::move(pair);
        } else {
            result.targets.push_back(*std::move(pair));
        }
    }
    return result;
}

PJsonValue JournalText::writeReplacements(const QList<AgreedReplacement> &replacements)
{
    PJsonValue list(PJsonValue::Array);
    for (const AgreedReplacement &agreed : replacements) {
        PJsonValue row(PJsonValue::Array);
        for (const QString &text : {agreed.folder, agreed.variable, agreed.before, agreed.after,
                                    agreed.factor, agreed.offset})
            row.append(PJsonValue(text));
        list.append(row);
    }
    return list;
}

QList<AgreedReplacement> JournalText::readReplacements(const PJsonValue &list)
{
    QList<AgreedReplacement> replacements;
    for (int i = 0; i < list.size(); ++i) {
        const PJsonValue row = list.at(i);
        if (row.size() == 6)
            replacements.append({row.at(0).toText(), row.at(1).toText(), row.at(2).toText(),
                                 row.at(3).toText(), row.at(4).toText(), row.at(5).toText()});
    }
    return replacements;
}
