#include "HelpDesk.h"

#include "HelpWindow.h"

#include <gui/application/PCommandKeys.h>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace {

struct TopicRow
{
    const char *widget; ///< object name or class
    const char *topic;
};

constexpr std::array topicRows{
    TopicRow{"ScriptEditor", "manual/scripts.md#in-the-editor"},
    TopicRow{"ScriptConsole", "manual/scripts.md#in-the-editor"},
    TopicRow{"LocatorDialog", "manual.md#find-anything"},
    TopicRow{"KeysDialog", "manual.md#decide-line-by-line"},
    TopicRow{"DlgFormulaEditor", "manual.md#write-formulas"},
    TopicRow{"TargetMappingWidget", "manual.md#conditions-and-variable-mappings"},
    TopicRow{"ProjectMappingWidget", "manual.md#conditions-and-variable-mappings"},
    TopicRow{"dlgSearchSelect", "manual.md#find-a-project"},
    TopicRow{"RepositoryLoginDialog", "manual.md#target-projects-in-a-repository"},
    TopicRow{"repository", "manual.md#target-projects-in-a-repository"},
    TopicRow{"linkDb", "manual/database.md"},
    TopicRow{"LinkListDialog", "manual/database.md"},
    TopicRow{"LinkProofDialog", "manual/database.md"},
    TopicRow{"LinkDbLoginDialog", "manual/database.md"},
    TopicRow{"DocumentListDialogC", "manual/database.md"},
    TopicRow{"StepListDialog", "manual.md#steps"},
    TopicRow{"FilterDock", "manual.md#a-filter-over-all-lines"},
    TopicRow{"HistoryDialog", "manual.md#who-when-why"},
    TopicRow{"RecoveryDialog", "manual.md#what-the-program-protects"},
    TopicRow{"TableMappingWidget", "manual.md#decide-line-by-line"},
    TopicRow{"welcomePage", "manual/tour.md"},
    TopicRow{"WelcomePage", "manual/tour.md"},
};
constexpr const char *editorTopic = "manual.md#the-editor";

} // namespace

HelpDesk::HelpDesk(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

HelpDesk::~HelpDesk() = default;

QString HelpDesk::topicOf(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const auto row =
            std::find_if(topicRows.begin(), topicRows.end(), [&](const TopicRow &each) {
                return widget->objectName() == QLatin1String(each.widget) ||
                       widget->inherits(each.widget);
            });
        if (row != topicRows.end())
            return QLatin1String(row->topic);
    }
    return QLatin1String(editorTopic);
}

QStringList HelpDesk::topics()
{
    QStringList topics{QLatin1String(editorTopic)};
    for (const TopicRow &row : topicRows)
        topics << QLatin1String(row.topic);
    return topics;
}

void HelpDesk::showFor(const QWidget *widget)
{
    open(m_window, topicOf(widget ? widget : m_window));
}

/// Above a modal dialog, or it could not be used beside that.
void HelpDesk::open(QWidget *above, const QString &topic)
{
    if (m_help && m_help->parentWidget() != above) {
        delete m_help.data();
        m_help.clear();
    }
    if (!m_help)
        m_help = new HelpWindow(above);
    m_help->showTopic(topic);
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

/// A dialog gets the key when nothing in it wanted it.
bool HelpDesk::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress ||
        !PCommandKeys::instance().isPressed(QStringLiteral("helpContents"),
                                            *static_cast<QKeyEvent *>(event)))
        return false;
    auto *const dialog = qobject_cast<QDialog *>(object);
    if (!dialog || !dialog->isWindow() || dialog == m_help)
        return false;
    const QWidget *const focus = dialog->focusWidget();
    open(dialog, topicOf(focus ? focus : dialog));
    return true;
}
