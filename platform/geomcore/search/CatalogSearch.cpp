#include "CatalogSearch.h"

#include "CatalogIndexFile.h"
#include "CatalogIndexUpdate.h"
#include "SearchRun.h"
#include <geomcore/project/CatalogPlaces.h>

#include <QFileInfo>

namespace {

CatalogSearchResult ended(CatalogSearchState state, const QString &error = {})
{
    CatalogSearchResult result;
    result.state = state;
    result.errorText = error;
    return result;
}

} // namespace

CatalogSearch::CatalogSearch(const QString &indexFile, const QString &catalogRoot)
    : m_indexFile(QFileInfo(indexFile).absoluteFilePath())
    , m_root(CatalogIndexUpdate::resolvedRoot(catalogRoot))
{
    CatalogPlaces::instance().addRoot(PPathName(m_root));
}

CatalogSearchResult CatalogSearch::run(const CatalogSearchQuery &query,
                                       const std::atomic<bool> *cancelled) const
{
    CatalogIndexFile file(m_indexFile, m_root);
    CatalogIndexFile::State opened = file.openToRead();
    if (opened == CatalogIndexFile::Missing || opened == CatalogIndexFile::Broken) {
        if (CatalogIndexUpdate::isRunning(m_indexFile))
            return ended(CatalogSearchState::IndexBuilding);
        opened = file.openToRead(); // it may have been made between both questions
    }
    if (opened == CatalogIndexFile::Failed)
        return ended(CatalogSearchState::Failed, file.errorText());
    if (opened != CatalogIndexFile::Opened)
        return ended(CatalogSearchState::IndexMissing);
    // One state of the index for the whole search, whoever writes meanwhile.
    CatalogSearchResult result;
    const bool done =
        file.run(QStringLiteral("BEGIN")) && SearchRun(file, m_root, query, cancelled).run(result);
    if (!done) {
        if (cancelled && *cancelled)
            return ended(CatalogSearchState::Cancelled);
        result =
            ended(file.isDamaged() ? CatalogSearchState::IndexMissing : CatalogSearchState::Failed,
                  file.errorText());
        result.isDamaged = file.isDamaged();
        return result;
    }
    if (!file.isComplete())
        result.state = CatalogSearchState::IndexBuilding;
    else if (!result.hits.isEmpty())
        result.state = CatalogSearchState::Found;
    return result;
}
