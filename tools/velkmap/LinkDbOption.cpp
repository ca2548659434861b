#include "LinkDbOption.h"

#include "CommandLine.h"

#include <geomcore/linkdb/PLinkDbC.h>

#include <QTextStream>

namespace velkmap {

LinkDbOption::~LinkDbOption()
{
    if (m_isOpen)
        PLinkDbC::setInstance({});
}

void LinkDbOption::add(CommandLine &line, const QString &more)
{
    line.addOptional(
        "linkdb", "URL",
        "The link database: sqlite:FILE or postgresql://[USER@][HOST][:PORT]/DATABASE; "
        "passwords come\nfrom PGPASSWORD or ~/.pgpass." +
            more);
}

std::optional<ExitStatus> LinkDbOption::read(const CommandLine &line, LinkDbSettings &settings,
                                             QTextStream &err)
{
    if (!line.isSet("linkdb"))
        return line.wrongUsage("--linkdb is missing", err);
    QString problem;
    settings = LinkDbSettings::fromText(line.value("linkdb"), &problem);
    if (settings.kind == LinkDbSettings::Kind::None)
        return line.wrongUsage("--linkdb: " + problem, err);
    return std::nullopt;
}

std::optional<ExitStatus> LinkDbOption::open(const CommandLine &line, QTextStream &err)
{
    if (!line.isSet("linkdb"))
        return std::nullopt;
    LinkDbSettings settings;
    if (const auto failed = read(line, settings, err))
        return failed;
    const PRefPtr<PLinkDbC> linkDb(new PLinkDbC);
    if (!linkDb->open(settings)) {
        err << "velkmap: " << linkDb->lastError().text << '\n';
        return ExitStatus::InputUnreadable;
    }
    PLinkDbC::setInstance(linkDb);
    m_isOpen = true;
    return std::nullopt;
}

} // namespace velkmap
