#include "PLinkDbC.h"

#include "LinkDbSchema.h"
#include "PLinkDbCPrivate.h"

#include <core/message/PMessage.h>
#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>

#include <utility>

namespace {

struct Instance
{
    std::mutex mutex;
    PRefPtr<PLinkDbC> linkDb{new PLinkDbC};
};

/// Never destroyed, as libraries may go late; the host closes its database by itself.
Instance &theInstance()
{
    static auto *const instance = new Instance;
    return *instance;
}

/// Of a user who has cancelled, in seconds.
constexpr int mostPatience = 2;

} // namespace

PLinkDbC::PLinkDbC()
    : d(std::make_unique<Private>())
{
}

PLinkDbC::~PLinkDbC()
{
    close();
}

PRefPtr<PLinkDbC> PLinkDbC::instance()
{
    const std::lock_guard lock(theInstance().mutex);
    return theInstance().linkDb;
}

void PLinkDbC::setInstance(const PRefPtr<PLinkDbC> &linkDb)
{
    PRefPtr<PLinkDbC> former = linkDb ? linkDb : PRefPtr<PLinkDbC>(new PLinkDbC);
    const std::lock_guard lock(theInstance().mutex);
    std::swap(former, theInstance().linkDb);
}

bool PLinkDbC::open(const LinkDbSettings &settings, const QString &password)
{
    if (!close())
        return false;
    {
        const std::lock_guard lock(d->mutex);
        if (d->isStopped)
            return false;
        d->link = {std::make_shared<LinkDbThread>(), std::make_shared<LinkDbConnection>(),
                   settings.kind == LinkDbSettings::Kind::PostgreSQL,
                   std::chrono::seconds(std::min(settings.connectSeconds, mostPatience))};
        d->settings = settings;
        d->password = password;
    }
    struct Found
    {
        QString user;
        Private::Group group;
        bool hasGroup = false;
    };
    const auto found = std::make_shared<Found>();
    const auto connect = [found, settings, password,
                          former = currentGroup()](LinkDbConnection &connection) {
        if (!connection.open(settings, password))
            return false;
        found->user = connection.userName();
        const QStringList names = Private::groupsOf(connection, found->user);
        found->hasGroup = !names.isEmpty();
        if (names.isEmpty() ||
            Private::readGroup(connection, found->user,
                               names.contains(former) ? former : names.first(), found->group))
            return true;
        const LinkDbError error = connection.error();
        connection.close();
        return connection.fail(error.text, error.statement, error.lost);
    };
    if (!d->work(connect))
        return false;
    {
        const std::lock_guard lock(d->mutex);
        d->user = found->user;
    }
    if (found->hasGroup)
        d->setGroup(found->group);
    return true;
}

bool PLinkDbC::close()
{
    if (!d->current().thread)
        return true;
    bool done = true;
    if (d->pending || d->hasLost)
        done = d->work([](LinkDbConnection &connection) { return connection.commit(); },
                       Private::Stake::Commit);
    Private::Link link;
    {
        const std::lock_guard lock(d->mutex);
        link = std::exchange(d->link, {});
    }
    d->open = false;
    d->pending = false;
    d->hasLost = false;
    link.thread->post([connection = std::exchange(link.connection, {})] { connection->close(); });
    link.thread->stop();
    return done;
}

void PLinkDbC::stop()
{
    std::shared_ptr<LinkDbThread> thread;
    {
        const std::lock_guard lock(d->mutex);
        d->isStopped = true;
        thread = d->link.thread;
    }
    if (thread)
        thread->stop();
}

bool PLinkDbC::isThreadLeft()
{
    return LinkDbThread::isAnyLeft();
}

bool PLinkDbC::isOpen() const
{
    return d->open;
}

LinkDbSettings PLinkDbC::settings() const
{
    const std::lock_guard lock(d->mutex);
    return d->settings;
}

QString PLinkDbC::userName() const
{
    const std::lock_guard lock(d->mutex);
    return d->user;
}

