#pragma once

#include "MappingDocument.h"

#include <core/files/EditLock.h>
#include <workbench/session/file/FileContent.h>
#include <workbench/session/file/GuardedSave.h>
#include <workbench/session/journal/SessionRecovery.h>

#include <QCoreApplication>

#include <memory>
#include <optional>

/// The mapping file of a document: its lock, the state in which it is known, the release as it
/// stands there, saving, the side file, and what a crash left. What takes long is done on another
/// thread. GUI thread.
class DocumentFile
{
    Q_DECLARE_TR_FUNCTIONS(DocumentFile)

public:
    /// What was read of a file, once.
    struct Reading
    {
        FileContent content;
        QString date; ///< of the release
        std::optional<ReleaseMappingC> release;
        bool isAlone = false; ///< the file holds no other release
        QStringList notes;    ///< what was put right while reading
        [[nodiscard]] KnownFile known() const
        {
            return {content.state, *release, isAlone, content.identity};
        }
        MappingDocument::OpenResult result = MappingDocument::OpenResult::Opened;
        QString errorText; ///< unless there is a release
    };
    /// An empty date stands for the last release. \a content may have been read before.
    [[nodiscard]] static Reading read(const QString &path, const QString &date,
                                      const std::shared_ptr<const FileContent> &content);
    /// Whether somebody wrote the file since.
    [[nodiscard]] static bool isOld(const QString &path, const Reading &reading);
    /// Source dates in the order of the file.
    [[nodiscard]] static QStringList datesIn(const FileContent &content, QString *error);
    /// A mapping file with this release alone.
    [[nodiscard]] static QByteArray textOf(const ReleaseMappingC &release);

    /// Goes over to a file: gives up the former lock and takes the new one.
    void moveTo(const QString &path, MappingDocument::Access access);
    void leave();
    [[nodiscard]] const QString &path() const { return m_path; } ///< canonical
    [[nodiscard]] MappingDocument::ReadOnlyReason readOnly() const { return m_readOnly; }
    [[nodiscard]] bool isEditable() const;
    [[nodiscard]] QString readOnlyText() const;
    [[nodiscard]] const SessionOwner &otherOwner() const { return m_otherOwner; }
    /// German: what the user must know of a file that he will edit; empty if there is nothing.
    [[nodiscard]] QString warning() const;
    /// Why the file could not be made, if it cannot be edited.
    [[nodiscard]] QString cannotMakeText() const;
    /// Takes the lock again if its file is not the one that was taken, as when its folder was
    /// deleted meanwhile. False if that fails.
    [[nodiscard]] bool renewLock();

    /// What a session that was not closed left.
    [[nodiscard]] SessionRecovery findRecovery(const FileContent &content) const;

    [[nodiscard]] const FileState &known() const { return m_known.state; }
    [[nodiscard]] const ReleaseMappingC &loaded() const { return m_known.release; }
    /// The file as it is, with the release in it as it was read or saved.
    void setKnown(const KnownFile &known) { m_known = known; }

    [[nodiscard]] SaveOutcome save(const ReleaseMappingC &release, const QString &rootName,
                                   const SaveOptions &options);
    /// Into another file, which must not be being edited, and goes over to it.
    [[nodiscard]] SaveOutcome saveAs(const QString &path, const ReleaseMappingC &release,
                                     const QString &rootName, const SaveOptions &options);
    /// Writes the side file; its hash, or nothing with \a error.
    [[nodiscard]] std::optional<QByteArray> autosave(const ReleaseMappingC &release,
                                                     QString *error) const;
    void removeAutosave() const;

    /// Why a file that is not there yet, or is not open, cannot be written.
    [[nodiscard]] static QString lockText(const EditLock &lock, EditLock::Result result,
                                          const QString &path);

private:
    [[nodiscard]] static SaveOutcome run(const QString &path, KnownFile &known,
                                         const ReleaseMappingC &release, const QString &rootName,
                                         const SaveOptions &options);
    void takeLock(MappingDocument::Access access);

    QString m_path;
    EditLock m_lock;
    QByteArray m_lockStamp;
    MappingDocument::ReadOnlyReason m_readOnly = MappingDocument::ReadOnlyReason::None;
    QString m_readOnlyCause;
    SessionOwner m_otherOwner;
    KnownFile m_known;
};
