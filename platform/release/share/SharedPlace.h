#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <utility>

class QLockFile;

namespace VelkRelease {

/// What became of work on a shared mapping file. Unless it is Done the shared copy is as it was,
/// save for NotReachable while publishing into a repository: then nobody knows, and an update
/// tells.
struct ShareAnswer
{
    enum Kind {
        Done,
        NotLinked,       ///< the mapping file is shared nowhere
        BothExist,       ///< a mapping file and a shared copy that differ and have no common base
        NewerThere,      ///< somebody published since the last update
        InConflict,      ///< lines in conflict are not published
        InOthersFolders, ///< lines in folders that others took over
        TakenByOthers,   ///< the folder is somebody else's
        Busy, ///< somebody publishes at this moment, or another client is in the working copy
        NotReachable, ///< the share, the repository or the file in it is gone
        Unreadable,   ///< one of the files is no mapping file
        NotWritable,
    };
    Kind kind = Done;
    QString cause; ///< what is concerned or what the system said; no sentence

    [[nodiscard]] bool isDone() const { return kind == Done; }
};

/// What somebody who was killed had left, and was put right.
struct ShareRepair
{
    enum Kind {
        Published, ///< a publishing of which nobody had known the end had come through
        BrokenOff, ///< it had not, and is to be done again
        TakenBack, ///< the shared file in the working copy was changed by hand
        CleanedUp, ///< the working copy was left in the middle of something
        StoreAnew, ///< the working copy's own store was damaged
    };
    Kind kind = BrokenOff;
    QString kept; ///< where the former content is now
};

/// The shared copy at one revision.
struct SharedCopy
{
    bool exists = false;
    QByteArray bytes;
    QString revision; ///< empty if it does not exist
};

/// Where several modellers share a mapping file: a folder that all of them reach, or a working copy
/// of a Subversion repository, each his own. Beside the shared file lies a folder for small notes.
class VELKRELEASE_EXPORT SharedPlace
{
public:
    virtual ~SharedPlace();

    /// \a file is in a working copy or in any other folder.
    [[nodiscard]] static std::unique_ptr<SharedPlace> at(const QString &file);

    [[nodiscard]] const QString &file() const { return m_file; }
    /// The newest one. A file that is not there is no error if its folder is.
    [[nodiscard]] virtual ShareAnswer fetch(SharedCopy &copy) = 0;
    /// Replaces the shared copy if its revision is still \a expected; empty: if there is none. The
    /// shared file is the former or the new one at any time.
    [[nodiscard]] virtual ShareAnswer publish(const QByteArray &bytes, const QString &expected,
                                              const QString &message, QString &revision) = 0;
    /// Replaces a note, or removes it with empty bytes.
    [[nodiscard]] virtual ShareAnswer writeNote(const QString &name, const QByteArray &bytes) = 0;
    /// Notes as they were at the last fetch or are by now.
    [[nodiscard]] QList<QByteArray> notes() const;
    /// Since the last call.
    [[nodiscard]] QList<ShareRepair> takeRepairs() { return std::exchange(m_repairs, {}); }
    /// Where notes with this ending lie; notes() are those with ".json".
    [[nodiscard]] QStringList noteFiles(const QString &ending) const;

protected:
    explicit SharedPlace(const QString &file);
    [[nodiscard]] QString notesFolder() const;
    [[nodiscard]] static ShareAnswer read(const QString &file, QByteArray &bytes);
    /// Of all that use this class nobody else writes there while \a lock is held.
    [[nodiscard]] ShareAnswer takeLock(QLockFile &lock) const;
    [[nodiscard]] QString lockFile() const;
    void addRepair(const ShareRepair &repair) { m_repairs += repair; }

private:
    QString m_file;
    QList<ShareRepair> m_repairs;
};

} // namespace VelkRelease
