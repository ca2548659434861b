#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <optional>

class QFile;
class QFileDevice;

/// The files of the workbench beside a mapping file, which are regular ones and nobody else's: a
/// link, a pipe, a device or a folder in the place of one of them is refused, never followed and
/// never waited for. What was written is on the disk. Errors are German, half a sentence for
/// brackets.
namespace OwnFile {

/// What stands under a name; a link is told as such, wherever it leads.
enum class Place {
    Free,
    RegularFile,
    Other,
};
[[nodiscard]] Place place(const QString &path);
/// Changes when another file comes to stand under the name or is written; empty if there is none.
[[nodiscard]] QByteArray stamp(const QString &path);
/// Begins with what stamp() gives and changes with whatever is done to the open file, to its names
/// and rights too. Empty if it was written so shortly ago that one more change could bear the same
/// time: then only its content tells.
[[nodiscard]] QByteArray identity(const QFile &file);
/// Of a file of ours by its name; empty too if it cannot be opened.
[[nodiscard]] QByteArray identity(const QString &path);
/// Why a system call failed: a full disk by that name.
[[nodiscard]] QString causeOf(int errorNumber);

/// Opens a file of ours. False with \a error if something else stands in its place, or it cannot
/// be opened.
[[nodiscard]] bool open(QFile &file, const QString &path, QIODevice::OpenMode mode,
                        QString *error = nullptr);
/// Hands bytes to the system behind what is there. False with \a error, and a part may be written.
[[nodiscard]] bool append(QFile &file, QByteArrayView bytes, QString *error = nullptr);
/// Whether what is open stands under the name.
[[nodiscard]] bool isName(const QString &path, const QFile &file);
/// The content of a file of ours.
[[nodiscard]] std::optional<QByteArray> read(const QString &path, QString *error = nullptr);
/// Has the system put onto the disk what it took. False with \a error if it refuses.
[[nodiscard]] bool sync(QFileDevice &file, QString *error = nullptr);
/// Another descriptor of the same file, and what it is for; any thread. -1 if there is none.
[[nodiscard]] int duplicate(const QFile &file);
[[nodiscard]] bool syncAndClose(int descriptor, QString *error = nullptr);
/// Names that the file has in its file system; more than one are hard links.
[[nodiscard]] int nameCount(const QString &path);
/// Two names of one file.
[[nodiscard]] bool isSame(const QString &path, const QString &other);
/// The same for a file by its name.
[[nodiscard]] bool syncPath(const QString &path, QString *error = nullptr);
/// For the names in the folder that holds \a path. Some file systems cannot do that; the files
/// themselves are safe all the same.
void syncFolder(const QString &path);
/// Makes a file anew, which must not be there, with the rights and the owner of \a like if that is
/// there, and returns when it is on the disk. False with \a error: then there is no half file.
[[nodiscard]] bool create(const QString &path, QByteArrayView content, const QString &like,
                          QString *error = nullptr);
/// The same, to be synced by whoever has written all of it.
[[nodiscard]] bool createUnsynced(const QString &path, QByteArrayView content, const QString &like,
                                  QString *error = nullptr);
/// As create(), in the place of a former file in one go; if that fails, the former one is as it
/// was.
[[nodiscard]] bool replace(const QString &path, QByteArrayView content, QString *error = nullptr);
/// Keeps the content of a file under a second name, in the place of what had it, so that \a file
/// can be replaced. Needs no room on file systems that know hard links.
[[nodiscard]] bool keep(const QString &file, const QString &second, QString *error = nullptr);
/// Puts a file in the place of another one in one go; needs no room on the disk.
[[nodiscard]] bool rename(const QString &from, const QString &to, QString *error = nullptr);
/// True if nothing stands there afterwards; removes regular files only.
bool remove(const QString &path, QString *error = nullptr);
/// Why no new file can be made beside \a path; empty if it can.
[[nodiscard]] QString folderFault(const QString &path);

} // namespace OwnFile
