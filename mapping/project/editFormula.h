#pragma once

#include <geomcore/expression/MapVarValueC.h>

#include <QHash>
#include <QString>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

class DlgFormulaEditor;
class OpenDialogs;

/// What a formula is written over: sample values of both tables, of which only the names matter,
/// and the variable that it assigns, empty for a condition.
struct FormulaSubject
{
    QHash<QString, MapVarValueC> sourceVariables;
    QHash<QString, MapVarValueC> targetVariables;
    QString variableName;
};

/// What becomes of a formula editor.
struct FormulaAnswers
{
    /// What the user made of the text, one with errors too.
    std::function<void(const QString &)> onAccepted;
    /// Before the editor is shown and has its text; may be empty.
    std::function<void(DlgFormulaEditor *)> onOpened;
};

/// Opens the formula editor with a text.
void editFormula(const FormulaSubject &subject, const QString &text, QWidget *parent,
                 OpenDialogs &dialogs, const FormulaAnswers &answers);
