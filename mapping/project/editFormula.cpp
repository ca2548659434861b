#include "editFormula.h"

#include "OpenDialogs.h"

#include <formula/DlgFormulaEditor.h>

void editFormula(const FormulaSubject &subject, const QString &text, QWidget *parent,
                 OpenDialogs &dialogs, const FormulaAnswers &answers)
{
    auto *const dialog = new DlgFormulaEditor(subject.sourceVariables, subject.targetVariables,
                                              subject.variableName, parent);
    dialog->setShowContextMenu(true, true, true, true);
    if (answers.onOpened)
        answers.onOpened(dialog);
    dialog->setFormula(text);
    dialogs.run(dialog, [&] { answers.onAccepted(dialog->getFormula()); });
}
