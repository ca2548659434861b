#pragma once

#include <core/plugin/PLinkDbGuiI.h>

#include <QObject>

/// The plug-in object. The host makes it by its meta object, after the PApplication, and owns it;
/// it is gone before the library is unloaded. GUI thread.
class LinkDbGuiC : public QObject, public PLinkDbGuiI
{
    Q_OBJECT
    Q_CLASSINFO("Interfaces", "PLinkDbGuiI")
    Q_INTERFACES(PLinkDbGuiI)

public:
    Q_INVOKABLE LinkDbGuiC();
    ~LinkDbGuiC() override;

    QObject *asQObject() override;
    /// Describes the ten actions to the pool, which keeps them; the host connects them. An icon
    /// that an action already has stays.
    void registerActions(PApplicationPool &pool) override;
    /// The licence of the feature "LINKDB"; false for a null database.
    bool initLinkDb(PRefPtr<PLinkDbC> linkDb) override;

    /// Whether the licence allows the link database's user-defined fields; known from the moment at
    /// which the host's GUI is up, false before.
    [[nodiscard]] bool hasUserDefinedFields() const { return m_hasUserDefinedFields; }

private Q_SLOTS:
    void onGuiInitialized();

private:
    bool m_hasUserDefinedFields = false;
};
