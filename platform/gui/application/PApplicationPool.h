#pragma once

#include <gui/VelkGuiGlobal.h>

#include <core/text/PString.h>

#include <QHash>
#include <QList>
#include <QObject>

QT_BEGIN_NAMESPACE
class QAction;
QT_END_NAMESPACE

/// The host's actions by name. Owns them; whoever needs one asks for it by its name, and the host
/// connects it. GUI thread.
class VELKGUI_EXPORT PApplicationPool : public QObject
{
    Q_OBJECT

public:
    PApplicationPool();
    ~PApplicationPool() override;

    /// Made at the first call, gone with the QApplication.
    [[nodiscard]] static PApplicationPool &instance();

    /// The action of that name, which is also its object name; made if there is none. A text that
    /// is not empty becomes its text, a shortcut text that is not empty its shortcut.
    QAction *registerAction(const QString &name, const QString &text, const QString &shortcut);
    /// Null if there is none.
    [[nodiscard]] QAction *action(const QString &name) const;
    /// In the order of their registration.
    [[nodiscard]] QList<QAction *> actions() const { return m_actions; }
    /// Names without action are passed over.
    void enableActions(const PStringList &names, bool enable);

private:
    QHash<QString, QAction *> m_byName;
    QList<QAction *> m_actions;
};
