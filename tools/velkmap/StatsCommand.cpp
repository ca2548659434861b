#include "StatsCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "OpenReasons.h"
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

/// The header of a table of counts; its keys fit over them.
QString reasonHeader()
{
    QString header;
    for (int i = 0; i < VelkRelease::OpenReasonCount; ++i)
        header += u' ' + VelkRelease::openReasonKey(VelkRelease::OpenReason(i)).rightJustified(11);
    return header;
}

void writeReasonRow(QTextStream &out, const VelkRelease::OpenReasonCounts &counts,
                    const QString &name)
{
    for (const int count : counts)
        out << QString::number(count).rightJustified(12);
    out << "  " << name << '\n';
}

void writeReasons(const ReleaseMappingC &release, const OpenReasons &reasons, QTextStream &out)
{
    out << "\nWhy lines are open:\n" << reasonHeader() << "  project\n";
    for (int i = 0; i < release.countMappings(); ++i) {
        const VelkRelease::ProjectOpenReasons &project = reasons.projects()[size_t(i)];
        if (!project.lines.empty())
            writeReasonRow(out, project.counts(), release.mappingAt(i).getSourcePath());
    }
    writeReasonRow(out, reasons.total(), "in all");
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

void writeReasons(JsonWriter &json, const VelkRelease::OpenReasonCounts &counts)
{
    json.key("open");
    json.beginObject();
    for (int i = 0; i < VelkRelease::OpenReasonCount; ++i) {
        json.key(VelkRelease::openReasonKey(VelkRelease::OpenReason(i)).toStdString());
        json.value(counts[size_t(i)]);
    }
    json.endObject();
}

/// Without reasons if \a reasons is null.
void writeJson(const ReleaseMappingC &release, const OpenReasons *reasons, QTextStream &out)
{
    JsonWriter json(JsonWriter::Indented);
    json.beginObject();
    json.key("sourceDate");
    json.value(release.getSourceDate());
    json.key("targetDate");
    json.value(release.getTargetDate());
    writeCounts(json, totalOf(release));
    if (reasons)
        writeReasons(json, reasons->total());
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
        if (reasons)
            writeReasons(json, reasons->projects()[size_t(i)].counts());
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
                              "to have no target line is among both. With --reasons also the\n"
                              "open lines by what stands in the way of settling them, each with\n"
                              "one reason; the tables are read for it.");
    ReleaseFile::addOptions(line);
    line.addFlag("reasons", "Counts the open lines by their main reason too.");
    CatalogRoots::addOptions(line);
    OpenReasons::addOptions(line);
    line.addFlag("json", "Prints the counts as JSON.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    OpenReasons reasons;
    const bool withReasons = line.isSet("reasons");
    if (withReasons) {
        CatalogRoots roots;
        if (const auto failed = roots.take(line, "stats", err))
            return *failed;
        if (const auto failed = reasons.read(line, file, roots, "stats", err))
            return *failed;
    }
    if (line.isSet("json")) {
        writeJson(file.release(), withReasons ? &reasons : nullptr, out);
    } else {
        writeTable(file.release(), out);
        if (withReasons)
            writeReasons(file.release(), reasons, out);
    }
    return reasons.hasErrors() ? ExitStatus::InputUnreadable : ExitStatus::Done;
}

} // namespace velkmap
