#pragma once

#include "CatalogIndexFile.h"
#include "CatalogSearchQuery.h"
#include "CatalogSearchResult.h"

#include <QElapsedTimer>
#include <QStringList>

#include <atomic>
#include <functional>
#include <vector>

/// One search in an index that is open. The index narrows the projects down to candidates; what it
/// cannot decide (several conditions, words beside conditions) is looked up in their tables.
class SearchRun
{
public:
    SearchRun(CatalogIndexFile &file, const QString &root, const CatalogSearchQuery &query,
              const std::atomic<bool> *cancelled);

    /// False if the index could not be read, or the search was cancelled.
    [[nodiscard]] bool run(CatalogSearchResult &result);

private:
    using Ids = std::vector<qint64>;

    /// A project as the index knows it.
    struct Row
    {
        CatalogSearchHit hit;
        QString head;
        QString descriptor;
    };

    [[nodiscard]] bool goOn() const { return !m_cancelled || !*m_cancelled; }
    [[nodiscard]] bool readBelow();
    [[nodiscard]] bool findByConditions(Ids &ids);
    /// Not more than \a most if the index alone can decide; -1 for all.
    [[nodiscard]] bool findByCondition(const CatalogSearchCondition &condition, qint64 most,
                                       Ids &ids);
    /// Rows of the full text index that have the words, in the head alone or anywhere, ascending;
    /// all of them if \a count is -1.
    [[nodiscard]] bool findByText(bool inHead, qint64 count, Ids &ids);
    [[nodiscard]] bool collect(const Ids &ids, CatalogSearchResult &result);
    [[nodiscard]] bool readRow(qint64 id, Row &row, bool &found);
    [[nodiscard]] bool isBelow(const QString &path) const;
    [[nodiscard]] bool addLines(Row &row) const;

    CatalogIndexFile &m_file;
    const QString m_root;
    CatalogSearchQuery m_query;
    const std::atomic<bool> *const m_cancelled;
    const QStringList m_terms;
    /// Of the directories to which the query is limited.
    QStringList m_belowTokens;
    bool m_belowIsNarrow = true; ///< They say all of it.
    /// A hit is one only if a line of its table says so.
    bool m_verifies = false;
    QSqlQuery m_row;
    QElapsedTimer m_clock;
};
