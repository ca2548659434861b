#include "CatalogIndexUpdate.h"

#include "CatalogIndexFile.h"
#include "CatalogIndexWriter.h"
#include "CatalogScan.h"
#include <core/files/LockFile.h>
#include <core/parallel/WorkerPool.h>
#include <core/text/PPathName.h>
#include <geomcore/project/CatalogPlaces.h>

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include <algorithm>
#include <atomic>
#include <utility>

namespace {

/// So many projects are read and written in one transaction.
constexpr size_t BatchSize = 4096;
/// So many are read in one step: threads that take steps one by one wait for each other.
constexpr size_t ReadInOneStep = 8;
/// After so many the caller is told, and may break off.
constexpr size_t TellEvery = 64;

QString lockFileOf(const QString &indexFile)
{
    return indexFile + QStringLiteral(".lock");
}

} // namespace

struct CatalogIndexUpdate::Private
{
    Private(const QString &index, const QString &catalogRoot)
        : indexFile(index)
        , root(catalogRoot)
        , file(index, catalogRoot)
    {
    }

    const QString indexFile;
    const QString root;
    CatalogIndexFile file;
    Tell tell;
    bool makesAnew = false;
    CatalogIndexOutcome outcome;

    [[nodiscard]] bool goOn(int done, int total) const { return !tell || tell(done, total); }
    CatalogIndexOutcome fail(CatalogIndexOutcome::State state, const QString &text);
    CatalogIndexOutcome failAtFile();
    CatalogIndexOutcome work(bool checkFiles);
    [[nodiscard]] bool removeGone(const CatalogScan &scan);
    [[nodiscard]] bool readAll(const CatalogScan &scan);
    [[nodiscard]] bool readBatch(const CatalogScan &scan, size_t begin, size_t end);
    [[nodiscard]] bool finish(CatalogScan &scan);
};

CatalogIndexUpdate::CatalogIndexUpdate(const QString &indexFile, const QString &catalogRoot)
    : d(std::make_unique<Private>(QFileInfo(indexFile).absoluteFilePath(),
                                  resolvedRoot(catalogRoot)))
{
    CatalogPlaces::instance().addRoot(PPathName(d->root));
}

CatalogIndexUpdate::~CatalogIndexUpdate() = default;

QString CatalogIndexUpdate::resolvedRoot(const QString &catalogRoot)
{
    const QString path = PPathName(catalogRoot).normalized();
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? QDir().absoluteFilePath(path) : real;
}

bool CatalogIndexUpdate::isRunning(const QString &indexFile)
{
    QLockFile lock(lockFileOf(QFileInfo(indexFile).absoluteFilePath()));
    lock.setStaleLockTime(0);
    return QFileInfo::exists(lock.fileName()) && !lock.tryLock(0) &&
           lock.error() == QLockFile::LockFailedError;
}

void CatalogIndexUpdate::setMakesAnew()
{
    d->makesAnew = true;
}

CatalogIndexOutcome CatalogIndexUpdate::run(Check check, const Tell &tell)
{
    d->tell = tell;
    d->outcome = {};
    const QFileInfo root(d->root);
    if (!root.isDir() || !root.isReadable())
        return d->fail(CatalogIndexOutcome::RootUnreadable,
                       PString::translate("„%1“ ist kein lesbares Verzeichnis", "VelkGeomCore")
                           .arg(QDir::toNativeSeparators(d->root)));
    const QString place = QFileInfo(d->indexFile).absolutePath();
    QLockFile lock(lockFileOf(d->indexFile));
    lock.setStaleLockTime(0);
    if (!QDir().mkpath(place) || !LockFile::take(lock, std::chrono::milliseconds(0)))
        return lock.error() == QLockFile::LockFailedError
                   ? d->fail(CatalogIndexOutcome::Busy, {})
                   : d->fail(CatalogIndexOutcome::Failed,
                             PString::translate("„%1“ ist nicht beschreibbar", "VelkGeomCore")
                                 .arg(QDir::toNativeSeparators(place)));
    if (std::exchange(d->makesAnew, false))
        (void)d->file.discard();
    CatalogIndexOutcome outcome = d->work(check == Files);
    if (outcome.state == CatalogIndexOutcome::Failed && d->file.isDamaged()) {
        // Found out while it was read or written: once more, from the begin.
        (void)d->file.discard();
        outcome = d->work(check == Files);
    }
    d->file.close();
    return outcome;
}