bool PLinkDbC::login(const QString &user, const QString &password)
{
    const LinkDbSettings former = settings();
    const QString formerPassword = d->password;
    if (former.kind == LinkDbSettings::Kind::SQLite && isOpen()) {
        const bool done = d->work([user](LinkDbConnection &connection) {
            if (!connection.commit())
                return false;
            connection.setUserName(user);
            return true;
        });
        const std::lock_guard lock(d->mutex);
        if (done)
            d->user = user;
        return done;
    }
    if (!commit())
        return false;
    LinkDbSettings other = former;
    other.user = user;
    if (open(other, password))
        return true;
    const LinkDbError error = lastError();
    open(former, formerPassword);
    const std::lock_guard lock(d->mutex);
    d->error = error;
    return false;
}

QStringList PLinkDbC::groups()
{
    const auto names = std::make_shared<QStringList>();
    const bool done = d->work([names, user = userName()](LinkDbConnection &connection) {
        *names = Private::groupsOf(connection, user);
        return !connection.error().isSet();
    });
    return done ? *names : QStringList();
}

QString PLinkDbC::currentGroup() const
{
    const std::lock_guard lock(d->mutex);
    return d->group;
}

bool PLinkDbC::changeGroup(const QString &group)
{
    const auto read = std::make_shared<Private::Group>();
    const bool done = d->work([read, group, user = userName()](LinkDbConnection &connection) {
        return Private::readGroup(connection, user, group, *read);
    });
    if (done)
        d->setGroup(*read);
    return done;
}

QString PLinkDbC::groupInformation(const QString &key) const
{
    const std::lock_guard lock(d->mutex);
    return d->groupKeys.value(key);
}

bool PLinkDbC::setGroupInformation(const QString &group, const QString &key, const QString &value)
{
    const bool done = d->change([group, key, value](LinkDbConnection &connection) {
        const QString name = connection.literal(group);
        return connection.run(QStringLiteral("DELETE FROM linkdb_group_key WHERE group_name = ") +
                              name + QStringLiteral(" AND key_name = ") +
                              connection.literal(key)) &&
               connection.run(QStringLiteral("INSERT INTO linkdb_group SELECT %1 WHERE NOT EXISTS "
                                             "(SELECT 1 FROM linkdb_group WHERE group_name = %1)")
                                  .arg(name)) &&
               connection.run(QStringLiteral("INSERT INTO linkdb_group_key VALUES(") + name +
                              QStringLiteral(", ") + connection.literal(key) +
                              QStringLiteral(", ") + connection.literal(value) + u')');
    });
    const std::lock_guard lock(d->mutex);
    if (done && group == d->group)
        d->groupKeys.insert(key, value);
    return done;
}

PString PLinkDbC::getTableName(const PString &logicalName) const
{
    if (logicalName == QLatin1String("PLMTABLE2"))
        return LinkDbSchema::Documents;
    if (logicalName == QLatin1String("PLM_HIERARCHY"))
        return LinkDbSchema::Hierarchy;
    return logicalName;
}

PString PLinkDbC::makeRelativePath(const PString &path) const
{
    if (path.isEmpty())
        return {};
    const PRefPtr<IndexTreeC> tree = getIndexTree();
    const QString root = tree->catalogRoot().normalized() + u'/';
    QString file = PPathName(path).normalized();
    {
        const std::lock_guard lock(d->mutex);
        for (const QString &each : std::as_const(d->catalogRoots)) {
            if (file.startsWith(each))
                return file.mid(each.size());
        }
    }
    if (!file.startsWith(root))
        file = tree->compatiblePathToResolvedPath(PPathName(path)).normalized();
    return file.startsWith(root) ? file.mid(root.size()) : file;
}

void PLinkDbC::setMoreCatalogRoots(const QStringList &directories)
{
    const std::lock_guard lock(d->mutex);
    d->catalogRoots.clear();
    for (const QString &each : directories) {
        if (!each.isEmpty())
            d->catalogRoots.append(PPathName(each).normalized() + u'/');
    }
}

void PLinkDbC::showLastError()
{
    const LinkDbError error = lastError();
    if (error.isSet())
        PMessage::Show(Private::describe(error), PMsgDlgMode::Error);
}

LinkDbError PLinkDbC::lastError() const
{
    const std::lock_guard lock(d->mutex);
    return d->error;
}

PRefPtr<IndexTreeC> PLinkDbC::getIndexTree() const
{
    return IndexTreeC::instance();
}
