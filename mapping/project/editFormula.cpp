#include "editFormula.h"

#include "OpenDialogs.h"

#include <formula/DlgFormulaEditor.h>

void editFormula(const FormulaSubject &subject, const QString &text, QWidget *parent,
                 OpenDialogs &dialogs, const std::function<void(const QString &)> &onAccepted)
{
    auto *const dialog = new DlgFormulaEditor(subject.sourceVariables, subject.targetVariables,
                                              subject.variableName, parent);
    dialog->setShowContextMenu(true, true, true, true);
    dialog->setFormula(text);
    dialogs.run(dialog, [&] { onAccepted(dialog->getFormula()); });
}
