#include "ExportCommand.h"

#include "CommandLine.h"
#include "ReleaseFile.h"

#include <core/files/DurableFile.h>

#include <QTextStream>

#include <algorithm>
#include <vector>

namespace velkmap {

namespace {

QByteArray cell(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    if (std::ranges::none_of(bytes,
                             [](char c) { return c == ',' || c == '"' || c == '\n' || c == '\r'; }))
        return bytes;
    bytes.replace("\"", "\"\"");
    return '"' + bytes + '"';
}

struct Row
{
    int sourceLine;
    int target;
    PrjMappingTargetLineC entry;
};

std::vector<Row> rowsOf(const QList<PrjMappingTargetC> &targets)
{
    std::vector<Row> rows;
    for (int i = 0; i < targets.size(); ++i) {
        for (const LineTable::Iterator &line : targets.at(i).lines())
            rows.push_back({line.sourceLine(), i, line.line()});
    }
    std::ranges::stable_sort(rows, {}, &Row::sourceLine);
    return rows;
}

void appendMapping(QByteArray &out, const PrjMappingC &mapping)
{
    const QList<PrjMappingTargetC> targets = mapping.getTargets();
    QList<QByteArray> paths;
    for (const PrjMappingTargetC &target : targets)
        paths << cell(target.getTargetPath());
    const QByteArray source =
        cell(mapping.getSourcePath()) + ',' + cell(mapping.getSourceVersion());
    for (const Row &row : rowsOf(targets)) {
        const int targetLine = row.entry.getTargetLineId();
        out += source + ',' + QByteArray::number(row.sourceLine) + ',' +
               (targetLine == -1 ? QByteArray() : paths.at(row.target)) + ',' +
               QByteArray::number(targetLine) + ',' +
               QByteArray::number(int(row.entry.getState())) + ',' +
               (row.entry.getConflict() ? '1' : '0') + ',' + cell(row.entry.getExtended()) + '\n';
    }
}

ExitStatus save(const QString &path, const QByteArray &rows, QTextStream &err)
{
    QString cause;
    if (DurableFile::write(path, rows, &cause))
        return ExitStatus::Done;
    err << "velkmap export: " << path << " could not be written: " << cause << '\n';
    return ExitStatus::ResultUnwritable;
}

} // namespace

QByteArray exportedRows(const ReleaseMappingC &release)
{
    QByteArray out = "source_path,source_version,source_line,target_path,target_line,state,"
                     "conflict,extended\n";
    for (int i = 0; i < release.countMappings(); ++i)
        appendMapping(out, release.mappingAt(i));
    return out;
}

ExitStatus runExport(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("export",
                     "Writes a release mapping as a CSV file with one row a source line. State is\n"
                     "0 to be checked, 1 assigned by the program, 2 confirmed; a line without\n"
                     "target has an empty target path and target line -1.");
    ReleaseFile::addOptions(line);
    line.addRequired("csv", "FILE", "The file to write.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    return save(line.value("csv"), exportedRows(file.release()), err);
}

} // namespace velkmap
