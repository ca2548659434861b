#pragma once

#include <geomcore/expression/MapVarValueC.h>

#include <QHash>
#include <QString>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

class OpenDialogs;

/// What a formula is written over: sample values of both tables, of which only the names matter,
/// and the variable that it assigns, empty for a condition.
struct FormulaSubject
{
    QHash<QString, MapVarValueC> sourceVariables;
    QHash<QString, MapVarValueC> targetVariables;
    QString variableName;
};

/// Opens the formula editor with a text, and hands over what the user made of it. A text with
/// errors is handed over too.
void editFormula(const FormulaSubject &subject, const QString &text, QWidget *parent,
                 OpenDialogs &dialogs, const std::function<void(const QString &)> &onAccepted);
