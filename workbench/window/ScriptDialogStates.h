#pragma once

#include <QList>
#include <QPointer>

class WorkbenchSettings;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Keeps how the user arranged the dialogs that scripts show, those that offer saveState() and
/// restoreState(QByteArray) by their meta object: one entry a class of dialogs. Restored when such
/// a dialog is made, saved when a script's call that showed it is over.
class ScriptDialogStates
{
public:
    explicit ScriptDialogStates(WorkbenchSettings *settings);

    /// For each window that is made.
    void prepare(QWidget *window);
    /// Of those that are still there.
    void save();

private:
    WorkbenchSettings *const m_settings;
    QList<QPointer<QWidget>> m_dialogs;
};
