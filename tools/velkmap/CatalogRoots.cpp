#include "CatalogRoots.h"

#include "CommandLine.h"

#include <geomcore/index/IndexTreeC.h>

#include <QFileInfo>
#include <QTextStream>

namespace velkmap {

void CatalogRoots::addOptions(CommandLine &line)
{
    line.addOptional("source", "ROOT",
                     "Directory that holds the old release's catalog; by default "
                     "$TORMEVA_DATA/23d-libs.");
    line.addOptional("target", "ROOT",
                     "Directory that holds the new release's catalog; by default "
                     "$TORMEVA_DATA/23d-libs.");
    line.addAllowed();
}

std::optional<ExitStatus> CatalogRoots::take(const CommandLine &line, const QString &command,
                                             QTextStream &err)
{
    m_source = line.value("source");
    if (m_source.isEmpty())
        m_source = qEnvironmentVariable("TORMEVA_DATA") + "/23d-libs";
    const QString target = line.value("target");
    for (const QString &directory : {m_source, target}) {
        if (directory.isEmpty() || QFileInfo(directory).isDir())
            continue;
        err << "velkmap " << command << ": " << directory
            << " is no directory; --source and --target tell where the catalogs are\n";
        return ExitStatus::InputUnreadable;
    }
    line.takeAllowed();
    if (!target.isEmpty())
        IndexTreeC::instance()->setCatalogRoot(target);
    return std::nullopt;
}

} // namespace velkmap
