#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

/// Who reads a repository. Kept in memory alone.
struct RepositoryLogin
{
    QString user;
    QString password;
};

/// What a server answered.
struct RepositoryAnswer
{
    enum Kind {
        Done,
        NotThere,    ///< the server has no such path in that revision
        NoServer,    ///< no connection, or nothing heard for too long
        LoginNeeded, ///< none or a wrong one
        Cancelled,
        OutOfDate, ///< a commit onto something that is not the newest any more
        InUse,     ///< another client works in the working copy, or ended in the middle of it
        Damaged,   ///< the client's own store in the working copy
        Failed     ///< anything else; the text is the client's
    };
    Kind kind = Done;
    QString text; ///< of Done: what the client wrote, else what is wrong

    [[nodiscard]] bool isDone() const { return kind == Done; }
};

/// The Subversion client as a program of its own: started without a shell, never asks, keeps no
/// login. An operation returns when the client has ended; while it runs a progress is told, by
/// which it can be cancelled. If this process is killed the client is, too (Linux). Any thread,
/// each with an object of its own.
class VELKGEOMCORE_EXPORT RepositoryClient
{
public:
    /// \a program a name on the PATH or a path; \a configDirectory is made, the user's own
    /// Subversion settings are not read; empty: they are, with the logins that are kept in them. A
    /// client of which nothing was heard for \a silence is ended.
    RepositoryClient(QString program, QString configDirectory, std::chrono::milliseconds silence);

    void setLogin(const RepositoryLogin &login) { m_login = login; }
    /// For work that nobody watches: no progress is told, and \a goOn ends the client by false.
    void setGoOn(std::function<bool()> goOn) { m_goOn = std::move(goOn); }

    /// The last revision in which anything at or below the URL changed.
    [[nodiscard]] RepositoryAnswer lastRevision(const QString &url) const;
    /// Entries of a directory in a revision, as the client's XML.
    [[nodiscard]] RepositoryAnswer list(const QString &url, qint64 revision) const;
    /// Writes the files of a directory, without its subdirectories, into \a directory, which is not
    /// yet there. Externals are left out.
    [[nodiscard]] RepositoryAnswer exportFiles(const QString &url, qint64 revision,
                                               const QString &directory) const;
    /// Gets what the client wrote since the last call, at least every 50 ms; false ends the client.
    using Listen = std::function<bool(const QByteArray &)>;
    /// The same with all below; \a listen gets a line "A    PATH" for each entry.
    [[nodiscard]] RepositoryAnswer exportAll(const QString &url, qint64 revision,
                                             const QString &directory, const Listen &listen) const;
    /// What differs between two revisions at and below the URL, as the client's XML.
    [[nodiscard]] RepositoryAnswer changes(const QString &url, qint64 from, qint64 to) const;
    /// Any other operation; \a text is shown while it runs. With \a listen no progress is told,
    /// and the answer has no text of its own when it is done.
    [[nodiscard]] RepositoryAnswer run(const QStringList &arguments, const QString &text,
                                       const Listen &listen = {}) const;

private:
    QString m_program;
    QString m_configDirectory;
    std::chrono::milliseconds m_silence;
    RepositoryLogin m_login;
    std::function<bool()> m_goOn;
};
