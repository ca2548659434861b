#pragma once

#include "LinkDbConnection.h"
#include "LinkDbThread.h"
#include "PLinkDbC.h"

#include <QHash>

#include <mutex>
#include <optional>

/// What is behind a PLinkDbC, for the parts of this folder.
class PLinkDbC::Private
{
public:
    using Work = std::function<bool(LinkDbConnection &)>;

    /// Does work on the connection's thread and waits. A failure becomes lastError() and goes to
    /// the log window. False without doing it if there never was a connection.
    bool work(const Work &work);
    /// The same inside of the open transaction, in a savepoint of its own.
    bool change(const Work &statements);

    [[nodiscard]] bool readGroup(LinkDbConnection &on, const QString &group);
    [[nodiscard]] QStringList groupsOf(LinkDbConnection &on) const;

    mutable std::mutex mutex; ///< over all below but thread and connection
    LinkDbError error;
    LinkDbSettings settings;
    QString user;
    QString password;
    QStringList catalogRoots;
    QString group;
    QHash<QString, QString> groupKeys;
    std::atomic<bool> open = false;
    std::atomic<bool> pending = false;

    LinkDbConnection connection; ///< only on its thread, but for cancel()
    std::optional<LinkDbThread> thread;
};
