#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QByteArray>
#include <QStringList>

#include <optional>

/// What a directory of a catalog has in one revision: its subdirectories and projects. Hidden ones,
/// other files, and names that are none on a disk are left out. A value.
struct VELKGEOMCORE_EXPORT RepositoryListing
{
    QStringList directories;
    QStringList projects;

    /// Of what the client lists; nothing if that is no XML of it.
    [[nodiscard]] static std::optional<RepositoryListing> ofClientXml(const QByteArray &xml);
    /// Of what bytes() made; nothing of anything else.
    [[nodiscard]] static std::optional<RepositoryListing> ofBytes(const QByteArray &bytes);
    /// A directory of the disk; links count as not there.
    [[nodiscard]] static RepositoryListing ofDirectory(const QString &directory);
    [[nodiscard]] QByteArray bytes() const;

    friend bool operator==(const RepositoryListing &, const RepositoryListing &) = default;
};

/// A path that differs between two revisions of a catalog.
struct RepositoryChange
{
    QString path; ///< below the catalog's root
    bool isDirectory = false;
    bool isDeleted = false; ///< else it is new, or another one
};

/// Of what the client writes about the paths below \a url; nothing if it cannot be read, or has
/// paths that lie elsewhere.
[[nodiscard]] std::optional<QList<RepositoryChange>> repositoryChangesOfXml(const QByteArray &xml,
                                                                            const QString &url);
