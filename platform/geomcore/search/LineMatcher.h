#pragma once

#include "CatalogSearchQuery.h"
#include "CatalogSearchResult.h"

#include <QStringList>

#include <functional>

/// Looks in a table for the lines that match a query.
class LineMatcher
{
public:
    struct Matches
    {
        int count = -1; ///< -1: the table cannot be read, or it was broken off.
        QList<CatalogSearchLine> lines;
    };

    /// \a terms: folded words that a line has to have besides the conditions.
    LineMatcher(const QStringList &terms, const QList<CatalogSearchCondition> &conditions);

    /// \a descriptor: native path of the table's descriptor, which \a project names. The first
    /// \a wanted lines are told. Broken off when \a goOn says no.
    [[nodiscard]] Matches find(const QString &descriptor, const QString &project, int wanted,
                               const std::function<bool()> &goOn) const;

private:
    const QStringList m_terms;
    const QList<CatalogSearchCondition> m_conditions;
};
