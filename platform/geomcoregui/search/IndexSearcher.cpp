#include "IndexSearcher.h"

#include "searchText.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/search/CatalogIndex.h>
#include <geomcore/search/CatalogSearchQuery.h>

namespace {

/// Of one search; a table that is looked into for longer comes without its lines.
constexpr int lineMilliseconds = 200;

QString errorOf(const CatalogIndexOutcome &outcome)
{
    switch (outcome.state) {
    case CatalogIndexOutcome::RootUnreadable:
        return searchText("Das Verzeichnis der Kataloge kann nicht gelesen werden.");
    case CatalogIndexOutcome::Failed:
        return outcome.errorText.isEmpty() ? searchText("Unbekannter Fehler") : outcome.errorText;
    case CatalogIndexOutcome::Done:
    case CatalogIndexOutcome::Cancelled:
    case CatalogIndexOutcome::Busy:
        break;
    }
    return {};
}

} // namespace

IndexSearcher::IndexSearcher(QObject *parent)
    : CatalogSearcherI(parent)
    , m_index(std::make_unique<CatalogIndex>(CatalogIndex::standardFile(root()), root()))
{
    connect(m_index.get(), &CatalogIndex::searchFinished, this, &CatalogSearcherI::searchFinished);
    connect(m_index.get(), &CatalogIndex::updateProgress, this, &CatalogSearcherI::updateProgress);
    connect(
        m_index.get(), &CatalogIndex::updateFinished, this,
        [this](const CatalogIndexOutcome &outcome) { Q_EMIT updateFinished(errorOf(outcome)); });
}

IndexSearcher::~IndexSearcher() = default;

QString IndexSearcher::root()
{
    return IndexTreeC::instance()->catalogRoot().text();
}

int IndexSearcher::search(const CatalogSearchQuery &query)
{
    CatalogSearchQuery limited = query;
    limited.lineMilliseconds = lineMilliseconds;
    return m_index->search(limited);
}

void IndexSearcher::cancelSearch()
{
    m_index->cancelSearch();
}

void IndexSearcher::update()
{
    if (!m_index->isUpdating())
        m_index->update();
}

bool IndexSearcher::isUpdating() const
{
    return m_index->isUpdating();
}
