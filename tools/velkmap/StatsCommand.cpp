#include "StatsCommand.h"

#include "CommandLine.h"
#include "ReleaseFile.h"

#include <core/json/JsonWriter.h>

#include <QTextStream>

#include <array>
#include <utility>

namespace velkmap {

namespace {

using Counts = std::array<int, 5>;
constexpr std::array<const char *, 5> names = {"lines", "notFound", "mapped", "toCheck",
                                               "verified"};

Counts countsOf(const LineCounts &counts)
{
    return {counts.lines(), counts.notFound(), counts.mapped(), counts.toCheck(),
            counts.verified()};
}

Counts countsOf(const PrjMappingC &mapping)
{
    return countsOf(mapping.lineCounts());
}

Counts totalOf(const ReleaseMappingC &release)
{
    LineCounts sum;
    for (int i = 0; i < release.countMappings(); ++i)
        sum.add(release.mappingAt(i).lineCounts());
    return countsOf(sum);
}

void writeRow(QTextStream &out, const Counts &counts, const QString &name)
{
    for (const int count : counts)
        out << QString::number(count).rightJustified(10);
    out << "  " << name << '\n';
}

void writeTable(const ReleaseMappingC &release, QTextStream &out)
{
    for (const char *name : names)
        out << QString::fromLatin1(name).rightJustified(10);
    out << "  project\n";
    for (int i = 0; i < release.countMappings(); ++i) {
        const PrjMappingC mapping = release.mappingAt(i);
        const bool unreadable = mapping.getMappingState().testFlag(PRJMAPPING::StateTableError);
        writeRow(out, countsOf(mapping),
                 mapping.getSourcePath() + (unreadable ? " (table could not be read)" : ""));
    }
    writeRow(out, totalOf(release), "in all");
}

void writeCounts(JsonWriter &json, const Counts &counts)
{
    for (std::size_t i = 0; i < counts.size(); ++i) {
        json.key(names[i]);
        json.value(counts[i]);
    }
}

void writeJson(const ReleaseMappingC &release, QTextStream &out)
{
    JsonWriter json(JsonWriter::Indented);
    json.beginObject();
    json.key("sourceDate");
    json.value(release.getSourceDate());
    json.key("targetDate");
    json.value(release.getTargetDate());
    writeCounts(json, totalOf(release));
    json.key("projects");
    json.beginArray();
    for (int i = 0; i < release.countMappings(); ++i) {
        const PrjMappingC mapping = release.mappingAt(i);
        json.beginObject();
        json.key("sourcePath");
        json.value(mapping.getSourcePath());
        json.key("sourceVersion");
        json.value(mapping.getSourceVersion());
        json.key("tableError");
        json.value(mapping.getMappingState().testFlag(PRJMAPPING::StateTableError));
        writeCounts(json, countsOf(mapping));
        json.endObject();
    }
    json.endArray();
    json.endObject();
    out << QString::fromUtf8(json.take());
}

} // namespace

ExitStatus runStats(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("stats", "Counts the lines of a release mapping by their state: all lines,\n"
                              "lines without a target line, assigned by the program, to be\n"
                              "checked, confirmed. The numbers overlap: a line that is confirmed\n"
                              "to have no target line is among both.");
    ReleaseFile::addOptions(line);
    line.addFlag("json", "Prints the counts as JSON.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    if (line.isSet("json"))
        writeJson(file.release(), out);
    else
        writeTable(file.release(), out);
    return ExitStatus::Done;
}

} // namespace velkmap
