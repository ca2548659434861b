#include "LinkDbHost.h"

#include <core/plugin/PLinkDbGuiI.h>

#include <QPointer>

#include <utility>

LinkDbHost::LinkDbHost(PLinkDbGuiI *plugin, QObject *parent)
    : QObject(parent)
    , m_plugin(plugin)
{
}

LinkDbHost::~LinkDbHost()
{
    static_cast<void>(leave());
}

QString LinkDbHost::leave()
{
    giveUpAttempt();
    m_state = NotSet;
    m_address.clear();
    return close();
}

/// An attempt that is under way is of no use any more.
void LinkDbHost::giveUpAttempt()
{
    ++m_attempt;
    if (m_attempted)
        m_attempted->stop();
    if (m_thread.joinable())
        m_thread.join();
    m_attempted = nullptr;
}

PRefPtr<PLinkDbC> LinkDbHost::linkDb() const
{
    return m_linkDb ? m_linkDb : PLinkDbC::instance();
}

void LinkDbHost::setSourceRoot(const QString &directory)
{
    m_sourceRoot = directory;
    if (m_linkDb)
        m_linkDb->setMoreCatalogRoots({directory});
}

void LinkDbHost::setState(State state, const QString &problem)
{
    m_state = state;
    m_problem = problem;
    Q_EMIT changed();
}

/// Why pending changes may be lost, or nothing.
QString LinkDbHost::close()
{
    const PRefPtr<PLinkDbC> linkDb = std::exchange(m_linkDb, {});
    if (!linkDb)
        return {};
    PLinkDbC::setInstance(nullptr);
    const bool isPending = linkDb->isPending();
    if (!isPending) // what reads in the background is of no use any more
        linkDb->stop();
    if (linkDb->close() || !isPending)
        return {};
    linkDb->showLastError();
    return linkDb->lastError().text;
}

void LinkDbHost::apply(const QString &address, const QString &group)
{
    if (address == m_address)
        return;
    m_address = address;
    m_group = group;
    giveUpAttempt();
    close();
    if (address.isEmpty())
        return setState(NotSet);
    QString cause;
    m_settings = LinkDbSettings::fromText(address, &cause);
    if (m_settings.kind == LinkDbSettings::Kind::None) {
        setState(Failed, cause);
        Q_EMIT failed(cause);
        return;
    }
    connectTo(m_settings, QString());
}

void LinkDbHost::login(const QString &user, const QString &password)
{
    if (m_settings.kind == LinkDbSettings::Kind::SQLite && m_state == Connected) {
        m_linkDb->login(user, password);
        Q_EMIT changed();
        return;
    }
    if (m_linkDb && !m_linkDb->commit())
        m_linkDb->showLastError();
    LinkDbSettings settings = m_settings;
    settings.user = user;
    connectTo(settings, password);
}

/// The former connection stays until the new one is there.
void LinkDbHost::connectTo(const LinkDbSettings &settings, const QString &password)
{
    giveUpAttempt();
    const PRefPtr<PLinkDbC> linkDb(new PLinkDbC);
    m_attempted = linkDb;
    setState(Connecting);
    m_thread = std::jthread([this, linkDb, settings, password, attempt = m_attempt] {
        const bool good = linkDb->open(settings, password);
        QMetaObject::invokeMethod(
            this, [this, attempt, linkDb, good] { onConnected(attempt, linkDb, good); },
            Qt::QueuedConnection);
    });
}

void LinkDbHost::onConnected(int attempt, const PRefPtr<PLinkDbC> &linkDb, bool good)
{
    if (attempt != m_attempt)
        return;
    m_attempted = nullptr;
    if (!good) {
        const QString cause = linkDb->lastError().text;
        setState(m_linkDb ? Connected : Failed, cause);
        Q_EMIT failed(cause);
        return;
    }
    close();
    m_linkDb = linkDb;
    m_settings = linkDb->settings();
    linkDb->setMoreCatalogRoots({m_sourceRoot});
    if (!m_group.isEmpty() && m_group != linkDb->currentGroup() &&
        linkDb->groups().contains(m_group))
        linkDb->changeGroup(m_group);
    PLinkDbC::setInstance(linkDb);
    if (m_plugin && !m_plugin->initLinkDb(linkDb)) {
        close();
        const QString cause = tr("Für die Linkdatenbank fehlt die Lizenz.");
        setState(Failed, cause);
        Q_EMIT failed(cause);
        return;
    }
    setState(Connected);
}

bool LinkDbHost::changeGroup(const QString &group)
{
    if (!linkDb()->changeGroup(group))
        return false;
    m_group = group;
    Q_EMIT groupChanged(group);
    Q_EMIT changed();
    return true;
}
