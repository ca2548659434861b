#include "PLinkDbCPrivate.h"

#include <core/message/PMessage.h>

#include <utility>

namespace {

/// In messages; its middle goes then.
constexpr qsizetype longestStatement = 4000;

// From the first attempt to cancel until a server that does not answer is given up.
constexpr std::chrono::milliseconds patienceWhenStopped{500};

} // namespace

QString PLinkDbC::Private::describe(const LinkDbError &error)
{
    QString text =
        PString::translate("Fehler der Linkdatenbank: %1", "VelkGeomCore").arg(error.text);
    if (error.statement.isEmpty())
        return text;
    text += QStringLiteral("\n\n");
    if (error.statement.size() <= longestStatement)
        return text + error.statement;
    return text + error.statement.left(longestStatement / 2) + QStringLiteral(" ... ") +
           error.statement.right(longestStatement / 2);
}

PLinkDbC::Private::Link PLinkDbC::Private::current() const
{
    const std::lock_guard lock(mutex);
    return link;
}

bool PLinkDbC::Private::work(const Work &work, Stake stake)
{
    struct Outcome
    {
        bool done = false;
        bool open = false;
        bool pending = false;
        bool hasLost = false;
        QStringList notices;
        LinkDbError failure;
    };
    const auto outcome = std::make_shared<Outcome>();
    const Link on = current();
    if (!on.thread) {
        outcome->failure.text = LinkDbConnection::notConnected();
    } else {
        on.connection->clearCancel();
        const bool isOver = on.thread->run(
            stake == Stake::Commit
                ? PString::translate("Änderungen werden in die Linkdatenbank geschrieben",
                                     "VelkGeomCore")
                : PString::translate("Die Linkdatenbank arbeitet", "VelkGeomCore"),
            [work, outcome, connection = on.connection] {
                outcome->done = work(*connection);
                outcome->failure = outcome->done ? LinkDbError() : connection->error();
                outcome->notices = connection->takeNotices();
                outcome->open = connection->isOpen();
                outcome->pending = connection->isPending();
                outcome->hasLost = connection->hasLostChanges();
            },
            [on](std::chrono::milliseconds since, bool byStop) {
                on.connection->cancel();
                // A file answers in the end, and would be written by two if it were given up.
                return on.isServer && (on.connection->isConnecting() ||
                                       since > (byStop ? patienceWhenStopped : on.patience));
            });
        if (!isOver) {
            const LinkDbError givenUp = replace(on, stake);
            const std::lock_guard lock(mutex);
            error = givenUp;
            return false;
        }
        open = outcome->open;
        pending = outcome->pending;
        hasLost = outcome->hasLost;
    }
    for (const QString &notice : std::as_const(outcome->notices))
        PMessage::LogToWindow(notice);
    if (outcome->done)
        return true;
    const LinkDbError failure = outcome->failure;
    {
        const std::lock_guard lock(mutex);
        error = failure;
    }
    if (failure.isSet() && !failure.cancelled)
        PMessage::LogToWindow(describe(failure));
    return false;
}

LinkDbError PLinkDbC::Private::replace(const Link &former, Stake stake)
{
    LinkDbError failure{.text = LinkDbConnection::notConnected(), .cancelled = true};
    const int changes = stake == Stake::Commit ? 0 : former.connection->pendingStatements();
    {
        const std::lock_guard lock(mutex);
        if (isStopped || link.thread != former.thread)
            return failure; // it goes, or somebody else has done it
        former.connection->leaveCanceller();
        link = {std::make_shared<LinkDbThread>(), std::make_shared<LinkDbConnection>(),
                former.isServer, former.patience};
        link.connection->replace(settings, password, changes);
        failure.text = PString::translate("Die Linkdatenbank %1 antwortet nicht, die Verbindung zu "
                                          "ihr ist aufgegeben",
                                          "VelkGeomCore")
                           .arg(settings.displayName());
    }
    failure.lost = true;
    if (stake == Stake::Commit && pending)
        failure.text = LinkDbConnection::uncertainText(failure.text);
    open = false;
    pending = false;
    hasLost = changes > 0;
    PMessage::LogToWindow(changes > 0 ? failure.text + QStringLiteral(". ") +
                                            LinkDbConnection::lostChangesText(changes)
                                      : failure.text);
    return failure;
}

bool PLinkDbC::Private::change(const Work &statements)
{
    return work([statements](LinkDbConnection &on) {
        return on.changeAll([&] { return statements(on); });
    });
}

QStringList PLinkDbC::Private::groupsOf(LinkDbConnection &on, const QString &user)
{
    LinkDbConnection::Result found;
    QStringList names;
    if (on.select(QStringLiteral(
                      "SELECT g.group_name FROM linkdb_group g WHERE NOT EXISTS (SELECT 1 FROM "
                      "linkdb_group_member m WHERE m.group_name = g.group_name) OR EXISTS "
                      "(SELECT 1 FROM linkdb_group_member m WHERE m.group_name = g.group_name "
                      "AND m.user_name = %1)")
                      .arg(on.literal(user)),
                  found)) {
        for (const QVariantList &row : std::as_const(found.rows))
            names.append(row.first().toString());
    }
    names.sort();
    return names;
}

bool PLinkDbC::Private::readGroup(LinkDbConnection &on, const QString &user, const QString &name,
                                  Group &group)
{
    if (!groupsOf(on, user).contains(name)) {
        return on.error().isSet()
                   ? false
                   : on.fail(
                         PString::translate("Die Gruppe \"%1\" gibt es in der Linkdatenbank nicht, "
                                            "oder %2 gehört nicht zu ihr",
                                            "VelkGeomCore")
                             .arg(name, user));
    }
    LinkDbConnection::Result found;
    if (!on.select(
            QStringLiteral("SELECT key_name, key_value FROM linkdb_group_key WHERE group_name = ") +
                on.literal(name),
            found))
        return false;
    group = {name, {}};
    for (const QVariantList &row : std::as_const(found.rows))
        group.keys.insert(row.at(0).toString(), row.at(1).toString());
    return true;
}

void PLinkDbC::Private::setGroup(const Group &read)
{
    const std::lock_guard lock(mutex);
    group = read.name;
    groupKeys = read.keys;
}
