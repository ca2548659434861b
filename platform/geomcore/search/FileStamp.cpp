#include "FileStamp.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

/// The coarsest clock of common file systems.
constexpr qint64 Tick = 2'000'000'000;

#ifdef Q_OS_UNIX
FileStamp stampOf(const struct stat &info)
{
    return {qint64(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec, info.st_size};
}
#endif

bool isPath(const QString &file)
{
    return file.contains(u'/') || file.contains(u'\\');
}

} // namespace

FileStamp FileStamp::of(const QString &file)
{
#ifdef Q_OS_UNIX
    struct stat info;
    if (stat(QFile::encodeName(file).constData(), &info) != 0)
        return {};
    return stampOf(info);
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

DirectoryStamps::DirectoryStamps(const QString &directory)
    : m_directory(directory)
{
#ifdef Q_OS_UNIX
    m_handle = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
#endif
}

DirectoryStamps::~DirectoryStamps()
{
#ifdef Q_OS_UNIX
    if (m_handle >= 0)
        ::close(m_handle);
#endif
}

FileStamp DirectoryStamps::of(const QString &file) const
{
    if (isPath(file))
        return FileStamp::of(file);
#ifdef Q_OS_UNIX
    if (m_handle >= 0) {
        struct stat info;
        return ::fstatat(m_handle, QFile::encodeName(file).constData(), &info, 0) == 0
                   ? stampOf(info)
                   : FileStamp();
    }
#endif
    return FileStamp::of(m_directory + QDir::separator() + file);
}
