#include "PluginActions.h"

#include "LinkDbCommands.h"
#include "LinkDbHost.h"

#include <core/plugin/PLinkDbGuiI.h>
#include <core/plugin/PTranslateManager.h>
#include <core/text/PString.h>
#include <gui/application/PApplicationPool.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/help/LegendDialog.h>
#include <workbench/window/message/Question.h>

#include <QAction>
#include <QDesktopServices>
#include <QToolBar>
#include <QUrl>
#include <QUrlQuery>

namespace {

constexpr const char *context = "VelkLinkDbGui";

/// In the plug-in's order.
constexpr const char *names[] = {
    "LinkDbLogin",           "LinkDbChangeGroup", "CallLinkMgr",   "LinkDbBackToMgr",
    "LinkDbCancelBackToMgr", "LinkDbSendMail",    "LinkDbAddToDb", "LinkDbShowLegend",
    "LinkDbFilteronoff",     "PreferredRanges",
};

QAction *actionOf(const char *name)
{
    return PApplicationPool::instance().action(QLatin1String(name));
}

} // namespace

PluginActions::PluginActions(PLinkDbGuiI *plugin, const Parts &parts, QToolBar *toolBar,
                             QObject *parent)
    : QObject(parent)
    , m_editor(parts.editor)
    , m_linkDb(parts.linkDb)
    , m_commands(parts.commands)
{
    if (plugin)
        registerActions(plugin);
    for (const Source &source : std::as_const(m_sources))
        toolBar->addAction(source.action);
    connectActions();
    connect(m_editor, &EditorArea::editorMade, this, [this] {
        takeTreeFilter();
        update();
    });
    connect(m_editor, &EditorArea::linesSelected, this, &PluginActions::update);
    connect(m_editor, &EditorArea::projectSelected, this, [this] {
        applyPreferredRanges();
        update();
    });
    connect(m_linkDb, &LinkDbHost::changed, this, &PluginActions::update);
    connect(m_commands, &LinkDbCommands::awaitingChanged, this, &PluginActions::update);
    retranslate();
}

/// Without a language, since the plug-in describes its actions once and the language may change.
void PluginActions::registerActions(PLinkDbGuiI *plugin)
{
    PTranslateManager &translations = PTranslateManager::instance();
    const QString language = translations.language();
    translations.setLanguage(QString());
    plugin->registerActions(PApplicationPool::instance());
    for (const char *name : names) {
        if (QAction *const action = actionOf(name))
            m_sources.append({action, action->text().toUtf8(), action->toolTip().toUtf8()});
    }
    translations.setLanguage(language);
}

void PluginActions::connectActions()
{
    const auto connectTo = [this](const char *name, auto slot) {
        if (QAction *const action = actionOf(name))
            connect(action, &QAction::triggered, this, slot);
    };
    connectTo("LinkDbShowLegend", [this] { LegendDialog(m_editor->window()).exec(); });
    connectTo("LinkDbFilteronoff", [this](bool on) {
        if (m_editor->isOpen())
            m_editor->editor()->setOnlyOpenProjects(on);
    });
    connectTo("PreferredRanges", [this] { applyPreferredRanges(); });
    connectTo("LinkDbSendMail", [this] { sendMail(); });
    connectTo("LinkDbLogin", [this] { m_commands->login(); });
    connectTo("LinkDbChangeGroup", [this] { m_commands->chooseGroup(); });
    connectTo("CallLinkMgr", [this] { m_commands->showLinks(); });
    connectTo("LinkDbBackToMgr", [this] { m_commands->sendSelection(); });
    connectTo("LinkDbCancelBackToMgr", [this] { m_commands->cancelSelection(); });
    connectTo("LinkDbAddToDb", [this] { m_commands->showDocuments(); });
    // The tree's own box and the action show the same.
    if (QAction *const action = actionOf("LinkDbFilteronoff"))
        connect(m_editor, &EditorArea::onlyOpenProjectsChanged, action, &QAction::setChecked);
}

QList<QAction *> PluginActions::actions() const
{
    QList<QAction *> actions;
    actions.reserve(m_sources.size());
    for (const Source &source : m_sources)
        actions << source.action;
    return actions;
}

void PluginActions::retranslate()
{
    for (const Source &source : std::as_const(m_sources))
        source.action->setText(PString::translate(source.text.constData(), context));
    update();
}

