#include "OwnFile.h"

#include <core/files/DurableFile.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct OwnFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(OwnFileTexts)
};

bool report(QString *error, const QString &what)
{
    if (error)
        *error = what;
    return false;
}

bool reportErrno(QString *error)
{
    return report(error, OwnFile::causeOf(errno));
}

QByteArray nativeName(const QString &path)
{
    return QFile::encodeName(path);
}

QString partName(const QString &path)
{
    return path + QStringLiteral(".part");
}

int flagsOf(QIODevice::OpenMode mode)
{
    int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    const bool writes = mode.testFlag(QIODevice::WriteOnly);
    flags |= !writes ? O_RDONLY : mode.testFlag(QIODevice::ReadOnly) ? O_RDWR : O_WRONLY;
    if (writes && !mode.testFlag(QIODevice::ExistingOnly))
        flags |= O_CREAT;
    if (mode.testFlag(QIODevice::NewOnly))
        flags |= O_EXCL;
    if (mode.testFlag(QIODevice::Append))
        flags |= O_APPEND;
    return flags;
}

/// Rights and owner of another file, as far as the system allows it.
void takeAfter(int file, const QString &like)
{
    struct stat known
    {
    };
    if (like.isEmpty() || ::lstat(nativeName(like).constData(), &known) != 0 ||
        !S_ISREG(known.st_mode))
        return;
    if (::fchown(file, known.st_uid, known.st_gid) != 0)
        (void)!::fchown(file, uid_t(-1), known.st_gid);
    (void)!::fchmod(file, known.st_mode & 07777);
}

