#include "DurableFile.h"

#include <QCryptographicHash>
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

bool copyBytes(QFile &from, QFileDevice &to, QCryptographicHash &hash)
{
    constexpr qint64 Piece = 1 << 20;
    while (!from.atEnd()) {
        const QByteArray bytes = from.read(Piece);
        if (bytes.isEmpty() || to.write(bytes) != bytes.size())
            return false;
        hash.addData(bytes);
    }
    return from.error() == QFileDevice::NoError;
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
#ifdef Q_OS_UNIX
    // Some file systems cannot sync a folder; the file itself is safe all the same.
    const int folder = ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
#endif
    return true;
}

bool DurableFile::copy(const QString &from, const QString &to, QString *error)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly))
        return report(error, source.errorString());
    QSaveFile target(to);
    if (!target.open(QIODevice::WriteOnly))
        return report(error, target.errorString());
    target.setPermissions(source.permissions());
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    if (!copyBytes(source, target, hash))
        return report(error, source.error() == QFileDevice::NoError ? target.errorString()
                                                                    : source.errorString());
    if (!sync(target, error))
        return false;
    if (!target.commit())
        return report(error, target.errorString());
    if (FileState::of(to).hash != hash.result().toHex())
        return report(error, QStringLiteral("The copy differs from the original."));
    return true;
}

bool DurableFile::rename(const QString &from, const QString &to, QString *error)
{
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
        free = QStringLiteral("%1-%2").arg(name).arg(i);
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
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    if (hash.addData(&file))
        state.hash = hash.result().toHex();
    return state;
}

bool FileState::sameContent(const FileState &other) const
{
    return exists == other.exists && size == other.size && hash == other.hash;
}
