#include "SearchWidgetPrivate.h"

#include "FileTreeGroup.h"
#include "searchText.h"
#include "SearchWidget.h"
#include "TileItemView.h"
#include "TopSearchWidget.h"

#include <core/text/countText.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int pauseInMilliseconds = 250;
constexpr int refreshInMilliseconds = 1000;

} // namespace

SearchWidgetPrivate::SearchWidgetPrivate(SearchWidget *owner, const QStringList &searchNames,
                                         FileTreeGroup *group)
    : PPrivateData(owner)
    , top(new TopSearchWidget(searchNames, owner))
    , view(new TileItemView(owner))
    , m_group(group)
    , m_searcher(group ? group->searcher() : nullptr)
    , m_status(new QLabel(owner))
    , m_outdated(new QLabel(owner))
    , m_progress(new QProgressBar(owner))
    , m_again(new QPushButton(searchText("Erneut versuchen"), owner))
{
    m_status->setObjectName(QStringLiteral("searchStatus"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_outdated->setObjectName(QStringLiteral("searchOutdated"));
    m_outdated->setTextFormat(Qt::PlainText);
    m_outdated->setWordWrap(true);
    m_outdated->hide();
    m_progress->setObjectName(QStringLiteral("searchProgress"));
    m_progress->setAccessibleName(searchText("Aufbau des Suchindex"));
    m_again->setObjectName(QStringLiteral("searchAgain"));
    m_again->setAutoDefault(false);
    m_again->hide();
    auto *const row = new QHBoxLayout;
    row->addWidget(m_status, 1);
    row->addWidget(m_progress);
    row->addWidget(m_again);
    auto *const layout = new QVBoxLayout(owner);
    layout->addWidget(top);
    layout->addWidget(view, 1);
    layout->addWidget(m_outdated);
    layout->addLayout(row);
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseInMilliseconds);
    QObject::connect(&m_pause, &QTimer::timeout, owner, [this] { search(); });
    QObject::connect(top, &TopSearchWidget::requestChanged, owner, [this] {
        // What is still to come is not for these words any more.
        m_isSearching = false;
        m_status->setText(searchText("Wird gesucht ..."));
        m_pause.start();
    });
    QObject::connect(top, &TopSearchWidget::requestConfirmed, owner, [this] { search(); });
    QObject::connect(top, &TopSearchWidget::resultsWanted, owner, [this] {
        if (view->model()->rowCount() == 0)
            return;
        view->setFocus(Qt::ShortcutFocusReason);
        selectFirst();
    });
    QObject::connect(m_again, &QPushButton::clicked, owner, [this] {
        if (m_searcher)
            m_searcher->update();
        searchOnceMore();
    });
    if (m_searcher)
        connectSearcher();
    showProgress(m_searcher && m_searcher->isUpdating());
    search();
}

SearchWidgetPrivate::~SearchWidgetPrivate()
{
    if (m_searcher)
        m_searcher->disconnect(q);
}

void SearchWidgetPrivate::connectSearcher()
{
    top->setRecentWords(m_group->recentWords());
    QObject::connect(
        m_searcher, &CatalogSearcherI::searchFinished, q,
        [this](int token, const CatalogSearchResult &result) { onFinished(token, result); });
    QObject::connect(m_searcher, &CatalogSearcherI::updateProgress, q,
                     [this](int done, int total) { onProgress(done, total); });
    QObject::connect(m_searcher, &CatalogSearcherI::catalogsOutdated, q,
                     [this](const QString &problem) { showOutdated(problem); });
    QObject::connect(m_searcher, &CatalogSearcherI::updateFinished, q,
                     [this](const QString &error) { onUpdated(error); });
    QObject::connect(view, &QAbstractItemView::clicked, q, [this] { rememberWords(); });
    QObject::connect(view, &QAbstractItemView::activated, q, [this] { rememberWords(); });
}

void SearchWidgetPrivate::selectFirst()
{
    if (view->selectionModel()->hasSelection())
        return;
    view->selectionModel()->setCurrentIndex(view->model()->index(0, 0),
                                            QItemSelectionModel::ClearAndSelect);
}

void SearchWidgetPrivate::search()
{
    m_pause.stop();
    m_query = CatalogSearchQuery::fromRequest(*top->getRequestData());
    searchOnceMore();
}

void SearchWidgetPrivate::searchOnceMore()
{
    m_isSearching = false;
    m_waitsForIndex = false;
    m_again->setVisible(m_outdated->isVisibleTo(q));
    if (!m_searcher)
        return showText(searchText("Die Suche steht nicht zur Verfügung."), true);
    if (m_query.isEmpty()) {
        m_searcher->cancelSearch();
        view->showResults(nullptr);
        return showText(searchText("Suchen Sie nach Wörtern, oder fügen Sie Bedingungen hinzu."),
                        true);
    }
    sendQuery();
    m_status->setText(searchText("Wird gesucht ..."));
}

void SearchWidgetPrivate::sendQuery()
{
    m_isSearching = true;
    m_sinceSearch.start();
    m_token = m_searcher->search(m_query);
}

void SearchWidgetPrivate::onFinished(int token, const CatalogSearchResult &result)
{
    if (!m_isSearching || token != m_token || result.state == CatalogSearchState::Cancelled)
        return;
    m_isSearching = false;
    m_waitsForIndex = false;
    view->showResults(std::make_shared<const CatalogSearchResult>(result));
    showState(result);
}

void SearchWidgetPrivate::showState(const CatalogSearchResult &result)
{
    const qsizetype hits = result.hits.size();
    const QString found = searchText("%Ln Projekt(e) gefunden", hits);
    switch (result.state) {
    case CatalogSearchState::Found:
        return showText(result.hasMore ? searchText("Die ersten %Ln Projekt(e); es gibt mehr. "
                                                    "Suchen Sie genauer.",
                                                    hits)
                                       : found,
                        false);
    case CatalogSearchState::NothingFound:
        return showText(searchText("Nichts gefunden. Suchen Sie mit anderen Wörtern oder weniger "
                                   "Bedingungen."),
                        true);
    case CatalogSearchState::IndexBuilding:
    case CatalogSearchState::IndexMissing:
        m_waitsForIndex = true;
        // It may have failed while the search was under way.
        if (m_searcher && !m_searcher->isUpdating())
            m_searcher->update();
        showProgress(true);
        return showText(
            hits == 0 ? searchText("Der Suchindex wird noch aufgebaut.")
                      : searchText("Der Suchindex wird noch aufgebaut; bisher: %1").arg(found),
            hits == 0);
    case CatalogSearchState::Failed:
        m_again->show();
        return showText(searchText("Die Suche ist fehlgeschlagen: %1").arg(result.errorText), true);
    case CatalogSearchState::Cancelled:
        break;
    }
}

void SearchWidgetPrivate::showText(const QString &text, bool inView)
{
    m_status->setText(text);
    view->setEmptyText(inView ? text : QString());
    view->setAccessibleDescription(text);
}

void SearchWidgetPrivate::showProgress(bool visible)
{
    if (visible && m_progress->isHidden())
        m_progress->setRange(0, 0);
    m_progress->setVisible(visible);
}

void SearchWidgetPrivate::onProgress(int done, int total)
{
    showProgress(true);
    // What is in the index so far is shown from time to time.
    if (m_waitsForIndex && !m_isSearching && m_sinceSearch.hasExpired(refreshInMilliseconds))
        sendQuery();
    m_progress->setRange(0, total);
    m_progress->setValue(done);
    const QString text = searchText("%1 von %Ln Projekt(en)", total);
    m_progress->setFormat(text.arg(countText(done)));
    const QFontMetrics font = m_progress->fontMetrics();
    m_progress->setMinimumWidth(font.horizontalAdvance(text.arg(countText(total))) +
                                2 * font.height());
}

void SearchWidgetPrivate::showOutdated(const QString &problem)
{
    m_outdated->setText(
        searchText("Gesucht wird in dem, was auf dieser Maschine liegt.\n%1").arg(problem));
    m_outdated->setVisible(!problem.isEmpty());
    m_again->setVisible(!problem.isEmpty());
}

/// The catalogs may say something else now: what is wanted is looked for once more.
void SearchWidgetPrivate::onUpdated(const QString &error)
{
    showProgress(false);
    if (error.isEmpty())
        return m_query.isEmpty() ? void() : searchOnceMore();
    if (m_waitsForIndex || m_query.isEmpty()) {
        m_again->show();
        showText(searchText("Der Suchindex konnte nicht aufgebaut werden: %1").arg(error), true);
    }
}

void SearchWidgetPrivate::rememberWords()
{
    if (!m_searcher)
        return;
    m_group->addRecentWords(top->words());
    top->setRecentWords(m_group->recentWords());
}
