#include "DurableFile.h"

#include "ContentHash.h"

#include <core/text/PString.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

bool report(QString *error, const QString &what)
{
    if (error)
        *error = what;
    return false;
}

bool copyBytes(QFile &from, QFileDevice &to, ContentHash &hash)
{
    constexpr qint64 Piece = 1 << 20;
    while (!from.atEnd()) {
        const QByteArray bytes = from.read(Piece);
        if (bytes.isEmpty() || to.write(bytes) != bytes.size())
            return false;
        hash.add(bytes);
    }
    return from.error() == QFileDevice::NoError;
}

/// The entry of a file that came or was renamed. Some file systems cannot sync a folder; the file
/// itself is safe all the same.
void syncFolderOf(const QString &path)
{
#ifdef Q_OS_UNIX
    const int folder = ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
#else
    Q_UNUSED(path)
#endif
}

} // namespace

bool DurableFile::sync(QFileDevice &file, QString *error)
{
    if (!file.flush())
        return report(error, file.errorString());
#ifdef Q_OS_UNIX
    // Some file systems do not know the call; what they took is as safe as it gets there.
    if (::fsync(file.handle()) != 0 && errno != EINVAL && errno != ENOSYS && errno != ENOTSUP)
        return report(error, qt_error_string());
#endif
    return true;
}

bool DurableFile::syncPath(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return report(error, file.errorString());
    if (!sync(file, error))
        return false;
    syncFolderOf(path);
    return true;
}

bool DurableFile::open(QSaveFile &file, QString *error)
{
    const QFileInfo info(file.fileName());
    if (info.exists() && !info.isFile())
        return report(error, PString::translate("Das ist keine gewöhnliche Datei.", "VelkCore"));
    return file.open(QIODevice::WriteOnly) || report(error, file.errorString());
}

bool DurableFile::commit(QSaveFile &file, QString *error)
{
    // QSaveFile::commit alone would neither notice that what is still buffered finds no room nor
    // that the disk refuses it.
    if (file.error() != QFileDevice::NoError)
        return report(error, file.errorString());
    if (!sync(file, error))
        return false;
    if (!file.commit())
        return report(error, file.errorString());
    syncFolderOf(QFileInfo(file.fileName()).canonicalFilePath());
    return true;
}

bool DurableFile::write(const QString &path, const QByteArray &bytes, QString *error)
{
    QSaveFile file(path);
    if (!open(file, error))
        return false;
    if (file.write(bytes) != bytes.size())
        return report(error, file.errorString());
    return commit(file, error);
}

bool DurableFile::copy(const QString &from, const QString &to, QString *error)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly))
        return report(error, source.errorString());
    QSaveFile target(to);
    if (!open(target, error))
        return false;
    target.setPermissions(source.permissions());
    ContentHash hash;
    if (!copyBytes(source, target, hash))
        return report(error, source.error() == QFileDevice::NoError ? target.errorString()
                                                                    : source.errorString());
    if (!commit(target, error))
        return false;
    if (FileState::of(to).hash != hash.result())
        return report(error,
                      PString::translate("Die Kopie unterscheidet sich vom Original.", "VelkCore"));
    return true;
}

bool DurableFile::rename(const QString &from, const QString &to, QString *error)
{
    // As POSIX has it; QFile::rename would not replace a file that is there.
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return report(error, qt_error_string());
    return true;
}

QString DurableFile::stampedName(const QString &path, const QString &word)
{
    const QString stamp =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss'Z'"));
    const QString name = QStringLiteral("%1.%2-%3").arg(path, word, stamp);
    QString free = name;
    for (int i = 2; QFile::exists(free); ++i)
        free = QStringLiteral("%1-%2").arg(name, QString::number(i));
    return free;
}

FileState FileState::of(const QString &path)
{
    FileState state;
    QFile file(path);
    const QFileInfo info(path);
    state.exists = info.exists();
    if (!state.exists || !info.isFile() || !file.open(QIODevice::ReadOnly))
        return state;
    state.size = info.size();
    state.time = info.lastModified().toUTC();
    constexpr qint64 Piece = 1 << 20;
    ContentHash hash;
    while (!file.atEnd()) {
        const QByteArray bytes = file.read(Piece);
        if (bytes.isEmpty())
            return state;
        hash.add(bytes);
    }
    state.hash = hash.result();
    return state;
}

QByteArray FileState::hashOf(QByteArrayView content)
{
    return ContentHash::of(content);
}

bool FileState::sameContent(const FileState &other) const
{
    return exists == other.exists && size == other.size && hash == other.hash;
}
