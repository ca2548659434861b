#pragma once

#include "CatalogSearcherI.h"

#include <core/text/PPrivateData.h>
#include <geomcore/search/CatalogSearchQuery.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
class QPushButton;
QT_END_NAMESPACE

class FileTreeGroup;
class SearchWidget;
class TileItemView;
class TopSearchWidget;

/// What SearchWidget does.
class SearchWidgetPrivate : public PPrivateData<SearchWidget>
{
public:
    SearchWidgetPrivate(SearchWidget *owner, const QStringList &searchNames, FileTreeGroup *group);
    ~SearchWidgetPrivate();

    /// Unless something is selected.
    void selectFirst();

    TopSearchWidget *const top;
    TileItemView *const view;

private:
    void connectSearcher();
    void search();
    void searchOnceMore();
    void sendQuery();
    void onFinished(int token, const CatalogSearchResult &result);
    void onProgress(int done, int total);
    void onUpdated(const QString &error);
    void showOutdated(const QString &problem);
    void showState(const CatalogSearchResult &result);
    void showText(const QString &text, bool inView);
    void showProgress(bool visible);
    void rememberWords();

    /// Only asked while the searcher lives, which goes with it.
    FileTreeGroup *const m_group;
    QPointer<CatalogSearcherI> m_searcher;
    QLabel *const m_status;
    QLabel *const m_outdated;
    QProgressBar *const m_progress;
    QPushButton *const m_again;
    QTimer m_pause;
    CatalogSearchQuery m_query;
    int m_token = 0;
    bool m_isSearching = false;
    bool m_waitsForIndex = false;
    QElapsedTimer m_sinceSearch;
};
