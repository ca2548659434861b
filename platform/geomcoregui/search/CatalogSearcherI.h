#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <geomcore/search/CatalogSearchResult.h>

#include <QObject>

struct CatalogSearchQuery;

/// Who looks into the catalogs for a search widget. It works in the background: each operation
/// returns at once, and all signals come on the GUI thread.
class VELKGEOMCOREGUI_EXPORT CatalogSearcherI : public QObject
{
    Q_OBJECT

public:
    explicit CatalogSearcherI(QObject *parent = nullptr);
    ~CatalogSearcherI() override;

    /// Begins a search, in the place of one under way, and gives its token.
    virtual int search(const CatalogSearchQuery &query) = 0;
    virtual void cancelSearch() = 0;
    /// Brings the index up to date with the catalogs, unless that is under way.
    virtual void update() = 0;
    [[nodiscard]] virtual bool isUpdating() const = 0;

Q_SIGNALS:
    void searchFinished(int token, const CatalogSearchResult &result);
    /// Of \a total projects, 0 if their number is not known yet.
    void updateProgress(int done, int total);
    /// Before updateFinished(): why some of the catalogs may be others than the index has them; a
    /// line for each, empty if they are not.
    void catalogsOutdated(const QString &problem);
    /// An empty text if the index is up to date.
    void updateFinished(const QString &error);
};
