#pragma once

#include <geomcore/linkdb/PLinkDbC.h>

#include <QObject>

#include <thread>

class PLinkDbGuiI;

/// The link database of the workbench: connects in the background, makes it that of the process and
/// hands it to the plug-in. GUI thread.
class LinkDbHost : public QObject
{
    Q_OBJECT

public:
    enum State { NotSet, Connecting, Connected, Failed };

    /// \a plugin is not owned and may be null.
    explicit LinkDbHost(PLinkDbGuiI *plugin, QObject *parent = nullptr);
    ~LinkDbHost() override;

    /// Commits what is pending and is without a connection from now on. Does not wait for a server
    /// that does not answer, unless changes are pending; then the user can break the wait off.
    /// Why pending changes may be lost, or nothing.
    [[nodiscard]] QString leave();

    /// Connects to another database, or to none for an empty address. \a group is chosen if the
    /// user may choose it. Nothing happens for the same address.
    void apply(const QString &address, const QString &group);
    /// Connects in the background as another user; the former one stays if that fails.
    void login(const QString &user, const QString &password);

    /// Where the old release's projects are: documents are known by their paths below it, here and
    /// in scripts. Kept for later connections.
    void setSourceRoot(const QString &directory);

    [[nodiscard]] State state() const { return m_state; }
    /// Why it is not connected, or nothing.
    [[nodiscard]] const QString &problem() const { return m_problem; }
    /// Never null; not open unless Connected.
    [[nodiscard]] PRefPtr<PLinkDbC> linkDb() const;
    /// Of a connection that is wanted or there.
    [[nodiscard]] LinkDbSettings settings() const { return m_settings; }
    /// False if the user may not choose it; the log window has the cause.
    bool changeGroup(const QString &group);

Q_SIGNALS:
    void changed();
    void groupChanged(const QString &group);
    /// A connection that was wanted could not be made.
    void failed(const QString &text);

private:
    void connectTo(const LinkDbSettings &settings, const QString &password);
    void onConnected(int attempt, const PRefPtr<PLinkDbC> &linkDb, bool good);
    QString close();
    void giveUpAttempt();
    void setState(State state, const QString &problem = {});

    PLinkDbGuiI *const m_plugin;
    QString m_address;
    QString m_group;
    QString m_sourceRoot;
    LinkDbSettings m_settings;
    State m_state = NotSet;
    QString m_problem;
    PRefPtr<PLinkDbC> m_linkDb;
    PRefPtr<PLinkDbC> m_attempted; ///< by the thread
    int m_attempt = 0;
    std::jthread m_thread;
};
