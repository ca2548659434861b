#include "FileStamp.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

/// The coarsest clock of common file systems.
constexpr qint64 Tick = 2'000'000'000;

} // namespace

FileStamp FileStamp::of(const QString &file)
{
#ifdef Q_OS_UNIX
    struct stat info;
    if (stat(QFile::encodeName(file).constData(), &info) != 0)
        return {};
    return {qint64(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec, info.st_size};
#else
    const QFileInfo info(file);
    if (!info.exists())
        return {};
    return {info.lastModified().toMSecsSinceEpoch() * 1'000'000, info.size()};
#endif
}

void FileStamp::distrustIfYoung()
{
    if (size != Missing && time > QDateTime::currentMSecsSinceEpoch() * 1'000'000 - Tick)
        size = Distrusted;
}
