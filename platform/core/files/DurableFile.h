#pragma once

#include <core/VelkCoreGlobal.h>

#include <QByteArray>
#include <QDateTime>
#include <QString>

class QFileDevice;
class QSaveFile;

/// What keeps files whole when a program or the power fails.
namespace DurableFile {

/// Has the system put onto the disk what it took. False with \a error if it refuses.
[[nodiscard]] VELKCORE_EXPORT bool sync(QFileDevice &file, QString *error = nullptr);
/// The same for a file by its name, and for the entry in its folder.
[[nodiscard]] VELKCORE_EXPORT bool syncPath(const QString &path, QString *error = nullptr);

/// Begins an output that is complete or absent: opens a file beside \a file's name. Refuses a name
/// that is a folder, a device or a pipe. Without commit() the file beside goes with its object.
[[nodiscard]] VELKCORE_EXPORT bool open(QSaveFile &file, QString *error = nullptr);
/// Ends it: syncs, puts the file in its place and syncs the folder. False with \a error if any of
/// that fails; then the former file is as it was.
[[nodiscard]] VELKCORE_EXPORT bool commit(QSaveFile &file, QString *error = nullptr);
/// Both, with the bytes between them.
[[nodiscard]] VELKCORE_EXPORT bool write(const QString &path, const QByteArray &bytes,
                                         QString *error = nullptr);

/// Copies a file, replaces \a to, and returns when the copy is on the disk and equals the original.
/// False with \a error: then there is no half copy, and a former \a to is as it was.
[[nodiscard]] VELKCORE_EXPORT bool copy(const QString &from, const QString &to,
                                        QString *error = nullptr);
/// Puts a file in the place of another one in one go; needs no room on the disk.
[[nodiscard]] VELKCORE_EXPORT bool rename(const QString &from, const QString &to,
                                          QString *error = nullptr);

/// "name.20261121-023005Z" behind \a path, for copies that must not replace one another; a number
/// follows if that exists.
[[nodiscard]] VELKCORE_EXPORT QString stampedName(const QString &path, const QString &word);

} // namespace DurableFile

/// By what a file is known again.
struct VELKCORE_EXPORT FileState
{
    bool exists = false;
    qint64 size = 0;
    QDateTime time;  ///< UTC
    QByteArray hash; ///< hexadecimal; empty if there is no file or it cannot be read

    [[nodiscard]] static FileState of(const QString &path);
    [[nodiscard]] static QByteArray hashOf(QByteArrayView content);
    /// The same content, whatever the time.
    [[nodiscard]] bool sameContent(const FileState &other) const;
};
