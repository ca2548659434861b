#include "ExportCommand.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "InterruptGuard.h"
#include "LinkDbOption.h"
#include "ReleaseFile.h"

#include <core/files/DurableFile.h>
#include <geomcore/erp/LinkDbErpNumbers.h>
#include <release/export/MappingTable.h>

#include <QTextStream>

namespace velkmap {

namespace {

using VelkRelease::LineNumberColumn;
using VelkRelease::lineReasons;
using VelkRelease::mappingTable;

/// Nothing if the link database cannot be read; then the message says why.
std::optional<LineNumberColumn> numbersOf(const ReleaseMappingC &release, QTextStream &err)
{
    LinkDbErpNumbers source;
    LineNumberColumn numbers(size_t(release.countMappings()));
    for (int i = 0; i < release.countMappings(); ++i) {
        QString error;
        const auto read = source.numbersOf(release.mappingAt(i).getSourcePath(), {}, &error);
        if (!read) {
            err << "velkmap export: " << error << '\n';
            return std::nullopt;
        }
        for (auto each = read->cbegin(); each != read->cend(); ++each)
            numbers[size_t(i)].insert(each.key().value(0), erpNumberText(each.value()));
    }
    return numbers;
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

ExitStatus runExport(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("export",
                     "Writes a release mapping as a CSV file with one row a source line. State is\n"
                     "0 to be checked, 1 assigned by the program, 2 confirmed; a line without\n"
                     "target has an empty target path and target line -1.");
    ReleaseFile::addOptions(line);
    line.addRequired("csv", "FILE", "The file to write.");
    line.addFlag("reasons", "Adds the columns probability and reason for lines to be checked; "
                            "the catalogs are read for it.");
    CatalogRoots::addOptions(line);
    LinkDbOption::add(line, " Given, the column\nerp_number has the numbers of the source lines.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseFile file;
    if (const auto failed = file.read(line, err))
        return *failed;
    LinkDbOption linkDb;
    if (const auto failed = linkDb.open(line, err))
        return *failed;
    std::optional<LineNumberColumn> numbers;
    if (line.isSet("linkdb")) {
        numbers = numbersOf(file.release(), err);
        if (!numbers)
            return ExitStatus::InputUnreadable;
    }
    const LineNumberColumn *const withNumbers = numbers ? &*numbers : nullptr;
    if (!line.isSet("reasons"))
        return save(line.value("csv"), mappingTable(file.release(), nullptr, withNumbers), err);
    CatalogRoots roots;
    if (const auto failed = roots.take(line, "export", err))
        return *failed;
    QStringList errors;
    const InterruptGuard guard;
    const auto reasons =
        lineReasons(file.release(), roots.source(), errors, InterruptGuard::isRequested());
    if (!reasons)
        return ExitStatus::Interrupted;
    for (const QString &error : std::as_const(errors))
        err << "velkmap export: " << error << '\n';
    const ExitStatus saved =
        save(line.value("csv"), mappingTable(file.release(), &*reasons, withNumbers), err);
    return saved == ExitStatus::Done && !errors.isEmpty() ? ExitStatus::InputUnreadable : saved;
}

} // namespace velkmap
