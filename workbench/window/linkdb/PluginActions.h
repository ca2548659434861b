#pragma once

#include <QList>
#include <QObject>

class EditorArea;
class LinkDbCommands;
class LinkDbHost;
class PLinkDbGuiI;

QT_BEGIN_NAMESPACE
class QAction;
class QToolBar;
QT_END_NAMESPACE

/// Connects the plug-in's ten actions, by their object names, to what they stand for. Those whose
/// part is not there are disabled and say why in their tips.
class PluginActions : public QObject
{
    Q_OBJECT

public:
    /// What the actions work on; nothing is owned.
    struct Parts
    {
        EditorArea *editor;
        LinkDbHost *linkDb;
        LinkDbCommands *commands;
    };

    /// Has the plug-in describe its actions to the pool and puts them into the tool bar.
    PluginActions(PLinkDbGuiI *plugin, const Parts &parts, QToolBar *toolBar, QObject *parent);

    /// In the order of the tool bar.
    [[nodiscard]] QList<QAction *> actions() const;
    /// After the language changed.
    void retranslate();
    /// After another project or line was selected, or a document opened or closed.
    void update();

private:
    /// What the plug-in says of an action, untranslated.
    struct Source
    {
        QAction *action;
        QByteArray text;
        QByteArray tip;
    };

    void registerActions(PLinkDbGuiI *plugin);
    void connectActions();
    void takeTreeFilter();
    void applyPreferredRanges();
    void sendMail();
    /// A reason disables the action and stands behind its tip.
    static void setReason(const Source &source, const QString &reason);
    [[nodiscard]] QString reasonAgainst(const QAction *action) const;
    [[nodiscard]] QString reasonAgainstDatabase(const QString &name) const;
    [[nodiscard]] QString reasonAgainstLine() const;
    [[nodiscard]] static bool needsDatabase(const QAction *action);

    EditorArea *const m_editor;
    LinkDbHost *const m_linkDb;
    LinkDbCommands *const m_commands;
    QList<Source> m_sources;
};