bool writeAll(int file, QByteArrayView content)
{
    while (!content.isEmpty()) {
        const ssize_t count = ::write(file, content.data(), size_t(content.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        content = content.sliced(qsizetype(count));
    }
    return true;
}

/// Some file systems do not know the call; what they took is as safe as it gets there.
bool syncDescriptor(int file)
{
    return ::fsync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
}

/// \a finish is called with the written file and tells whether it is good.
bool createWith(const QString &path, QByteArrayView content, const QString &like, auto finish,
                QString *error)
{
    QFile file;
    if (!OwnFile::open(file, path,
                       QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered, error))
        return false;
    takeAfter(file.handle(), like);
    if (writeAll(file.handle(), content) && finish(file.handle()))
        return true;
    reportErrno(error);
    file.close();
    OwnFile::remove(path);
    return false;
}

QByteArray stampOf(const struct stat &found)
{
    const qint64 parts[] = {qint64(found.st_dev), qint64(found.st_ino), qint64(found.st_size),
                            qint64(found.st_mtim.tv_sec), qint64(found.st_mtim.tv_nsec)};
    return QByteArray(reinterpret_cast<const char *>(parts), sizeof parts);
}

} // namespace

OwnFile::Place OwnFile::place(const QString &path)
{
    struct stat found
    {
    };
    if (::lstat(nativeName(path).constData(), &found) != 0)
        return errno == ENOENT || errno == ENOTDIR ? Place::Free : Place::Other;
    return S_ISREG(found.st_mode) ? Place::RegularFile : Place::Other;
}

QByteArray OwnFile::stamp(const QString &path)
{
    struct stat found
    {
    };
    return ::lstat(nativeName(path).constData(), &found) == 0 ? stampOf(found) : QByteArray();
}

QByteArray OwnFile::identity(const QFile &file)
{
    struct stat found
    {
    };
    if (::fstat(file.handle(), &found) != 0)
        return QByteArray();
    // File systems that know no fractions of a second go by two of them.
    const qint64 tick = found.st_mtim.tv_nsec == 0 ? 2000 : 20;
    const qint64 written =
        qint64(found.st_mtim.tv_sec) * 1000 + qint64(found.st_mtim.tv_nsec) / 1'000'000;
    if (written > QDateTime::currentMSecsSinceEpoch() - tick)
        return QByteArray();
    const qint64 changed[] = {qint64(found.st_ctim.tv_sec), qint64(found.st_ctim.tv_nsec)};
    return stampOf(found) + QByteArray(reinterpret_cast<const char *>(changed), sizeof changed);
}

QByteArray OwnFile::identity(const QString &path)
{
    QFile file;
    return open(file, path, QIODevice::ReadOnly | QIODevice::Unbuffered) ? identity(file)
                                                                         : QByteArray();
}

QString OwnFile::causeOf(int errorNumber)
{
    switch (errorNumber) {
    case ENOSPC:
    case EDQUOT:
        return OwnFileTexts::tr("der Datenträger ist voll");
    case EFBIG:
        return OwnFileTexts::tr("die Datei wird größer, als hier erlaubt ist");
    case EACCES:
    case EPERM:
        return OwnFileTexts::tr("das Schreibrecht fehlt");
    case EROFS:
        return OwnFileTexts::tr("der Datenträger ist schreibgeschützt");
    case ENOENT:
        return OwnFileTexts::tr("der Ordner oder die Datei ist nicht mehr da");
    case EEXIST:
    case EISDIR:
    case ELOOP:
    case ENXIO:
        return OwnFileTexts::tr("an ihrer Stelle steht etwas anderes als eine gewöhnliche Datei");
    default:
        return qt_error_string(errorNumber);
    }
}

bool OwnFile::open(QFile &file, const QString &path, QIODevice::OpenMode mode, QString *error)
{
    // Opening a device may do something already.
    if (place(path) == Place::Other)
        return report(error, causeOf(ELOOP));
    constexpr mode_t Rights = 0666;
    const int descriptor = ::open(nativeName(path).constData(), flagsOf(mode), Rights);
    if (descriptor < 0)
        return reportErrno(error);
    struct stat found
    {
    };
    if (::fstat(descriptor, &found) != 0 || !S_ISREG(found.st_mode)) {
        ::close(descriptor);
        return report(error, causeOf(ELOOP));
    }
    file.setFileName(path);
    return file.open(descriptor, mode, QFileDevice::AutoCloseHandle) ||
           report(error, file.errorString());
}

bool OwnFile::append(QFile &file, QByteArrayView bytes, QString *error)
{
    return writeAll(file.handle(), bytes) || reportErrno(error);
}

bool OwnFile::isName(const QString &path, const QFile &file)
{
    struct stat named
    {
    };
    struct stat opened
    {
    };
    return ::lstat(nativeName(path).constData(), &named) == 0 &&
           ::fstat(file.handle(), &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

std::optional<QByteArray> OwnFile::read(const QString &path, QString *error)
{
    QFile file;
    if (!open(file, path, QIODevice::ReadOnly | QIODevice::Unbuffered, error))
        return std::nullopt;
    QByteArray content = file.readAll();
    if (file.error() == QFileDevice::NoError)
        return content;
    report(error, file.errorString());
    return std::nullopt;
}

bool OwnFile::sync(QFileDevice &file, QString *error)
{
    if (!file.flush())
        return report(error, file.errorString());
    return syncDescriptor(file.handle()) || reportErrno(error);
}

int OwnFile::duplicate(const QFile &file)
{
    return ::fcntl(file.handle(), F_DUPFD_CLOEXEC, 0);
}

bool OwnFile::syncAndClose(int descriptor, QString *error)
{
    const bool synced = syncDescriptor(descriptor) || reportErrno(error);
    ::close(descriptor);
    return synced;
}

int OwnFile::nameCount(const QString &path)
{
    struct stat found
    {
    };
    return ::stat(nativeName(path).constData(), &found) == 0 ? int(found.st_nlink) : 0;
}

bool OwnFile::isSame(const QString &path, const QString &other)
{
    struct stat one
    {
    };
    struct stat two
    {
    };
    return ::stat(nativeName(path).constData(), &one) == 0 &&
           ::stat(nativeName(other).constData(), &two) == 0 && one.st_dev == two.st_dev &&
           one.st_ino == two.st_ino;
}

bool OwnFile::syncPath(const QString &path, QString *error)
{
    QFile file;
    return open(file, path, QIODevice::ReadWrite | QIODevice::ExistingOnly, error) &&
           sync(file, error);
}

void OwnFile::syncFolder(const QString &path)
{
    const int folder = ::open(nativeName(QFileInfo(path).absolutePath()).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

bool OwnFile::create(const QString &path, QByteArrayView content, const QString &like,
                     QString *error)
{
    return createWith(path, content, like, syncDescriptor, error);
}

bool OwnFile::createUnsynced(const QString &path, QByteArrayView content, const QString &like,
                             QString *error)
{
    return createWith(
        path, content, like, [](int) { return true; }, error);
}

bool OwnFile::replace(const QString &path, QByteArrayView content, QString *error)
{
    const QString part = partName(path);
    if (place(path) == Place::Other)
        return report(error, causeOf(ELOOP));
    if (!remove(part, error) || !create(part, content, path, error))
        return false;
    if (!rename(part, path, error)) {
        remove(part);
        return false;
    }
    syncFolder(path);
    return true;
}

bool OwnFile::keep(const QString &file, const QString &second, QString *error)
{
    if (place(second) == Place::Other)
        return report(error, causeOf(ELOOP));
    const QString part = partName(second);
    if (!remove(part, error))
        return false;
    if (::link(nativeName(file).constData(), nativeName(part).constData()) != 0) {
        const std::optional<QByteArray> content = read(file, error);
        return content && replace(second, *content, error);
    }
    const bool renamed = rename(part, second, error);
    // Two names of one file already: then renaming does nothing.
    remove(part);
    return renamed;
}

bool OwnFile::rename(const QString &from, const QString &to, QString *error)
{
    return std::rename(nativeName(from).constData(), nativeName(to).constData()) == 0 ||
           reportErrno(error);
}

bool OwnFile::remove(const QString &path, QString *error)
{
    switch (place(path)) {
    case Place::Free:
        return true;
    case Place::RegularFile:
        return ::unlink(nativeName(path).constData()) == 0 || reportErrno(error);
    case Place::Other:
        break;
    }
    return report(error, causeOf(ELOOP));
}

QString OwnFile::folderFault(const QString &path)
{
    // A new file needs room for its content, too.
    const QString probe = DurableFile::stampedName(path, QStringLiteral("test"));
    QString error;
    if (create(probe, QByteArray(512, ' '), QString(), &error))
        remove(probe, &error);
    return error;
}
