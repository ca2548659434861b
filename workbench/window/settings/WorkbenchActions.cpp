#include "WorkbenchActions.h"

#include "commandRows.h"
#include "KeyedActions.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QKeySequence>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("WorkbenchActions", text);
}

QIcon iconOf(const CommandRow &row)
{
    return *row.icon ? QIcon(QStringLiteral(":/workbench/%1_24.png").arg(row.icon)) : QIcon();
}

} // namespace

WorkbenchActions::WorkbenchActions(QObject *parent)
    : QObject(parent)
{
    for (const CommandRow &row : commandRows) {
        auto *action = new QAction(iconOf(row), QString(), this);
        action->setObjectName(row.name);
        action->setShortcut(QKeySequence::fromString(row.shortcut, QKeySequence::PortableText));
        action->setShortcutContext(Qt::WindowShortcut);
        m_actions.append(action);
    }
    action(Quit)->setMenuRole(QAction::QuitRole);
    action(Settings)->setMenuRole(QAction::PreferencesRole);
    action(About)->setMenuRole(QAction::AboutRole);
    action(LeastSureFirst)->setCheckable(true);
    setDocumentOpen(false, false);
    retranslate();
}

void WorkbenchActions::setDocumentOpen(bool open, bool readOnly)
{
    for (int i = 0; i < CommandCount; ++i) {
        const CommandRow &row = commandRows[size_t(i)];
        if (i == Undo || i == Redo)
            continue;
        m_actions[i]->setEnabled((open || !row.needsDocument) && !(readOnly && row.needsWriting));
    }
}

void WorkbenchActions::setUndoTexts(const QString &undo, const QString &redo)
{
    m_undoText = undo;
    m_redoText = redo;
    action(Undo)->setEnabled(!undo.isEmpty());
    action(Redo)->setEnabled(!redo.isEmpty());
    writeUndoTexts();
}

void WorkbenchActions::writeUndoTexts()
{
    const auto write = [this](Command command, const QString &what) {
        const QString name = translated(commandRows[command].text);
        // A single ampersand would mark a key.
        QString quoted = what;
        quoted.replace('&', QLatin1String("&&"));
        action(command)->setText(what.isEmpty() ? name : name + ": " + quoted);
        QString plain = name;
        plain.remove('&');
        action(command)->setToolTip(what.isEmpty() ? plain : plain + ": " + what);
    };
    write(Undo, m_undoText);
    write(Redo, m_redoText);
}

void WorkbenchActions::retranslate()
{
    for (int i = 0; i < CommandCount; ++i) {
        QAction *const action = m_actions[i];
        const CommandRow &row = commandRows[size_t(i)];
        const QString tip = translated(row.tip);
        action->setText(translated(row.text));
        action->setStatusTip(tip);
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(key.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, key));
        KeyedActions::setName(action, nameOf(Command(i)));
    }
    writeUndoTexts();
}

/// Among all other commands, where no menu says what it is about.
QString WorkbenchActions::nameOf(Command command)
{
    const auto plain = [](Command each) {
        return KeyedActions::plain(translated(commandRows[each].text));
    };
    const bool isOfShare = command > ShareFile && command <= ShareWho;
    return isOfShare ? plain(ShareFile) + QStringLiteral(": ") + plain(command) : plain(command);
}
