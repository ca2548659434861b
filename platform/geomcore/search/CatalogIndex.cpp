#include "CatalogIndex.h"

#include "CatalogSearch.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

namespace {

constexpr qint64 ProgressInterval = 50;
constexpr std::chrono::milliseconds BusyInterval{500};

CatalogIndexOutcome sum(const CatalogIndexOutcome &first, CatalogIndexOutcome second)
{
    second.added += first.added;
    second.changed += first.changed;
    second.removed += first.removed;
    return second;
}

} // namespace

struct CatalogIndex::Private
{
    Private(const QString &file, const QString &catalogRoot)
        : indexFile(QFileInfo(file).absoluteFilePath())
        , root(catalogRoot)
    {
    }

    /// On the update's thread.
    CatalogIndexOutcome runUpdate(bool anew, const CatalogIndexUpdate::Tell &tell);
    CatalogIndexOutcome runOnce(CatalogIndexUpdate &update, CatalogIndexUpdate::Check check,
                                const CatalogIndexUpdate::Tell &tell);
    /// The loop of the search's thread.
    void searchAll(const std::function<void(int, const CatalogSearchResult &)> &tell);

    const QString indexFile;
    const QString root;
    Bring bring;

    std::thread updateThread;
    bool isUpdating = false;
    bool updatesAgain = false;
    bool updatesAnew = false;
    std::mutex updateLock;
    std::condition_variable updateWake;
    std::atomic<bool> updateCancelled = false;

    std::thread searchThread;
    std::mutex searchLock; // guards the next three
    std::condition_variable searchWake;
    std::optional<CatalogSearchQuery> wanted;
    int wantedNumber = 0;
    bool ends = false;
    std::atomic<bool> searchCancelled = false;
    int lastNumber = 0;
};

CatalogIndex::CatalogIndex(const QString &indexFile, const QString &catalogRoot, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(indexFile, catalogRoot))
{
}

CatalogIndex::~CatalogIndex()
{
    cancelUpdate();
    {
        const std::scoped_lock guard(d->searchLock);
        d->ends = true;
        d->searchCancelled = true;
    }
    d->searchWake.notify_all();
    for (std::thread *thread : {&d->updateThread, &d->searchThread}) {
        if (thread->joinable())
            thread->join();
    }
}

void CatalogIndex::setBring(Bring bring)
{
    d->bring = std::move(bring);
}

QString CatalogIndex::standardFile(const QString &catalogRoot)
{
    const QByteArray root = CatalogIndexUpdate::resolvedRoot(catalogRoot).toUtf8();
    const QByteArray hash =
        QCryptographicHash::hash(root, QCryptographicHash::Sha256).toHex().left(16);
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/velkworkbench/catalog-") + QString::fromLatin1(hash) +
           QStringLiteral(".index");
}

const QString &CatalogIndex::indexFile() const
{
    return d->indexFile;
}

bool CatalogIndex::isUpdating() const
{
    return d->isUpdating;
}

void CatalogIndex::update()
{
    if (d->isUpdating)
        d->updatesAgain = true;
    else
        startUpdate(false);
}

void CatalogIndex::startUpdate(bool anew)
{
    if (d->updateThread.joinable())
        d->updateThread.join(); // has said its last word
    d->isUpdating = true;
    d->updatesAgain = false;
    d->updateCancelled = false;
    d->updateThread = std::thread([this, anew] {
        QElapsedTimer clock;
        clock.start();
        qint64 told = -ProgressInterval;
        const auto tell = [&](int done, int total) {
            if (clock.elapsed() - told >= ProgressInterval) {
                told = clock.elapsed();
                QMetaObject::invokeMethod(
                    this, [this, done, total] { Q_EMIT updateProgress(done, total); },
                    Qt::QueuedConnection);
            }
            return !d->updateCancelled;
        };
        const CatalogIndexOutcome outcome = d->runUpdate(anew, tell);
        QMetaObject::invokeMethod(
            this, [this, outcome] { endUpdate(outcome); }, Qt::QueuedConnection);
    });
}

