#include "FileStamps.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace VKTab {

namespace {

/// Times of files come from a clock that goes on this rarely, in milliseconds.
constexpr qint64 Tick = 20;
constexpr qint64 Milliseconds = 1'000'000;

#ifdef Q_OS_UNIX
qint64 nanoseconds(const struct timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}
#endif

} // namespace

FileStamps::FileStamps(const QStringList &nativePaths)
    : m_paths(nativePaths)
{
    m_stamps.reserve(size_t(nativePaths.size()));
    for (const QString &path : nativePaths) {
        Stamp &stamp = m_stamps.emplace_back();
#ifdef Q_OS_UNIX
        struct stat info;
        if (::stat(QFile::encodeName(path).constData(), &info) == 0)
            stamp = {nanoseconds(info.st_mtim),
                     qint64(info.st_size),
                     {qint64(info.st_dev), qint64(info.st_ino), nanoseconds(info.st_ctim)}};
#else
        const QFileInfo file(path);
        if (file.exists())
            stamp = {file.lastModified().toMSecsSinceEpoch() * Milliseconds, file.size(), {}};
#endif
    }
}

void FileStamps::distrustSince(qint64 moment)
{
    for (Stamp &stamp : m_stamps) {
        if (stamp.time > (moment - Tick) * Milliseconds)
            stamp.size = -2;
    }
}

} // namespace VKTab