CatalogIndexOutcome CatalogIndexUpdate::Private::fail(CatalogIndexOutcome::State state,
                                                      const QString &text)
{
    outcome.state = state;
    outcome.errorText = text;
    return outcome;
}

CatalogIndexOutcome CatalogIndexUpdate::Private::failAtFile()
{
    return fail(CatalogIndexOutcome::Failed, file.errorText());
}

CatalogIndexOutcome CatalogIndexUpdate::Private::work(bool checkFiles)
{
    outcome = {};
    if (file.openToWrite() != CatalogIndexFile::Opened)
        return failAtFile();
    CatalogScan scan(file, root, [this] { return goOn(0, 0); });
    const bool scanned = file.run(QStringLiteral("BEGIN IMMEDIATE")) && scan.run(checkFiles) &&
                         removeGone(scan) && file.run(QStringLiteral("COMMIT"));
    outcome.unreadable = scan.unreadable();
    if (!scanned) {
        const QString error = file.errorText();
        (void)file.run(QStringLiteral("ROLLBACK"));
        return scan.isBrokenOff() ? fail(CatalogIndexOutcome::Cancelled, {})
                                  : fail(CatalogIndexOutcome::Failed, error);
    }
    if (!readAll(scan))
        return outcome.state == CatalogIndexOutcome::Cancelled ? outcome : failAtFile();
    return finish(scan) ? outcome : failAtFile();
}

bool CatalogIndexUpdate::Private::removeGone(const CatalogScan &scan)
{
    CatalogIndexWriter writer(file);
    for (const qint64 project : scan.gone()) {
        if (!writer.remove(project))
            return false;
    }
    outcome.removed = int(scan.gone().size());
    return true;
}

bool CatalogIndexUpdate::Private::readAll(const CatalogScan &scan)
{
    const size_t count = scan.work().size();
    for (size_t begin = 0; begin < count; begin += BatchSize) {
        if (!readBatch(scan, begin, std::min(begin + BatchSize, count)))
            return false;
        if (outcome.state == CatalogIndexOutcome::Cancelled)
            return false;
    }
    (void)goOn(int(count), int(count));
    return true;
}

// This thread alone writes; it reads only while nothing is there to be written, the others always.
bool CatalogIndexUpdate::Private::readBatch(const CatalogScan &scan, size_t begin, size_t end)
{
    if (!file.run(QStringLiteral("BEGIN IMMEDIATE")))
        return false;
    const std::vector<CatalogScan::Work> &all = scan.work();
    std::vector<IndexedProject> projects(end - begin);
    std::vector<std::atomic<bool>> areRead(projects.size());
    CatalogIndexWriter writer(file);
    size_t written = 0;
    size_t nextTell = 0;
    bool failed = false;
    const auto writeThoseRead = [&](int /*done*/) {
        if (outcome.state == CatalogIndexOutcome::Cancelled || failed)
            return false;
        for (; written < projects.size() && areRead[written]; ++written) {
            if (written >= nextTell && !goOn(int(begin + written), int(all.size()))) {
                outcome.state = CatalogIndexOutcome::Cancelled;
                return false;
            }
            nextTell = std::max(nextTell, written - written % TellEvery + TellEvery);
            const CatalogScan::Work &work = all[begin + written];
            if (!writer.enter(projects[written], work.known, scan.chainOf(work.directory)))
                return !(failed = true);
            projects[written] = {};
            ++(work.known == 0 ? outcome.added : outcome.changed);
        }
        return true;
    };
    const auto read = [&](int step) {
        const size_t first = size_t(step) * ReadInOneStep;
        for (size_t i = first; i < std::min(first + ReadInOneStep, projects.size()); ++i) {
            projects[i] = IndexedProject::read(root, all[begin + i].path);
            areRead[i] = true;
        }
    };
    const size_t steps = (projects.size() + ReadInOneStep - 1) / ReadInOneStep;
    (void)WorkerPool::instance().run(int(steps), read, writeThoseRead);
    return !failed && file.run(QStringLiteral("COMMIT"));
}

bool CatalogIndexUpdate::Private::finish(CatalogScan &scan)
{
    if (!file.run(QStringLiteral("BEGIN IMMEDIATE")) || !scan.keepTimes() || !file.setComplete())
        return false;
    QSqlQuery count = file.prepared(QStringLiteral("SELECT count(*) FROM projects"));
    if (!file.run(count) || !count.next())
        return false;
    outcome.projects = count.value(0).toInt();
    count.finish();
    return file.run(QStringLiteral("COMMIT"));
}
