#include "IndexSearcher.h"

#include "searchText.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/repository/CatalogRepository.h>
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

QString rootOf(const std::shared_ptr<CatalogRepository> &repository)
{
    return repository ? repository->mirrorRoot()
                      : QString(IndexTreeC::instance()->catalogRoot().text());
}

/// That of copies lies beside them.
QString indexOf(const std::shared_ptr<CatalogRepository> &repository)
{
    return repository ? repository->mirrorRoot() + QStringLiteral(".index")
                      : CatalogIndex::standardFile(rootOf(repository));
}

} // namespace

IndexSearcher::IndexSearcher(QObject *parent)
    : CatalogSearcherI(parent)
    , m_repository(IndexTreeC::instance()->repository())
    , m_index(std::make_unique<CatalogIndex>(indexOf(m_repository), rootOf(m_repository)))
{
    if (m_repository)
        m_index->setBring([repository = m_repository](const std::function<bool()> &goOn) {
            return repository->updateMirror(goOn);
        });
    connect(m_index.get(), &CatalogIndex::searchFinished, this, &CatalogSearcherI::searchFinished);
    connect(m_index.get(), &CatalogIndex::updateProgress, this, &CatalogSearcherI::updateProgress);
    connect(m_index.get(), &CatalogIndex::updateFinished, this,
            [this](const CatalogIndexOutcome &outcome) {
                Q_EMIT catalogsOutdated(outcome.outdated.join(u'\n'));
                Q_EMIT updateFinished(errorOf(outcome));
            });
}

IndexSearcher::~IndexSearcher() = default;

int IndexSearcher::search(const CatalogSearchQuery &query)
{
    CatalogSearchQuery limited = query;
    limited.lineMilliseconds = lineMilliseconds;
    for (QString &path : limited.below) {
        const QString catalog = path.section(u'/', 0, 0);
        if (m_repository)
            path.replace(0, catalog.size(), CatalogRepository::folderOf(catalog));
    }
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
