#include "IndexTreeC.h"

#include <core/text/PathAlias.h>
#include <geomcore/project/CatalogPlaces.h>

#include <mutex>

namespace {

constexpr const char *standardRoot = "$TORMEVA_DATA/23d-libs";

} // namespace

struct IndexTreeC::Private
{
    bool isProcessTree = false;
    mutable std::mutex lock;
    PPathName root;
    std::shared_ptr<CatalogRepository> repository;
    std::shared_ptr<IndexTreeErpSourceI> erpSource;
    IndexTreeIconTableC icons;
};

IndexTreeC::IndexTreeC()
    : IndexTreeC(PPathName(standardRoot))
{
}

IndexTreeC::IndexTreeC(const PPathName &catalogRoot)
    : d(std::make_unique<Private>())
{
    d->root = catalogRoot;
    CatalogPlaces::instance().addRoot(catalogRoot);
}

IndexTreeC::~IndexTreeC() = default;

PRefPtr<IndexTreeC> IndexTreeC::instance()
{
    static const PRefPtr<IndexTreeC> tree = [] {
        PRefPtr<IndexTreeC> made(new IndexTreeC);
        made->d->isProcessTree = true;
        return made;
    }();
    return tree;
}

PPathName IndexTreeC::catalogRoot() const
{
    const std::scoped_lock guard(d->lock);
    return d->root;
}

void IndexTreeC::setCatalogRoot(const PPathName &root)
{
    CatalogPlaces::instance().addRoot(root);
    const std::scoped_lock guard(d->lock);
    d->root = root;
    if (!d->isProcessTree)
        return;
    const bool isStandard = root.text() == QLatin1String(standardRoot);
    PathAlias::set(QLatin1String(standardRoot), isStandard ? QString() : QString(root.text()));
}

PPathName IndexTreeC::compatiblePathToResolvedPath(const PPathName &path) const
{
    QString text = path.text();
    const bool complete = text.isEmpty() || text.startsWith(u'$') || path.isAddress();
    const PPathName joined = catalogRoot() + PPathName(text.replace(u'\\', u'/'));
    if (complete)
        return path;
    // A stored path may begin with a separator; only what is there is taken as absolute.
    const bool absolute = path.isAbsolute() && path.exists(false) && !joined.exists(false);
    return absolute ? path : joined;
}

void IndexTreeC::setRepository(const std::shared_ptr<CatalogRepository> &repository)
{
    const std::scoped_lock guard(d->lock);
    d->repository = repository;
}

std::shared_ptr<CatalogRepository> IndexTreeC::repository() const
{
    const std::scoped_lock guard(d->lock);
    return d->repository;
}

PRefPtr<IndexTreeNodeC> IndexTreeC::getRoot() const
{
    if (const auto remote = repository())
        return new IndexTreeNodeC(remote, {}, IndexTreeNodeC::Root);
    return new IndexTreeNodeC(catalogRoot(), {}, IndexTreeNodeC::Root);
}

PRefPtr<IndexTreeNodeC> IndexTreeC::findNodeByTreePath(const PString &treePath,
                                                       const PString &pathBelow) const
{
    QStringList names = treePath.split(u'/', Qt::SkipEmptyParts);
    if (names.isEmpty() || names.takeFirst() != u"cat")
        return nullptr;
    PRefPtr<IndexTreeNodeC> node = getRoot();
    for (const QString &name : names + pathBelow.split(u'/', Qt::SkipEmptyParts)) {
        node = node->child(name);
        if (!node)
            return nullptr;
    }
    return node;
}

void IndexTreeC::setErpSource(const std::shared_ptr<IndexTreeErpSourceI> &source)
{
    const std::scoped_lock guard(d->lock);
    d->erpSource = source;
}

std::shared_ptr<IndexTreeErpSourceI> IndexTreeC::erpSource() const
{
    const std::scoped_lock guard(d->lock);
    return d->erpSource;
}

const IndexTreeIconTableC &IndexTreeC::getIconTable() const
{
    return d->icons;
}
