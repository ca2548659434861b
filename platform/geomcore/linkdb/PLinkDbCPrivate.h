#pragma once

#include "LinkDbConnection.h"
#include "LinkDbThread.h"
#include "PLinkDbC.h"

#include <QHash>

#include <mutex>

/// What is behind a PLinkDbC, for the parts of this folder.
class PLinkDbC::Private
{
public:
    /// Work on the connection's thread. It may outlive whoever waits for it, so it owns all that it
    /// touches, and knows nothing of the PLinkDbC.
    using Work = std::function<bool(LinkDbConnection &)>;

    /// A user's group with its keys.
    struct Group
    {
        QString name;
        QHash<QString, QString> keys;
    };

    /// The connection with its thread; both null if there never was one.
    struct Link
    {
        std::shared_ptr<LinkDbThread> thread;
        std::shared_ptr<LinkDbConnection> connection; ///< on its thread, but for what cancels
        bool isServer = false;
        /// From the first attempt to cancel until a server that does not answer is given up.
        std::chrono::milliseconds patience{};
    };

    /// What a connection that is given up leaves behind.
    enum class Stake { Changes, Commit };

    /// Does work on the connection's thread and waits. A failure becomes lastError() and goes to
    /// the log window. False without doing it if there never was a connection. A server that does
    /// not answer is given up some seconds after the user cancels; the next statement connects
    /// anew.
    bool work(const Work &work, Stake stake = Stake::Changes);
    /// The same inside of the open transaction, in a savepoint of its own.
    bool change(const Work &statements);
    [[nodiscard]] Link current() const;

    [[nodiscard]] static bool readGroup(LinkDbConnection &on, const QString &user,
                                        const QString &name, Group &group);
    [[nodiscard]] static QStringList groupsOf(LinkDbConnection &on, const QString &user);
    void setGroup(const Group &read);
    /// For messages.
    [[nodiscard]] static QString describe(const LinkDbError &error);

    mutable std::mutex mutex; ///< over all below
    LinkDbError error;
    LinkDbSettings settings;
    QString user;
    QString password;
    QStringList catalogRoots;
    QString group;
    QHash<QString, QString> groupKeys;
    Link link;
    bool isStopped = false;
    std::atomic<bool> open = false;
    std::atomic<bool> pending = false;
    std::atomic<bool> hasLost = false; ///< changes, and no commit has told so

private:
    /// Puts a new connection in the place of one that was given up, and tells why.
    [[nodiscard]] LinkDbError replace(const Link &former, Stake stake);
};
