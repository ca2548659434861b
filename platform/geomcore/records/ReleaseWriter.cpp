#include "ReleaseWriter.h"

#include "ReleaseMappingC.h"

#include <core/json/JsonWriter.h>
#include <core/json/PJsonValue.h>
#include <core/parallel/WorkerPool.h>
#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/binding/VarsetModifierI.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

/// As many rows as a thread writes in one go.
constexpr int LinesAPart = 16384;

void writeText(JsonWriter &writer, std::string_view name, const QString &text)
{
    writer.key(name);
    writer.value(QStringView(text));
}

void writeConditions(JsonWriter &writer, const PrjMappingTargetC &target)
{
    writer.key("conditions");
    writer.beginArray(true);
    for (const VarsetConditionI *condition : target.getConditions())
        writer.value(QStringView(condition->getCondition()));
    writer.endArray();
}

void writeModifiers(JsonWriter &writer, const PrjMappingTargetC &target)
{
    writer.key("modifiers");
    writer.beginArray();
    for (const VarsetModifierI *modifier : target.getVarsetModifier()) {
        PJsonValue value;
        modifier->toJson(value);
        writer.written(QByteArrayView(value.toByteArray(false)).chopped(1), writer.level());
    }
    writer.endArray();
}

void writeRows(JsonWriter &writer, LineTable::Iterator line, const LineTable::Iterator &end)
{
    for (; line != end; ++line) {
        const ExtendedText *extended = line.extended();
        if (!extended && !line.conflict()) {
            writer.row({line.sourceLine(), line.targetLine(), int(line.state())});
            continue;
        }
        writer.beginArray(true);
        writer.value(line.sourceLine());
        writer.value(line.targetLine());
        writer.value(int(line.state()));
        writer.value(extended ? QStringView(extended->text) : QStringView());
        if (line.conflict())
            writer.value(true);
        writer.endArray();
    }
}

/// Where the \a part-th of \a count parts begins; parts are alike in ids.
LineTable::Iterator beginOfPart(const LineTable &lines, int part, int count)
{
    if (part == count)
        return lines.end();
    const qint64 first = lines.begin().sourceLine();
    const qint64 last = std::prev(lines.end()).sourceLine();
    return lines.lowerBound(int(first + (last - first + 1) * part / count));
}

/// Some parts at once, in memory; the result is the same as row by row.
void writeInParts(JsonWriter &writer, const LineTable &lines)
{
    const int parts = lines.counts().lines() / LinesAPart;
    const int atOnce = WorkerPool::instance().threads() * 2;
    for (int from = 0; from < parts; from += atOnce) {
        std::vector<QByteArray> texts(std::size_t(std::min(atOnce, parts - from)));
        WorkerPool::instance().run(int(texts.size()), [&](int i) {
            JsonWriter part(writer.layout(), writer.level());
            writeRows(part, beginOfPart(lines, from + i, parts),
                      beginOfPart(lines, from + i + 1, parts));
            texts[std::size_t(i)] = part.take();
        });
        for (const QByteArray &text : texts) {
            if (!text.isEmpty())
                writer.written(text);
        }
    }
}

void writeLines(JsonWriter &writer, const LineTable &lines)
{
    writer.key("lines");
    writer.beginArray();
    if (lines.counts().lines() < 2 * LinesAPart || WorkerPool::instance().threads() < 2)
        writeRows(writer, lines.begin(), lines.end());
    else
        writeInParts(writer, lines);
    writer.endArray();
}

void writeTarget(JsonWriter &writer, const PrjMappingTargetC &target)
{
    writer.beginObject();
    writeText(writer, "path", target.getTargetPath());
    writeText(writer, "version", target.getTargetVersion());
    writeText(writer, "tabVersion", target.getTabVersion());
    writer.key("valid");
    writer.value(target.isValid());
    if (target.hasProposedRules()) {
        writer.key("proposed");
        writer.value(true);
    }
    writeConditions(writer, target);
    writeModifiers(writer, target);
    writeLines(writer, target.lines());
    writer.endObject();
}

void writeMapping(JsonWriter &writer, const PrjMappingC &mapping)
{
    writer.beginObject();
    writeText(writer, "sourcePath", mapping.getSourcePath());
    writeText(writer, "sourceVersion", mapping.getSourceVersion());
    writeText(writer, "tabVersion", mapping.getTabVersion());
    writer.key("state");
    writer.value(mapping.getMappingState().toInt());
    writer.key("targets");
    writer.beginArray();
    for (int i = 0; i < mapping.countTargets(); ++i)
        writeTarget(writer, mapping.findTarget(i));
    writer.endArray();
    writer.endObject();
}

template<class Replacement>
void writeChange(JsonWriter &writer, const Replacement &replacement)
{
    if (replacement.isNumeric()) {
        writeText(writer, "factor", replacement.factor);
        writeText(writer, "offset", replacement.offset);
    } else {
        writeText(writer, "before", replacement.before);
        writeText(writer, "after", replacement.after);
    }
}

/// Nothing at all without any, as files without them always looked.
void writeReplacements(JsonWriter &writer, const QList<AgreedReplacement> &replacements)
{
    if (replacements.isEmpty())
        return;
    writer.key("replacements");
    writer.beginArray();
    for (const AgreedReplacement &replacement : replacements) {
        writer.beginObject();
        writeText(writer, "folder", replacement.folder);
        writeText(writer, "variable", replacement.variable);
        writeChange(writer, replacement);
        writer.endObject();
    }
    writer.endArray();
}

void writeLearned(JsonWriter &writer, const QList<LearnedReplacement> &learned)
{
    if (learned.isEmpty())
        return;
    writer.key("learned");
    writer.beginArray();
    for (const LearnedReplacement &replacement : learned) {
        writer.beginObject();
        writeText(writer, "variable", replacement.variable);
        writeChange(writer, replacement);
        writer.key("supports");
        writer.value(replacement.supports);
        writer.key("cases");
        writer.value(replacement.cases);
        writer.endObject();
    }
    writer.endArray();
}

} // namespace

void writeRelease(JsonWriter &writer, const ReleaseMappingC &release, bool headsOnly)
{
    writer.beginObject();
    writeText(writer, "sourceDate", release.getSourceDate());
    writeText(writer, "targetDate", release.getTargetDate());
    writeReplacements(writer, release.getReplacements());
    writeLearned(writer, release.getLearned());
    if (!headsOnly) {
        writer.key("mappings");
        writer.beginArray();
        for (int i = 0; i < release.countMappings(); ++i)
            writeMapping(writer, release.mappingAt(i));
        writer.endArray();
    }
    writer.endObject();
}
