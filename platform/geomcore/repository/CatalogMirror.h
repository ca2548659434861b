#pragma once

#include "RepositoryClient.h"

#include <QStringList>

#include <optional>

class QDir;

/// Copies of whole catalogs as their repositories have them, each in one revision, for what has to
/// see all of a catalog: the search. On the disk:
///
///     catalogs/FOLDER/...  all files of a catalog but links
///     catalogs.index       the search's index of them, not this class's
///     state/FOLDER         JSON: the URL, the revision, the bytes of the files; while the copy is
///                          brought to another revision, that
///     work/                what is being fetched
///     lock                 held by the program that changes any of it
///
/// A catalog comes in one call; later only what differs between two revisions does. An update that
/// was broken off is ended by the next one. Several programs may use one directory. Any thread.
class VELKGEOMCORE_EXPORT CatalogMirror
{
public:
    /// A catalog as it is wanted.
    struct Wanted
    {
        QString folder; ///< its name as that of a directory
        QString url;
        qint64 revision = -1;
    };
    using GoOn = std::function<bool()>;

    /// Catalogs that would make it larger than \a limit bytes are not taken.
    CatalogMirror(QString directory, qint64 limit);

    /// A directory whose subdirectories are the catalogs; made if it is missing.
    [[nodiscard]] QString root() const;
    /// Folders of the copies that are there, whole or not, of the URL that \a urlOf gives for one.
    [[nodiscard]] QStringList folders(const std::function<QString(const QString &)> &urlOf) const;
    /// The revision that all of the copy is of; nothing if there is none of that URL.
    [[nodiscard]] std::optional<qint64> revisionOf(const QString &folder, const QString &url) const;

    /// Takes away the copies of other catalogs. Does nothing while another program changes it.
    void keepOnly(const QStringList &folders);
    /// Brings a copy to the revision that is wanted. Done as well while another program changes it.
    /// What \a client answers otherwise leaves the copy as it was, or to be ended the next time.
    [[nodiscard]] RepositoryAnswer update(const Wanted &wanted, const RepositoryClient &client,
                                          const GoOn &goOn);

private:
    struct State;

    [[nodiscard]] QString copyOf(const QString &folder) const;
    [[nodiscard]] QString stateFile(const QString &folder) const;
    [[nodiscard]] std::optional<State> stateOf(const QString &folder) const;
    [[nodiscard]] bool keep(const QString &folder, const State &state, QString &problem) const;
    void drop(const QString &folder) const;
    [[nodiscard]] qint64 bytesBeside(const QString &folder) const;
    [[nodiscard]] QString workDirectory() const;
    [[nodiscard]] RepositoryAnswer fetchAll(const Wanted &wanted, const RepositoryClient &client,
                                            const GoOn &goOn) const;
    [[nodiscard]] RepositoryAnswer fetchChanges(const Wanted &wanted, State state,
                                                const RepositoryClient &client,
                                                const GoOn &goOn) const;
    [[nodiscard]] RepositoryAnswer tooLarge(const Wanted &wanted) const;

    const QString m_directory;
    const qint64 m_limit;
};
