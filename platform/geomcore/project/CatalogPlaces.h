#pragma once

#include <core/text/PPathName.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QStringList>

#include <mutex>

/// Where files that other files name may lie: a project's table, a descriptor's lines, a mapping's
/// target. They are read from the catalog root of the file that names them (without a known root,
/// from its directory), from below $TORMEVA_DATA, and from the places that the user allowed; links
/// and ".." do not lead out. Any thread.
class VELKGEOMCORE_EXPORT CatalogPlaces
{
public:
    /// Those of the process. The roots of all index trees are among its roots.
    [[nodiscard]] static CatalogPlaces &instance();

    /// A directory whose subdirectories are catalogs.
    void addRoot(const PPathName &directory);
    /// The places that the user allows; they replace the former ones.
    void setAllowed(const QStringList &directories);

    /// The innermost root that the file lies below, as it was given but resolved; empty if there
    /// is none.
    [[nodiscard]] QString rootOf(const QString &file) const;
    /// Path of a file below its root, beginning with the catalog's name; empty without a root.
    [[nodiscard]] QString catalogPathOf(const QString &file) const;
    /// Why \a file may not be read, which \a namedBy names; empty if it may.
    [[nodiscard]] QString refusal(const QString &file, const QString &namedBy) const;
    /// Why a file may not be read whose path was made by joining a root and a path that a file
    /// names: it begins with a root and yet leads out of it. Empty for all others.
    [[nodiscard]] QString refusal(const QString &joinedPath) const;
    /// Why a mapping's target project may not be read: it lies in no catalog root and in no place
    /// that is allowed. Empty if it may.
    [[nodiscard]] QString refusalOfTarget(const QString &file) const;

private:
    [[nodiscard]] QStringList roots() const;
    [[nodiscard]] bool isAllowed(const QString &file) const;

    mutable std::mutex m_lock; // guards the next two
    QList<PPathName> m_roots;
    QList<PPathName> m_allowed;
};
