#include "ScriptDialogStates.h"

#include "WorkbenchSettings.h"

#include <QMetaObject>
#include <QWidget>

namespace {

QString stateNameOf(const QWidget &dialog)
{
    return QStringLiteral("script/") + QString::fromLatin1(dialog.metaObject()->className());
}

bool hasState(const QWidget &dialog)
{
    const QMetaObject *const type = dialog.metaObject();
    return type->indexOfMethod("saveState()") >= 0 &&
           type->indexOfMethod("restoreState(QByteArray)") >= 0;
}

} // namespace

ScriptDialogStates::ScriptDialogStates(WorkbenchSettings *settings)
    : m_settings(settings)
{
}

void ScriptDialogStates::prepare(QWidget *window)
{
    if (!hasState(*window))
        return;
    m_dialogs.removeAll(nullptr);
    m_dialogs.append(window);
    const QByteArray state = m_settings->state(stateNameOf(*window));
    if (!state.isEmpty())
        QMetaObject::invokeMethod(window, "restoreState", Q_ARG(QByteArray, state));
}

void ScriptDialogStates::save()
{
    for (const QPointer<QWidget> &dialog : std::as_const(m_dialogs)) {
        QByteArray state;
        if (dialog &&
            QMetaObject::invokeMethod(dialog, "saveState", Q_RETURN_ARG(QByteArray, state)) &&
            !state.isEmpty())
            m_settings->setState(stateNameOf(*dialog), state);
    }
}
