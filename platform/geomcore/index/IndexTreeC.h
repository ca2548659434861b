#pragma once

#include "IndexTreeIconTableC.h"
#include "IndexTreeNodeC.h"

#include <core/text/PPathName.h>
#include <core/text/PRefPtr.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <memory>

class CatalogRepository;
class IndexTreeErpSourceI;

/// The catalogs below one root directory. Every operation may be called on any thread unless
/// it says otherwise.
class VELKGEOMCORE_EXPORT IndexTreeC : public PRefObject
{
public:
    /// A tree over the standard root, "$TORMEVA_DATA/23d-libs".
    IndexTreeC();
    explicit IndexTreeC(const PPathName &catalogRoot);
    ~IndexTreeC() override;

    /// The tree of the process.
    [[nodiscard]] static PRefPtr<IndexTreeC> instance();

    /// Directory whose subdirectories are the catalogs. References in it are resolved when the file
    /// system is asked.
    [[nodiscard]] PPathName catalogRoot() const;
    /// The root of the process's tree is what "$TORMEVA_DATA/23d-libs" stands for in every path.
    void setCatalogRoot(const PPathName &root);

    /// File of a project path that begins with the catalog's name, with "/" or "\", as mappings
    /// store it; a separator before it does not matter. Absolute paths of files that are there,
    /// paths that begin with a reference and addresses come back as they are; an empty path stays
    /// empty. Whether the file exists is the caller's to ask.
    [[nodiscard]] PPathName compatiblePathToResolvedPath(const PPathName &path) const;

    /// With one, the nodes of the tree are those of the catalogs in repositories, not those of the
    /// directories below the catalog root; paths of files are not concerned. None with null.
    void setRepository(const std::shared_ptr<CatalogRepository> &repository);
    [[nodiscard]] std::shared_ptr<CatalogRepository> repository() const;

    /// The node above all catalogs; it is there whether the catalog root is or not.
    [[nodiscard]] PRefPtr<IndexTreeNodeC> getRoot() const;
    /// The node of a tree path, "cat/catalog/folder/name.prj", or of \a pathBelow as seen from it;
    /// null if there is none. "cat" is the root. Components "." and ".." are no names.
    [[nodiscard]] PRefPtr<IndexTreeNodeC> findNodeByTreePath(const PString &treePath,
                                                             const PString &pathBelow) const;

    /// Who knows the projects with an ERP mark; null, as at first, if nobody does. GUI thread.
    void setErpSource(const std::shared_ptr<IndexTreeErpSourceI> &source);
    [[nodiscard]] std::shared_ptr<IndexTreeErpSourceI> erpSource() const;

    /// Icons of the tree's nodes; GUI thread only. Lives as long as the tree.
    [[nodiscard]] const IndexTreeIconTableC &getIconTable() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
