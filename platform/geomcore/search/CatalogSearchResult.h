#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

/// How a search ended. Every search ends in exactly one of these.
enum class CatalogSearchState {
    Found,
    NothingFound,
    IndexBuilding, ///< The index is made for the first time; the hits are those found so far.
    IndexMissing,  ///< Nobody has made an index yet, or it is broken and is to be made anew.
    Failed,        ///< CatalogSearchResult::errorText tells why.
    Cancelled,
};

/// A line of a hit's table that matches.
struct CatalogSearchLine
{
    int lineNumber = 0; ///< First component of the line's id.
    QString text;       ///< Its designation, or else its values.
    friend bool operator==(const CatalogSearchLine &, const CatalogSearchLine &) = default;
};

/// A project that was found.
struct CatalogSearchHit
{
    QString path;                   ///< "catalog/folder/name.prj"
    QString title;                  ///< What the project says of itself, else its file name.
    QString normNumber;             ///< Of the table.
    int lineCount = -1;             ///< Lines of the table; -1 if there is none that can be read.
    int matchingLines = -1;         ///< Lines that match; -1 if they were not counted.
    QList<CatalogSearchLine> lines; ///< The first of them.
    friend bool operator==(const CatalogSearchHit &, const CatalogSearchHit &) = default;
};

/// What a search found, a value: projects whose path, title, norm numbers or designations have all
/// words first, then the others, each in the order of the index.
struct CatalogSearchResult
{
    CatalogSearchState state = CatalogSearchState::NothingFound;
    QList<CatalogSearchHit> hits;
    bool hasMore = false;   ///< There are more than the query's limit.
    bool isDamaged = false; ///< See CatalogIndexUpdate::setMakesAnew().
    QString errorText;
};

Q_DECLARE_METATYPE(CatalogSearchResult)
