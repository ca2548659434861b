#pragma once

#include <core/text/PPathName.h>
#include <core/text/PRefPtr.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

class CatalogRepository;
struct CatalogEntry;

/// A place in the index tree: its root, a directory (a catalog is one) or a project. A node says
/// where it is and asks the disk, or the catalog's repository, when it is asked; it keeps nothing
/// of what lies below it, so two nodes of one place are alike and equal only by their paths. Any
/// thread.
class VELKGEOMCORE_EXPORT IndexTreeNodeC : public PRefObject
{
public:
    enum Kind { Root, Directory, Project };

    /// \a catalogPath begins with the catalog's name; empty for the root. Whether it is there is
    /// the caller's to know.
    IndexTreeNodeC(const PPathName &catalogRoot, const QString &catalogPath, Kind kind);
    /// A place in catalogs of repositories. Never null.
    IndexTreeNodeC(const std::shared_ptr<CatalogRepository> &repository, const QString &catalogPath,
                   Kind kind);
    ~IndexTreeNodeC() override;

    /// Whether children() and description() may ask a server, and wait for it.
    [[nodiscard]] bool isRemote() const { return m_repository != nullptr; }
    /// Why the last children() of this object gave nothing; empty if it was told what is there.
    [[nodiscard]] QString problem() const;

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] bool isProject() const { return m_kind == Project; }
    /// Kind by which the icon table knows it: "DIRECTORY/" or "VIEW3D/".
    [[nodiscard]] PString getType() const;
    /// "catalog/folder/name.prj"; empty for the root.
    [[nodiscard]] const QString &catalogPath() const { return m_path; }
    /// "cat/" and the catalog path.
    [[nodiscard]] QString treePath() const;
    /// The last component; empty for the root.
    [[nodiscard]] QString name() const;
    /// Native path of the file or directory; for what lies in a repository that of its place in the
    /// cache.
    [[nodiscard]] QString file() const;
    /// What a project says of itself (its lexeme NAME), read from its file at the first call; the
    /// name for directories and for projects that say nothing.
    [[nodiscard]] QString description() const;

    /// Null for the root.
    [[nodiscard]] PRefPtr<IndexTreeNodeC> parent() const;
    /// Whether there is a directory or project below; looks only until it finds one. A directory of
    /// a repository counts as one that has as long as nobody read it.
    [[nodiscard]] bool hasChildren() const;
    /// Directories, then projects, each ordered by name as people do; read anew at each call. Empty
    /// for a directory that cannot be read. Below the root are directories only. Hidden entries,
    /// and links that lead out of the catalogs, are left out.
    [[nodiscard]] QList<PRefPtr<IndexTreeNodeC>> children() const;
    /// The node of that name below; null if there is none. Reads no other entry.
    [[nodiscard]] PRefPtr<IndexTreeNodeC> child(const QString &name) const;

private:
    [[nodiscard]] QString pathOf(const QString &name) const;
    [[nodiscard]] PRefPtr<IndexTreeNodeC> made(const QString &path, Kind kind) const;
    /// Of a place below the root: name of the catalog, and the path below that.
    [[nodiscard]] QString catalogName() const;
    [[nodiscard]] QString pathBelowCatalog() const;
    [[nodiscard]] std::vector<CatalogEntry> remoteEntries() const;
    [[nodiscard]] bool hasRemoteEntries() const;

    const std::shared_ptr<CatalogRepository> m_repository;
    const PPathName m_root;
    const QString m_path;
    const Kind m_kind;
    mutable std::mutex m_lock; // guards the next two
    mutable QString m_problem;
    mutable std::optional<QString> m_description;
};
