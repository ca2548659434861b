#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

class QFileDevice;

/// What keeps files whole when a program or the power fails.
namespace DurableFile {

/// Has the system put onto the disk what it took. False with \a error if it refuses.
[[nodiscard]] bool sync(QFileDevice &file, QString *error = nullptr);
/// The same for a file by its name, and for the entry in its folder.
[[nodiscard]] bool syncPath(const QString &path, QString *error = nullptr);
/// Copies a file, replaces \a to, and returns when the copy is on the disk and equals the original.
/// False with \a error: then there is no half copy, and a former \a to is as it was.
[[nodiscard]] bool copy(const QString &from, const QString &to, QString *error = nullptr);
/// Puts a file in the place of another one in one go; needs no room on the disk.
[[nodiscard]] bool rename(const QString &from, const QString &to, QString *error = nullptr);

/// "name.20261121-023005Z" behind \a path, for copies that must not replace one another; a number
/// follows if that exists.
[[nodiscard]] QString stampedName(const QString &path, const QString &word);

} // namespace DurableFile

/// By what a file is known again.
struct FileState
{
    bool exists = false;
    qint64 size = 0;
    QDateTime time;  ///< UTC
    QByteArray hash; ///< hexadecimal; empty if there is no file or it cannot be read

    [[nodiscard]] static FileState of(const QString &path);
    /// The same content, whatever the time.
    [[nodiscard]] bool sameContent(const FileState &other) const;
};
