#include "JoinCommand.h"

#include "CommandLine.h"
#include "counted.h"
#include "ReleaseFile.h"

#include <release/assign/AssignmentPart.h>

#include <QTextStream>

namespace velkmap {

namespace {

constexpr const char *description =
    "Puts the parts that velkmap assign --shard wrote into their mapping, which is then what\n"
    "one run would have made of it. All parts of one work must be there, each once.";

using VelkRelease::NamedPart;

bool readParts(const QStringList &files, QList<NamedPart> &parts, QTextStream &err)
{
    bool allRead = true;
    for (const QString &file : files) {
        NamedPart part{file, {}};
        QString error;
        if (part.part.read(file, &error)) {
            parts << part;
            continue;
        }
        err << "velkmap join: " << error << '\n';
        allRead = false;
    }
    const QStringList errors = partErrors(parts);
    for (const QString &error : errors)
        err << "velkmap join: " << error << '\n';
    if (!allRead || !errors.isEmpty())
        err << "velkmap join: nothing was written; run what is missing and join again\n";
    return allRead && errors.isEmpty();
}

} // namespace

ExitStatus runJoin(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line("join", description);
    ReleaseFile::addOptions(line);
    line.addWords("PART", "The parts.");
    if (const auto over = line.parse(arguments, out, err))
        return *over;
    if (line.words().isEmpty())
        return line.wrongUsage("no part is given", err);
    ReleaseFile file;
    if (const auto failed = file.lock(line, err))
        return *failed;
    if (const auto failed = file.read(line, err))
        return *failed;
    QList<NamedPart> parts;
    if (!readParts(line.words(), parts, err))
        return ExitStatus::InputUnreadable;
    ReleaseMappingC release = file.release();
    if (!joinParts(parts, release)) {
        err << "velkmap join: " << file.path()
            << " is not the mapping that the parts were made of, or was changed since, perhaps by "
               "a join that came through; "
               "nothing was written\n";
        return ExitStatus::InputUnreadable;
    }
    if (const ExitStatus written = file.write(release, err); written != ExitStatus::Done)
        return written;
    bool allRead = true;
    qsizetype projects = 0;
    for (const NamedPart &part : parts) {
        allRead = allRead && part.part.allRead;
        projects += part.part.positions.size();
        for (const QString &error : part.part.errors)
            err << "velkmap join: " << error << '\n';
    }
    out << counted(parts.size(), "part") << " with " << counted(projects, "project") << " joined\n";
    return allRead ? ExitStatus::Done : ExitStatus::InputUnreadable;
}

} // namespace velkmap