CatalogIndexOutcome CatalogIndex::Private::runUpdate(bool anew,
                                                     const CatalogIndexUpdate::Tell &tell)
{
    CatalogIndexUpdate update(indexFile, root);
    if (anew)
        update.setMakesAnew();
    QStringList outdated;
    if (bring)
        outdated = bring([&tell] { return tell(0, 0); });
    CatalogIndexOutcome quick = runOnce(update, CatalogIndexUpdate::Directories, tell);
    quick.outdated = outdated;
    if (quick.state != CatalogIndexOutcome::Done || bring)
        return quick;
    return sum(quick, runOnce(update, CatalogIndexUpdate::Files, tell));
}

CatalogIndexOutcome CatalogIndex::Private::runOnce(CatalogIndexUpdate &update,
                                                   CatalogIndexUpdate::Check check,
                                                   const CatalogIndexUpdate::Tell &tell)
{
    for (;;) {
        CatalogIndexOutcome outcome = update.run(check, tell);
        if (outcome.state != CatalogIndexOutcome::Busy)
            return outcome;
        std::unique_lock guard(updateLock);
        updateWake.wait_for(guard, BusyInterval, [this] { return bool(updateCancelled); });
        if (updateCancelled) {
            outcome.state = CatalogIndexOutcome::Cancelled;
            return outcome;
        }
    }
}

void CatalogIndex::endUpdate(const CatalogIndexOutcome &outcome)
{
    d->isUpdating = false;
    const bool anew = std::exchange(d->updatesAnew, false);
    const bool again = d->updatesAgain && outcome.state == CatalogIndexOutcome::Done;
    if (again || anew)
        startUpdate(anew);
    else
        Q_EMIT updateFinished(outcome);
}

void CatalogIndex::cancelUpdate()
{
    {
        const std::scoped_lock guard(d->updateLock);
        d->updateCancelled = true;
    }
    d->updatesAgain = false;
    d->updatesAnew = false;
    d->updateWake.notify_all();
}

int CatalogIndex::search(const CatalogSearchQuery &query)
{
    {
        const std::scoped_lock guard(d->searchLock);
        d->wanted = query;
        d->wantedNumber = ++d->lastNumber;
        d->searchCancelled = true; // the former one
    }
    if (!d->searchThread.joinable())
        d->searchThread = std::thread([this] {
            d->searchAll([this](int number, const CatalogSearchResult &result) {
                QMetaObject::invokeMethod(
                    this, [this, number, result] { endSearch(number, result); },
                    Qt::QueuedConnection);
            });
        });
    d->searchWake.notify_all();
    return d->lastNumber;
}

void CatalogIndex::cancelSearch()
{
    const std::scoped_lock guard(d->searchLock);
    d->wanted.reset();
    d->searchCancelled = true;
    ++d->lastNumber; // what is under way is none of the last any more
}

void CatalogIndex::Private::searchAll(
    const std::function<void(int, const CatalogSearchResult &)> &tell)
{
    const CatalogSearch search(indexFile, root);
    std::unique_lock guard(searchLock);
    for (;;) {
        searchWake.wait(guard, [this] { return ends || wanted; });
        if (ends)
            return;
        const CatalogSearchQuery query = *std::exchange(wanted, std::nullopt);
        const int number = wantedNumber;
        searchCancelled = false;
        guard.unlock();
        tell(number, search.run(query, &searchCancelled));
        guard.lock();
    }
}

void CatalogIndex::endSearch(int number, const CatalogSearchResult &result)
{
    if (number != d->lastNumber)
        return;
    CatalogSearchResult told = result;
    if (result.state == CatalogSearchState::IndexMissing) {
        if (!d->isUpdating)
            startUpdate(result.isDamaged);
        else
            d->updatesAnew = d->updatesAnew || result.isDamaged;
        told.state = CatalogSearchState::IndexBuilding;
    }
    Q_EMIT searchFinished(number, told);
}
