#include "OpenReasons.h"

#include "CatalogRoots.h"
#include "CommandLine.h"
#include "InterruptGuard.h"
#include "ReleaseFile.h"

#include <release/share/SharedMapping.h>

#include <QTextStream>

namespace velkmap {

namespace {

/// Whether a path is one of the folders or projects, or lies in one of them.
bool liesIn(const QString &path, const QStringList &places)
{
    return std::any_of(places.begin(), places.end(), [&](const QString &place) {
        return path == place || path.startsWith(place.endsWith(u'/') ? place : place + u'/');
    });
}

} // namespace

void OpenReasons::addOptions(CommandLine &line)
{
    line.addOptional("others", "PATH",
                     "Folder or project that somebody else decides on; may be repeated.");
}

std::function<bool(const QString &)> OpenReasons::others(const CommandLine &line,
                                                         const QString &mappingFile)
{
    return [places = line.values("others"),
            isTaken =
                VelkRelease::SharedMapping(mappingFile).isInOthersFolder()](const QString &path) {
        return liesIn(path, places) || isTaken(path);
    };
}

std::optional<ExitStatus> OpenReasons::read(const CommandLine &line, const ReleaseFile &file,
                                            const CatalogRoots &roots, const QString &command,
                                            QTextStream &err)
{
    const InterruptGuard guard;
    auto found =
        VelkRelease::openReasons(file.release(), {.sourceRoot = roots.source(),
                                                  .isOthers = others(line, file.path()),
                                                  .cancelled = &InterruptGuard::isRequested()});
    if (!found)
        return ExitStatus::Interrupted;
    m_projects = std::move(*found);
    for (const VelkRelease::ProjectOpenReasons &project : m_projects) {
        for (const QString &error : project.errors)
            err << "velkmap " << command << ": " << error << '\n';
        m_hasErrors = m_hasErrors || !project.errors.isEmpty();
    }
    return std::nullopt;
}

VelkRelease::OpenReasonCounts OpenReasons::total() const
{
    VelkRelease::OpenReasonCounts sum{};
    for (const VelkRelease::ProjectOpenReasons &project : m_projects) {
        const VelkRelease::OpenReasonCounts counts = project.counts();
        for (size_t i = 0; i < sum.size(); ++i)
            sum[i] += counts[i];
    }
    return sum;
}

} // namespace velkmap
