#include "LockFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

namespace {

using namespace std::chrono_literals;

/// Whoever makes a lock file writes himself into it at once.
constexpr std::chrono::milliseconds makingTakes = 1s;

/// The time at which a file that names nobody was made; none if there is no such file.
QDateTime blankSince(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.readLine(64).endsWith('\n'))
        return {};
    return QFileInfo(path).lastModified();
}

} // namespace

bool LockFile::take(QLockFile &lock, std::chrono::milliseconds wait)
{
    if (lock.tryLock(0))
        return true;
    const QDateTime since = blankSince(lock.fileName());
    if (lock.error() == QLockFile::LockFailedError && since.isValid()) {
        QThread::msleep(makingTakes.count());
        // A maker who lives and only is slow holds the open file, which the removal respects.
        if (blankSince(lock.fileName()) == since && lock.removeStaleLockFile() && lock.tryLock(0))
            return true;
    }
    return wait > 0ms && lock.error() == QLockFile::LockFailedError &&
           lock.tryLock(int(wait.count()));
}
