#pragma once

#include <QHash>
#include <QStringList>

/// Whether and how target projects are read from the catalogs' repositories.
struct RepositorySettings
{
    bool isUsed = false;
    /// Lines "CATALOG = svn://SERVER[:PORT][/PATH]". The name of a catalog that is not among them
    /// is that of its server.
    QStringList servers;
    int revision = -1; ///< -1: the last one
    int cacheMegabytes = 1024;
    int silenceSeconds = 30;

    static constexpr int MaxCacheMegabytes = 100'000;
    static constexpr int MaxSilenceSeconds = 600;

    [[nodiscard]] QHash<QString, QString> serversByCatalog() const;
    /// Index of the first line that names no catalog or no server, -1 if all are right. Empty lines
    /// are.
    [[nodiscard]] int wrongServer() const;

    friend bool operator==(const RepositorySettings &, const RepositorySettings &) = default;
};
