#pragma once

#include "CatalogIndexUpdate.h"
#include "CatalogSearchQuery.h"
#include "CatalogSearchResult.h"

#include <QObject>

#include <functional>
#include <memory>

/// The index of a catalog root for a program with an event loop: brought up to date and searched on
/// threads of its own. Everything of it, signals included, is on the thread that made it, and no
/// call waits but the destructor, which breaks off what is under way.
class VELKGEOMCORE_EXPORT CatalogIndex : public QObject
{
    Q_OBJECT

public:
    /// Neither makes nor reads anything yet. \a catalogRoot may have references such as
    /// "$TORMEVA_DATA".
    CatalogIndex(const QString &indexFile, const QString &catalogRoot, QObject *parent = nullptr);
    ~CatalogIndex() override;

    /// Catalogs that come from elsewhere: \a bring is called on the update's thread before each
    /// update, makes the files below the catalog root those that are wanted, and returns what
    /// stands against that. Files that are written into are then not looked for. Before update().
    using Bring = std::function<QStringList(const std::function<bool()> &goOn)>;
    void setBring(Bring bring);

    /// A file of the root's own in the user's cache, for programs that have no place for it.
    [[nodiscard]] static QString standardFile(const QString &catalogRoot);

    [[nodiscard]] const QString &indexFile() const;

    /// Brings the index up to date: what came, went or was replaced first, then every file. While
    /// another program does it, waits for that. Called while one is under way, makes another one
    /// afterwards.
    void update();
    /// What was read is kept.
    void cancelUpdate();
    [[nodiscard]] bool isUpdating() const;

    /// Looks for projects. Each search gets a number of its own, above 0; a former one that has not
    /// ended yet is dropped without a signal. An index that is found missing or damaged is made by
    /// the way.
    int search(const CatalogSearchQuery &query);
    /// Drops the search; its signal does not come any more.
    void cancelSearch();

Q_SIGNALS:
    /// How many of how many projects were read; of 0 while directories are compared. At most one
    /// every 50 ms.
    void updateProgress(int done, int total);
    void updateFinished(const CatalogIndexOutcome &outcome);
    void searchFinished(int number, const CatalogSearchResult &result);

private:
    void startUpdate(bool anew);
    void endUpdate(const CatalogIndexOutcome &outcome);
    void endSearch(int number, const CatalogSearchResult &result);

    struct Private;
    std::unique_ptr<Private> d;
};
