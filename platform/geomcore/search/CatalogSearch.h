#pragma once

#include "CatalogSearchQuery.h"
#include "CatalogSearchResult.h"

#include <atomic>

/// Searches the index of a catalog root. Works on the calling thread; any number of threads and
/// programs may search while another one brings the index up to date.
class VELKGEOMCORE_EXPORT CatalogSearch
{
public:
    CatalogSearch(const QString &indexFile, const QString &catalogRoot);

    /// An empty query finds nothing. Another thread may set \a cancelled to break it off.
    [[nodiscard]] CatalogSearchResult run(const CatalogSearchQuery &query,
                                          const std::atomic<bool> *cancelled = nullptr) const;

private:
    const QString m_indexFile;
    const QString m_root;
};
