#pragma once

#include "FormulaCheck.h"
#include "FormulaCompletionPopup.h"
#include "FormulaVariables.h"

#include <QPlainTextEdit>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QContextMenuEvent;
class QHelpEvent;
class QKeyEvent;
class QMenu;
QT_END_NAMESPACE

class VkTableHighlighter;

/// What FormulaEditLineEvH does; it hands over the editor's events.
class FormulaEditPrivate
{
public:
    void attach(QPlainTextEdit *newEdit);
    void detach();
    void setStatement(const QHash<QString, MapVarValueC> &source,
                      const QHash<QString, MapVarValueC> &target, const QString &variableName);
    void colourNames();

    void showMenu(const QContextMenuEvent &event);
    void showHelp(const QHelpEvent &event);
    /// True if the key goes no further.
    bool takeKey(QKeyEvent &key);
    void complete(const FormulaItem &item);

    QPointer<QPlainTextEdit> edit;
    QPointer<FormulaCompletionPopup> popup;
    QPointer<VkTableHighlighter> highlighter;
    FormulaVariables variables;
    FormulaVariables additional;
    bool showFunctions = true;
    bool showOperators = true;
    bool showLogic = true;

private:
    [[nodiscard]] QList<FormulaItem> offered() const;
    void addItems(QMenu *menu, const QString &title, const QList<FormulaItem> &items);
    void afterTyping();
    void showCompletions();
    void showHelpAtCursor();
    [[nodiscard]] QString helpAt(int position) const;

    QPointer<FormulaCheck> m_check;
    QString m_variableName;
    bool m_typing = false;
};
