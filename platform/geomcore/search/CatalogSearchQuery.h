#pragma once

#include "CatalogSearchCondition.h"

#include <QList>
#include <QStringList>

class RemoteSearchRequestDataC;

/// What is looked for in the catalogs. A value; all that it says has to hold.
struct VELKGEOMCORE_EXPORT CatalogSearchQuery
{
    /// Words separated by blanks. Each has to begin a word of the project's path, title, norm
    /// numbers, designations or table, regardless of case and accents; no character means anything
    /// but itself.
    QString text;
    /// All of them have to hold in one line of the project's table.
    QList<CatalogSearchCondition> conditions;
    /// Catalog paths of directories or projects, "catalog/folder"; empty for everything.
    QStringList below;
    /// No more hits than these; 0 for all.
    int limit = 200;
    /// Of each hit so many lines that match are told; -1: none, and not their number either.
    int linesPerHit = 3;
    /// Lines are looked for so long; later hits come without. 0: for all hits.
    int lineMilliseconds = 0;

    /// Neither words nor conditions: nothing is looked for.
    [[nodiscard]] bool isEmpty() const;
    /// What the activated searches of a request ask for, within the nodes of the request.
    [[nodiscard]] static CatalogSearchQuery fromRequest(const RemoteSearchRequestDataC &request);

    friend bool operator==(const CatalogSearchQuery &, const CatalogSearchQuery &) = default;
};
