#include "ReleaseWriter.h"

#include "ReleaseMappingC.h"

#include <core/json/JsonWriter.h>
#include <core/json/PJsonValue.h>
#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/binding/VarsetModifierI.h>

namespace {

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

void writeLines(JsonWriter &writer, const LineTable &lines)
{
    writer.key("lines");
    writer.beginArray();
    for (const LineTable::Iterator &line : lines) {
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

} // namespace

void writeRelease(JsonWriter &writer, const ReleaseMappingC &release, bool headsOnly)
{
    writer.beginObject();
    writeText(writer, "sourceDate", release.getSourceDate());
    writeText(writer, "targetDate", release.getTargetDate());
    if (!headsOnly) {
        writer.key("mappings");
        writer.beginArray();
        for (int i = 0; i < release.countMappings(); ++i)
            writeMapping(writer, release.mappingAt(i));
        writer.endArray();
    }
    writer.endObject();
}
