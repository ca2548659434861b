#include "CreateCommand.h"

#include "CommandLine.h"
#include "counted.h"
#include "ReleaseFile.h"
#include <release/assign/ReleaseDate.h>
#include <release/assign/ReleaseMappingBuilder.h>

#include <geomcore/records/MappingFile.h>

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

namespace {

using Builder = VelkRelease::ReleaseMappingBuilder;

const char CreateDescription[] =
    "Writes a release mapping: for each project of the old release the projects of the new release "
    "that can take over its lines. Lines are assigned by 'velkmap assign'.";

void addCreateOptions(CommandLine &line)
{
    line.addRequired("source", "ROOT", "Directory of the old release.");
    line.addRequired("target", "ROOT", "Directory of the new release.");
    line.addRequired("catalog", "OLD[=NEW]",
                     "Directory of the catalog in ROOT, and its name in the new release if that "
                     "is another one.");
    line.addRequired("mapping", "FILE",
                     "The mapping file. Releases of other dates in it stay as they are.");
    line.addOptional("source-date", "ISO8601",
                     "Date of the old release; else the newest date of its projects.");
    line.addOptional("target-date", "ISO8601",
                     "Date of the new release; else the newest date of its projects.");
    line.addAllowed();
    line.addFlag("replace", "Replaces a release of the same date in the file, with all that was "
                            "assigned and confirmed in it.");
}

QString wrongDate(const CommandLine &line)
{
    for (const QString &option : {QStringLiteral("source-date"), QStringLiteral("target-date")}) {
        if (line.isSet(option) && VelkRelease::dateInUtc(line.value(option)).isEmpty())
            return "--" + option + " is no ISO 8601 date: " + line.value(option);
    }
    return {};
}

Builder::Input inputOf(const CommandLine &line)
{
    Builder::Input input;
    input.sourceRoot = line.value("source");
    input.targetRoot = line.value("target");
    const QString catalog = line.value("catalog");
    input.sourceCatalog = catalog.section('=', 0, 0);
    input.targetCatalog = catalog.contains('=') ? catalog.section('=', 1) : catalog;
    input.sourceDate = VelkRelease::dateInUtc(line.value("source-date"));
    input.targetDate = VelkRelease::dateInUtc(line.value("target-date"));
    input.progressText = "Looking for target projects";
    return input;
}

void printSummary(const Builder &builder, QTextStream &out)
{
    const Builder::Counts &counts = builder.counts();
    const ReleaseMappingC &release = builder.release();
    out << release.getSourceDate() << " to " << release.getTargetDate() << ": "
        << counted(release.countMappings(), "project") << ", " << counts.same
        << " with the same path, " << counts.moved << " elsewhere, " << counts.several
        << " in several places, " << counts.gone << " without target, " << counts.unreadable
        << " unreadable\n";
    if (counts.proposed > 0)
        out << counts.proposed << " with proposed conditions or variable mappings\n";
}

/// A wrong catalog gives no error, but hardly any project has a target.
void warnIfNothingFits(const Builder &builder, QTextStream &err)
{
    if (builder.counts().gone * 2 > builder.release().countMappings())
        err << "velkmap create: more than half of the projects have no target; do source and "
               "target fit?\n";
}

/// What was agreed to about values goes on to the next release: from the release that is replaced,
/// else from the last one of the file.
QList<AgreedReplacement> formerReplacements(const QString &path, const MappingFile &file,
                                            const QString &date)
{
    if (file.sourceDates().isEmpty())
        return {};
    const QString former = file.contains(date) ? date : file.sourceDates().last();
    MappingFile read;
    return read.read(path, former) ? read.release(former).getReplacements()
                                   : QList<AgreedReplacement>();
}

QString alreadyThere(const QString &path, const QString &date)
{
    return path + " has a release of " + date +
           " already, and --replace would drop what was assigned and confirmed in it";
}

ExitStatus store(const Builder &builder, const QString &path, MappingFile &file, QTextStream &err)
{
    ReleaseMappingC release = builder.release();
    release.setReplacements(formerReplacements(path, file, release.getSourceDate()));
    file.setRelease(release);
    QString error;
    if (file.write(path, &error))
        return ExitStatus::Done;
    err << "velkmap create: " << error << '\n';
    return ExitStatus::ResultUnwritable;
}

} // namespace

ExitStatus runCreate(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("create", CreateDescription);
    addCreateOptions(line);
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    const Builder::Input input = inputOf(line);
    if (input.sourceCatalog.isEmpty() || input.targetCatalog.isEmpty())
        return line.wrongUsage("--catalog needs a name on each side of '='", err);
    if (const QString wrong = wrongDate(line); !wrong.isEmpty())
        return line.wrongUsage(wrong, err);

    const QString path = QDir::cleanPath(line.value("mapping"));
    EditLock lock;
    if (const auto failed = takeLock(lock, path, err))
        return *failed;
    MappingFile file;
    // No release has that date: all stay text.
    if (QString error; QFileInfo::exists(path) && !file.read(path, " ", &error)) {
        err << "velkmap create: " << error << '\n';
        return ExitStatus::InputUnreadable;
    }
    line.takeAllowed();
    Builder builder(input);
    const Builder::Outcome outcome = builder.build();
    for (const QString &message : builder.messages())
        err << "velkmap create: " << message << '\n';
    if (outcome == Builder::Outcome::Unreadable || outcome == Builder::Outcome::Cancelled)
        return ExitStatus::InputUnreadable;
    if (file.contains(builder.release().getSourceDate()) && !line.isSet("replace"))
        return line.wrongUsage(alreadyThere(path, builder.release().getSourceDate()), err);
    if (const ExitStatus stored = store(builder, path, file, err); stored != ExitStatus::Done)
        return stored;
    printSummary(builder, out);
    warnIfNothingFits(builder, err);
    return outcome == Builder::Outcome::Incomplete ? ExitStatus::InputUnreadable : ExitStatus::Done;
}

} // namespace velkmap
