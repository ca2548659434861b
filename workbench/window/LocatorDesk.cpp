#include "LocatorDesk.h"

#include "MainWindow.h"

#include <geomcore/value/LangThreadSettings.h>
#include <gui/application/PCommandKeys.h>
#include <workbench/locator/LocatorDialog.h>
#include <workbench/locator/LocatorSearch.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/KeyedActions.h>
#include <workbench/window/settings/SettingsDialog.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>

namespace {

/// Of a larger table lines are found by their numbers alone: reading all designations would be
/// felt.
constexpr int MostDesignations = 20000;

} // namespace

LocatorDesk::LocatorDesk(MainWindow *window, WorkbenchSettings *settings)
    : QObject(window)
    , m_window(window)
    , m_settings(settings)
    , m_search(new LocatorSearch(this))
{
}

LocatorDesk::~LocatorDesk() = default;

void LocatorDesk::open()
{
    m_search->setRelease(m_window->desk()->document()->isOpen()
                             ? m_window->desk()->document()->release()
                             : ReleaseMappingC());
    m_search->setItems(commands() + settings(), lines());
    auto *const dialog = new LocatorDialog(m_search, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Whatever it leads to may open dialogs of its own.
    connect(dialog, &LocatorDialog::chosen, this, &LocatorDesk::goTo, Qt::QueuedConnection);
    dialog->open();
}

QList<LocatorItem> LocatorDesk::commands() const
{
    QList<LocatorItem> items;
    const QList<QAction *> &actions = m_window->keyedActions()->actions();
    for (const QAction *const action : actions) {
        if (action->isVisible())
            items << LocatorItem{.kind = LocatorItem::Command,
                                 .title = KeyedActions::nameOf(*action),
                                 .detail = action->shortcut().toString(QKeySequence::NativeText),
                                 .id = action->objectName(),
                                 .isEnabled = action->isEnabled()};
    }
    return items;
}

/// A dialog is made for its texts, which is felt: once for each language.
QList<LocatorItem> LocatorDesk::settings()
{
    const QString language = m_settings->values().language;
    if (!m_settingItems.isEmpty() && m_settingLanguage == language)
        return m_settingItems;
    m_settingLanguage = language;
    m_settingItems.clear();
    const SettingsDialog dialog(m_settings->values(), m_settings->linkDbFile(), nullptr);
    const QList<SettingsDialog::Field> fields = dialog.fields();
    for (const SettingsDialog::Field &field : fields)
        m_settingItems << LocatorItem{.kind = LocatorItem::Setting,
                                      .title = field.text,
                                      .detail = field.group,
                                      .id = field.name};
    return m_settingItems;
}

std::function<LocatorLines()> LocatorDesk::lines() const
{
    const VKTab::ContentRef table = m_window->editor()->sourceTable();
    if (!table.isValid())
        return {};
    return [table, project = m_window->editor()->currentProject(),
            language = VKTab::LangThreadSettings::language()] {
        VKTab::LangThreadSettings ofThread;
        ofThread.setLanguage(language);
        LocatorLines lines;
        lines.project = project;
        const QList<VKTab::LineId> ids = table.getLineIdList();
        lines.numbers.reserve(size_t(ids.size()));
        for (const VKTab::LineId &id : ids)
            lines.numbers.push_back(id.value(0));
        for (qsizetype i = 0; i < ids.size() && ids.size() <= MostDesignations; ++i)
            lines.names += table.getLine(ids.at(i), false)
                               .getValue(VKTab::LineI::NormDesignation, {})
                               .toString();
        return lines;
    };
}

void LocatorDesk::goTo(const LocatorItem &item)
{
    switch (item.kind) {
    case LocatorItem::Line:
        if (!m_window->editor()->goTo(item.line))
            m_window->status()->showNote(
                tr("Die Zeile %1 gibt es in %2 nicht.")
                    .arg(QString::number(item.line.line), item.line.project.path));
        return;
    case LocatorItem::Project:
        if (!m_window->editor()->showProject(item.line.project.path))
            m_window->status()->showNote(
                tr("Das Projekt %1 kann nicht gezeigt werden.").arg(item.line.project.path));
        return;
    case LocatorItem::Command:
        if (QAction *const action = m_window->keyedActions()->action(item.id))
            action->trigger();
        return;
    case LocatorItem::Setting:
        Q_EMIT settingChosen(item.id);
        return;
    }
}
