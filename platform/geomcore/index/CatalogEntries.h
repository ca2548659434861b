#pragma once

#include <QString>

#include <vector>

/// An entry of a directory below the catalog root that counts: a directory or a project.
struct CatalogEntry
{
    QString name;
    bool isProject = false;
    bool isLink = false;
};

/// The entries of a directory, in no certain order: neither hidden ones nor links that lead out of
/// the catalogs. Empty for a directory that cannot be read.
[[nodiscard]] std::vector<CatalogEntry> catalogEntries(const QString &directory,
                                                       bool directoriesOnly);
/// Whether there is any.
[[nodiscard]] bool hasCatalogEntries(const QString &directory, bool directoriesOnly);
/// The entry of that name; false if there is none.
[[nodiscard]] bool findCatalogEntry(const QString &directory, const QString &name,
                                    bool directoriesOnly, CatalogEntry &entry);
/// Whether a file of that name is a project.
[[nodiscard]] bool isCatalogProjectName(QStringView name);
