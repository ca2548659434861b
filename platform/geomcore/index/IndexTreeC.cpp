#include "IndexTreeC.h"

#include <mutex>

struct IndexTreeC::Private
{
    mutable std::mutex lock;
    PPathName root;
    IndexTreeIconTableC icons;
};

IndexTreeC::IndexTreeC()
    : IndexTreeC(PPathName("$TORMEVA_DATA/23d-libs"))
{
}

IndexTreeC::IndexTreeC(const PPathName &catalogRoot)
    : d(std::make_unique<Private>())
{
    d->root = catalogRoot;
}

IndexTreeC::~IndexTreeC() = default;

PRefPtr<IndexTreeC> IndexTreeC::instance()
{
    static const PRefPtr<IndexTreeC> tree(new IndexTreeC);
    return tree;
}

PPathName IndexTreeC::catalogRoot() const
{
    const std::scoped_lock guard(d->lock);
    return d->root;
}

void IndexTreeC::setCatalogRoot(const PPathName &root)
{
    const std::scoped_lock guard(d->lock);
    d->root = root;
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

const IndexTreeIconTableC &IndexTreeC::getIconTable() const
{
    return d->icons;
}
