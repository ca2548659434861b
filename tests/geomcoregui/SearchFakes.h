#pragma once

#include <geomcore/search/CatalogSearchQuery.h>
#include <geomcoregui/search/CatalogSearcherI.h>

#include <QList>

/// A searcher that the test plays.
class FakeSearcher : public CatalogSearcherI
{
public:
    int search(const CatalogSearchQuery &query) override
    {
        queries.append(query);
        return int(queries.size());
    }
    void cancelSearch() override { ++cancelled; }
    void update() override { ++updates; }
    [[nodiscard]] bool isUpdating() const override { return updating; }

    /// Answers the search of that token, by default the last one.
    void answer(const CatalogSearchResult &result, int token = 0)
    {
        Q_EMIT searchFinished(token == 0 ? int(queries.size()) : token, result);
    }

    QList<CatalogSearchQuery> queries;
    int cancelled = 0;
    int updates = 0;
    bool updating = false;
};

inline CatalogSearchHit searchHit(const QString &path, const QString &title = {}, int lines = -1)
{
    CatalogSearchHit hit;
    hit.path = path;
    hit.title = title;
    hit.lineCount = lines;
    return hit;
}

inline CatalogSearchResult searchResult(const QList<CatalogSearchHit> &hits)
{
    CatalogSearchResult result;
    result.state = hits.isEmpty() ? CatalogSearchState::NothingFound : CatalogSearchState::Found;
    result.hits = hits;
    return result;
}
