#include "ChainCommand.h"

#include "CommandLine.h"
#include "counted.h"
#include "ReleaseFile.h"

#include <release/chain/chainReleases.h>

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

namespace {

const char ChainDescription[] =
    "Writes the mapping over two mappings that follow each other: what became of each line by the "
    "first one, and of that by the second. What is confirmed in both is confirmed.";

/// The release that an option names, or the last one of the file.
std::optional<ExitStatus> readRelease(const CommandLine &line, const QString &option,
                                      ReleaseMappingC &release, QTextStream &err)
{
    const QString path = QDir::cleanPath(line.value(option));
    MappingFile file;
    QString error;
    if (!file.read(path, QString(), &error)) {
        err << "velkmap chain: " << error << '\n';
        return ExitStatus::InputUnreadable;
    }
    const QString wanted = line.value(option + "-release");
    const QString date =
        wanted.isEmpty() ? file.sourceDates().value(file.sourceDates().size() - 1) : wanted;
    if (!file.contains(date)) {
        err << "velkmap chain: " << path << " has no release " << date << '\n';
        return ExitStatus::InputUnreadable;
    }
    release = file.release(date);
    return std::nullopt;
}

void tellChain(const ReleaseMappingC &release, const VelkRelease::ChainCounts &counts,
               QTextStream &out)
{
    out << release.getSourceDate() << " to " << release.getTargetDate() << ": "
        << counted(release.countMappings(), "project") << ", " << counted(counts.confirmed, "line")
        << " confirmed, " << counts.assigned << " assigned, " << counts.toCheck << " to check, "
        << counts.open << " without target\n";
    if (counts.unknown > 0)
        out << counted(counts.unknown, "line") << (counts.unknown == 1 ? " leads" : " lead")
            << " to what the second mapping does not know\n";
    if (counts.rangeTexts > 0)
        out << counted(counts.rangeTexts, "line") << (counts.rangeTexts == 1 ? " has" : " have")
            << " value range texts, which cannot be chained\n";
}

} // namespace

ExitStatus runChain(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("chain", ChainDescription);
    line.addRequired("first", "FILE", "The mapping of the older release.");
    line.addRequired("second", "FILE", "The mapping that begins where the first one ends.");
    line.addRequired("into", "FILE",
                     "The mapping file to write. Releases of other dates in it stay as they are.");
    line.addOptional("first-release", "DATE", "Source date; else the last release of the file.");
    line.addOptional("second-release", "DATE", "Source date; else the last release of the file.");
    line.addFlag("replace", "Replaces a release of the same date in the file, with all that was "
                            "assigned and confirmed in it.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    ReleaseMappingC first;
    ReleaseMappingC second;
    if (const auto failed = readRelease(line, "first", first, err))
        return *failed;
    if (const auto failed = readRelease(line, "second", second, err))
        return *failed;
    if (first.getTargetDate() != second.getSourceDate())
        return line.wrongUsage("the first mapping ends at " + first.getTargetDate() +
                                   ", the second begins at " + second.getSourceDate(),
                               err);
    const QString path = QDir::cleanPath(line.value("into"));
    EditLock lock;
    if (const auto failed = takeLock(lock, path, err))
        return *failed;
    MappingFile file;
    // No release has that date: all stay text.
    if (QString error; QFileInfo::exists(path) && !file.read(path, " ", &error)) {
        err << "velkmap chain: " << error << '\n';
        return ExitStatus::InputUnreadable;
    }
    if (file.contains(first.getSourceDate()) && !line.isSet("replace"))
        return line.wrongUsage(path + " has a release of " + first.getSourceDate() +
                                   " already, and --replace would drop what was assigned and "
                                   "confirmed in it",
                               err);
    VelkRelease::ChainCounts counts;
    const ReleaseMappingC chained = VelkRelease::chainReleases(first, second, &counts);
    file.setRelease(chained);
    if (QString error; !file.write(path, &error)) {
        err << "velkmap chain: " << error << '\n';
        return ExitStatus::ResultUnwritable;
    }
    tellChain(chained, counts, out);
    return ExitStatus::Done;
}

} // namespace velkmap
