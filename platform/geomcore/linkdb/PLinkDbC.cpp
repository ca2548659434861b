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

/// In messages; its middle goes then.
constexpr qsizetype longestStatement = 4000;

QString describe(const LinkDbError &error)
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

} // namespace

bool PLinkDbC::Private::work(const Work &work)
{
    bool done = false;
    QStringList notices;
    LinkDbError failure;
    if (thread) {
        connection.clearCancel();
        thread->run(
            PString::translate("Die Linkdatenbank arbeitet", "VelkGeomCore"),
            [&] {
                done = work(connection);
                failure = done ? LinkDbError() : connection.error();
                notices = connection.takeNotices();
                open = connection.isOpen();
                pending = connection.isPending();
            },
            [this] { connection.cancel(); });
    } else {
        failure.text = LinkDbConnection::notConnected();
    }
    for (const QString &notice : std::as_const(notices))
        PMessage::LogToWindow(notice);
    if (done)
        return true;
    {
        const std::lock_guard lock(mutex);
        error = failure;
    }
    if (failure.isSet() && !failure.cancelled)
        PMessage::LogToWindow(describe(failure));
    return false;
}

bool PLinkDbC::Private::change(const Work &statements)
{
    return work([&](LinkDbConnection &on) { return on.changeAll([&] { return statements(on); }); });
}

QStringList PLinkDbC::Private::groupsOf(LinkDbConnection &on) const
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

bool PLinkDbC::Private::readGroup(LinkDbConnection &on, const QString &name)
{
    if (!groupsOf(on).contains(name)) {
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
    const std::lock_guard lock(mutex);
    group = name;
    groupKeys.clear();
    for (const QVariantList &row : std::as_const(found.rows))
        groupKeys.insert(row.at(0).toString(), row.at(1).toString());
    return true;
}

PLinkDbC::PLinkDbC()
    : d(std::make_unique<Private>())
{
}

PLinkDbC::~PLinkDbC()
{
    if (d->thread)
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
    if (d->thread && !close())
        return false;
    if (!d->thread)
        d->thread.emplace();
    {
        const std::lock_guard lock(d->mutex);
        d->settings = settings;
        d->password = password;
    }
    return d->work([&](LinkDbConnection &connection) {
        if (!connection.open(settings, password))
            return false;
        {
            const std::lock_guard lock(d->mutex);
            d->user = connection.userName();
        }
        const QStringList names = d->groupsOf(connection);
        const QString former = currentGroup();
        if (names.isEmpty() ||
            d->readGroup(connection, names.contains(former) ? former : names.first()))
            return true;
        const LinkDbError error = connection.error();
        connection.close();
        return connection.fail(error.text, error.statement, error.lost);
    });
}

bool PLinkDbC::close()
{
    if (!d->thread)
        return true;
    const bool done = d->work([](LinkDbConnection &connection) {
        const bool committed = connection.commit();
        const LinkDbError error = connection.error();
        connection.close();
        return committed || connection.fail(error.text, error.statement, error.lost);
    });
    d->thread.reset();
    return done;
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
        return d->work([&](LinkDbConnection &connection) {
            if (!connection.commit())
                return false;
            connection.setUserName(user);
            const std::lock_guard lock(d->mutex);
            d->user = user;
            return true;
        });
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
    QStringList names;
    d->work([&](LinkDbConnection &connection) {
        names = d->groupsOf(connection);
        return !connection.error().isSet();
    });
    return names;
}

QString PLinkDbC::currentGroup() const
{
    const std::lock_guard lock(d->mutex);
    return d->group;
}

bool PLinkDbC::changeGroup(const QString &group)
{
    return d->work([&](LinkDbConnection &connection) { return d->readGroup(connection, group); });
}

QString PLinkDbC::groupInformation(const QString &key) const
{
    const std::lock_guard lock(d->mutex);
    return d->groupKeys.value(key);
}

bool PLinkDbC::setGroupInformation(const QString &group, const QString &key, const QString &value)
{
    const bool done = d->change([&](LinkDbConnection &connection) {
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
        PMessage::Show(describe(error), PMsgDlgMode::Error);
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