void PluginActions::setReason(const Source &source, const QString &reason)
{
    QString tip = PString::translate(source.tip.constData(), context);
    if (!reason.isEmpty())
        tip += QStringLiteral(" – ") + reason;
    source.action->setToolTip(tip);
    source.action->setStatusTip(tip);
    source.action->setEnabled(reason.isEmpty());
}

QString PluginActions::reasonAgainst(const QAction *action) const
{
    const QString name = action->objectName();
    if (name == "LinkDbShowLegend")
        return {};
    if (name == "LinkDbFilteronoff" || name == "PreferredRanges")
        return m_editor->isOpen() ? QString() : tr("nicht verfügbar: es ist keine Datei geöffnet");
    if (needsDatabase(action)) {
        const QString reason = reasonAgainstDatabase(name);
        const bool needsLine = name == "LinkDbBackToMgr" || name == "LinkDbAddToDb";
        return reason.isEmpty() && needsLine ? reasonAgainstLine() : reason;
    }
    return reasonAgainstLine();
}

QString PluginActions::reasonAgainstDatabase(const QString &name) const
{
    if (m_linkDb->state() == LinkDbHost::Connecting)
        return tr("nicht verfügbar: die Linkdatenbank wird verbunden");
    const bool isSet = m_linkDb->state() != LinkDbHost::NotSet;
    if (name == "LinkDbLogin" && isSet)
        return {};
    if (m_linkDb->state() == LinkDbHost::Failed)
        return tr("nicht verfügbar: %1").arg(m_linkDb->problem());
    if (!isSet)
        return tr("nicht verfügbar: es ist keine Linkdatenbank verbunden");
    const bool isReturn = name == "LinkDbBackToMgr" || name == "LinkDbCancelBackToMgr";
    return isReturn && !m_commands->isAwaiting()
               ? tr("nicht verfügbar: der Linkmanager wartet auf keine Auswahl")
               : QString();
}

QString PluginActions::reasonAgainstLine() const
{
    if (m_editor->currentPath().isEmpty())
        return tr("nicht verfügbar: es ist kein Projekt gewählt");
    return m_editor->currentLine() < 0 ? tr("nicht verfügbar: es ist keine Zeile gewählt")
                                       : QString();
}

bool PluginActions::needsDatabase(const QAction *action)
{
    static const QStringList others{"LinkDbSendMail", "LinkDbShowLegend", "LinkDbFilteronoff",
                                    "PreferredRanges"};
    return !others.contains(action->objectName());
}

void PluginActions::update()
{
    for (const Source &source : std::as_const(m_sources)) {
        setReason(source, reasonAgainst(source.action));
        // They would only fill the bar as long as no database is set up.
        source.action->setVisible(!needsDatabase(source.action) ||
                                  m_linkDb->state() != LinkDbHost::NotSet);
    }
    m_commands->update();
}

void PluginActions::takeTreeFilter()
{
    if (const QAction *const action = actionOf("LinkDbFilteronoff"))
        m_editor->editor()->setOnlyOpenProjects(action->isChecked());
}

void PluginActions::applyPreferredRanges()
{
    const QAction *const action = actionOf("PreferredRanges");
    if (action && m_editor->isOpen())
        m_editor->editor()->setOnlyPreferredRanges(action->isChecked());
}

void PluginActions::sendMail()
{
    const QString path = m_editor->currentPath();
    const QString line = QString::number(m_editor->currentLine());
    QUrlQuery query;
    query.addQueryItem("subject", QString::fromUtf8(QUrl::toPercentEncoding(
                                      tr("ERP-Nummer für %1, Zeile %2").arg(path, line))));
    query.addQueryItem(
        "body",
        QString::fromUtf8(QUrl::toPercentEncoding(
            tr("Bitte eine ERP-Nummer vergeben.\n\nProjekt: %1\nZeile: %2\n").arg(path, line))));
    QUrl url;
    url.setScheme("mailto");
    url.setQuery(query);
    if (!QDesktopServices::openUrl(url))
        Question::tell(m_editor->window(), tr("Es konnte keine Mail begonnen werden."),
                       tr("Auf diesem Rechner ist kein Mailprogramm eingerichtet. Die Anfrage "
                          "lautet:\n\n%1: %2")
                           .arg(path, line));
}
