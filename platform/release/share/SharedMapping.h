#pragma once

#include "Participants.h"

#include <release/merge/mergeFiles.h>

namespace VelkRelease {

/// A mapping file of one modeller and the copy that he shares with others. Beside the mapping file
/// lie ".share", which says where that is and at which revision both were the same, and ".base",
/// the content then; docs/formats.md describes them. Any thread, one at a time for each file; the
/// caller holds the mapping file's lock.
class VELKRELEASE_EXPORT SharedMapping
{
public:
    explicit SharedMapping(const QString &mappingFile);
    ~SharedMapping();

    [[nodiscard]] bool isLinked() const { return m_place != nullptr; }
    /// Empty if it is not linked.
    [[nodiscard]] QString sharedFile() const;
    [[nodiscard]] QString baseRevision() const { return m_revision; }

    /// Begins to share: publishes the mapping file as the first copy, or makes it of the shared
    /// one. If both are there they must be the same.
    [[nodiscard]] ShareAnswer link(const QString &sharedFile);
    /// The shared copy stays.
    void unlink();

    struct Status
    {
        QString newest;       ///< revision of the shared copy
        bool hasNews = false; ///< somebody published
        bool hasOwn = false;  ///< the mapping file differs from its base
    };
    [[nodiscard]] ShareAnswer status(Status &status);

    /// Merges what others published into the mapping file. Killed at any moment, the file has all
    /// decisions that it had. \a merged is left without releases if there is nothing new. The
    /// history of what others decided comes along.
    [[nodiscard]] ShareAnswer update(MergedFile &merged, const MergeOptions &options = {});

    struct PublishOptions
    {
        QString message;
        bool intoOthersFolders = false;
    };
    /// Makes the mapping file the newest shared copy. Refuses over a change that was not merged,
    /// with lines in conflict, and into folders of others. Killed at any moment, the shared copy is
    /// the former or the new one, and the next call or update finds out which.
    [[nodiscard]] ShareAnswer publish(const PublishOptions &options);

    /// This user's note: whether he has the file open. Never an obstacle to work.
    [[nodiscard]] ShareAnswer announce(bool open);
    /// Takes folders of the catalog over, in place of those before, by names or FolderPattern; they
    /// and what is below must be nobody else's.
    [[nodiscard]] ShareAnswer takeFolders(const QStringList &folders);
    /// All of them, this one too if he has said anything.
    [[nodiscard]] QList<Participant> participants() const;
    [[nodiscard]] QStringList ownFolders() const;
    /// "anna@ws12: standardparts/screws" of the projects in somebody else's folder.
    [[nodiscard]] QStringList inOthersFolders(const QStringList &sourcePaths) const;
    /// Whether a project lies in a folder that somebody else has taken over by now. May be called
    /// on any thread, also when this object is gone.
    [[nodiscard]] std::function<bool(const QString &)> isInOthersFolder() const;

    /// What was found broken off or damaged and put right by this object.
    [[nodiscard]] const QList<ShareRepair> &repairs() const { return m_repairs; }

    [[nodiscard]] static QString linkFile(const QString &mappingFile);
    [[nodiscard]] static QString baseFile(const QString &mappingFile);

private:
    void load();
    [[nodiscard]] ShareAnswer store(const QByteArray &base, const QString &revision);
    [[nodiscard]] ShareAnswer readOwn(QByteArray &bytes) const;
    [[nodiscard]] ShareAnswer mayPublish(const QByteArray &own,
                                         const PublishOptions &options) const;
    [[nodiscard]] ShareAnswer writeLink(bool isPublishing);
    [[nodiscard]] ShareAnswer fetch(SharedCopy &copy);
    void noteRepairs();

    const QString m_file; ///< absolute
    std::unique_ptr<SharedPlace> m_place;
    std::unique_ptr<Participants> m_participants;
    QString m_revision;
    bool m_isPublishing = false; ///< a publishing was begun of which no end is known
    QList<ShareRepair> m_repairs;
};

} // namespace VelkRelease
