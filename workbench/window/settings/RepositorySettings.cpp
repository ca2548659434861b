#include "RepositorySettings.h"

#include <geomcore/repository/RepositoryAddress.h>

namespace {

QPair<QString, QString> parts(const QString &line)
{
    const qsizetype equals = line.indexOf(u'=');
    return {line.left(equals).trimmed(), equals < 0 ? QString() : line.mid(equals + 1).trimmed()};
}

} // namespace

QHash<QString, QString> RepositorySettings::serversByCatalog() const
{
    QHash<QString, QString> all;
    for (const QString &line : servers) {
        const auto [catalog, server] = parts(line);
        if (!catalog.isEmpty() && !server.isEmpty())
            all.insert(catalog, server);
    }
    return all;
}

int RepositorySettings::wrongServer() const
{
    for (int i = 0; i < servers.size(); ++i) {
        const auto [catalog, server] = parts(servers.at(i));
        if (catalog.isEmpty() && server.isEmpty())
            continue;
        if (catalog.isEmpty() || server.isEmpty() || repositoryUrlOf(catalog, server).isEmpty())
            return i;
    }
    return -1;
}
