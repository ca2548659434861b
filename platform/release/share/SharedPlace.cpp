#include "SharedPlace.h"

#include "FolderPlace.h"
#include "SubversionPlace.h"

#include <core/files/LockFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

namespace VelkRelease {

namespace {

using namespace std::chrono_literals;

/// So long another one may be publishing.
constexpr std::chrono::milliseconds lockWait = 5s;
/// A lock that is older was left by a computer that is gone.
constexpr std::chrono::milliseconds lockAge = 10min;

} // namespace

SharedPlace::SharedPlace(const QString &file)
    : m_file(QFileInfo(file).absoluteFilePath())
{
}

SharedPlace::~SharedPlace() = default;

std::unique_ptr<SharedPlace> SharedPlace::at(const QString &file)
{
    if (SubversionPlace::isWorkingCopy(QFileInfo(file).absolutePath()))
        return std::make_unique<SubversionPlace>(file);
    return std::make_unique<FolderPlace>(file);
}

QString SharedPlace::notesFolder() const
{
    return m_file + QStringLiteral(".shared");
}

QList<QByteArray> SharedPlace::notes() const
{
    QList<QByteArray> all;
    const QStringList files = noteFiles(QStringLiteral(".json"));
    for (const QString &file : files) {
        QByteArray bytes;
        if (read(file, bytes).isDone())
            all += bytes;
    }
    return all;
}

QStringList SharedPlace::noteFiles(const QString &ending) const
{
    QStringList files;
    const QFileInfoList found =
        QDir(notesFolder()).entryInfoList({u'*' + ending}, QDir::Files, QDir::Name);
    for (const QFileInfo &info : found)
        files += info.filePath();
    return files;
}

ShareAnswer SharedPlace::read(const QString &file, QByteArray &bytes)
{
    QFile from(file);
    if (!from.open(QIODevice::ReadOnly))
        return {ShareAnswer::NotReachable, file + QStringLiteral(": ") + from.errorString()};
    bytes = from.readAll();
    if (from.error() != QFileDevice::NoError)
        return {ShareAnswer::NotReachable, file + QStringLiteral(": ") + from.errorString()};
    return {};
}

QString SharedPlace::lockFile() const
{
    return m_file + QStringLiteral(".lock");
}

ShareAnswer SharedPlace::takeLock(QLockFile &lock) const
{
    lock.setStaleLockTime(int(lockAge.count()));
    if (LockFile::take(lock, lockWait))
        return {};
    if (lock.error() == QLockFile::LockFailedError) {
        qint64 process = 0;
        QString host;
        QString program;
        (void)lock.getLockInfo(&process, &host, &program);
        return {ShareAnswer::Busy, host};
    }
    const QString folder = QFileInfo(m_file).path();
    return {QFileInfo(folder).isDir() ? ShareAnswer::NotWritable : ShareAnswer::NotReachable,
            folder};
}

} // namespace VelkRelease
