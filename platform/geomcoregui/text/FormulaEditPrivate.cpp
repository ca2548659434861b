#include "FormulaEditPrivate.h"

#include "formulaWords.h"
#include "VkTableHighlighter.h"

#include <core/text/PString.h>
#include <geomcore/binding/VarsetParserC.h>
#include <geomcore/expression/FunctionHelp.h>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>

namespace {

constexpr int widthInCharacters = 60;
constexpr int heightInLines = 8;
constexpr qsizetype lettersToComplete = 2;

QString menuText(const char *text)
{
    return PString::translate(text, "VelkGeomCoreGui");
}

} // namespace

void FormulaEditPrivate::attach(QPlainTextEdit *newEdit)
{
    edit = newEdit;
    popup = new FormulaCompletionPopup(newEdit);
    m_check = new FormulaCheck(newEdit);
    const QFontMetrics font = newEdit->fontMetrics();
    newEdit->setMinimumSize(font.averageCharWidth() * widthInCharacters,
                            font.lineSpacing() * heightInLines);
}

void FormulaEditPrivate::detach()
{
    if (highlighter)
        highlighter->setNameCheck({});
    delete popup;
    if (m_check)
        m_check->release();
    delete m_check;
    edit.clear();
}

void FormulaEditPrivate::setStatement(const QHash<QString, MapVarValueC> &source,
                                      const QHash<QString, MapVarValueC> &target,
                                      const QString &variableName)
{
    m_variableName = variableName;
    if (m_check)
        m_check->setStatement(source, target, variableName);
    colourNames();
}

void FormulaEditPrivate::colourNames()
{
    if (!highlighter || !m_check || !m_check->parser())
        return;
    using Place = VkTableHighlighter::NamePlace;
    highlighter->setNameCheck([check = m_check](const QString &name, Place place) {
        if (!check || !check->parser())
            return true;
        switch (place) {
        case Place::Function:
            return VKTab::findFunctionHelp(name) != nullptr;
        case Place::Assigned:
            return check->parser()->isAssignable(name);
        case Place::Read:
        case Place::Prefixed:
            break;
        }
        return check->parser()->isReadable(name, place == Place::Prefixed);
    });
}

QList<FormulaItem> FormulaEditPrivate::offered() const
{
    QList<FormulaItem> items = variables.items + additional.items;
    if (showFunctions)
        items += formulaFunctions();
    if (showOperators)
        items += formulaOperators();
    if (showLogic)
        items += formulaLogic();
    return items;
}

void FormulaEditPrivate::showMenu(const QContextMenuEvent &event)
{
    popup->hide();
    if (event.reason() == QContextMenuEvent::Mouse && !edit->textCursor().hasSelection())
        edit->setTextCursor(
            edit->cursorForPosition(edit->viewport()->mapFromGlobal(event.globalPos())));
    QMenu *const menu = edit->createStandardContextMenu();
    menu->setObjectName(QStringLiteral("formulaMenu"));
    menu->addSeparator();
    if (showFunctions)
        addItems(menu, menuText("Funktionen"), formulaFunctions());
    if (showOperators)
        addItems(menu, menuText("Operatoren"), formulaOperators());
    if (showLogic)
        addItems(menu, menuText("Logik"), formulaLogic());
    addItems(menu, variables.label, variables.items);
    addItems(menu, additional.label, additional.items);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool byMouse = event.reason() == QContextMenuEvent::Mouse;
    menu->popup(byMouse ? event.globalPos()
                        : edit->viewport()->mapToGlobal(edit->cursorRect().bottomLeft()));
}

void FormulaEditPrivate::addItems(QMenu *menu, const QString &title,
                                  const QList<FormulaItem> &items)
{
    if (items.isEmpty())
        return;
    QMenu *const sub = menu->addMenu(QString(title).replace(u'&', QStringLiteral("&&")));
    sub->setToolTipsVisible(true);
    for (const FormulaItem &item : items) {
        QString text = item.text + (item.kind == FormulaItem::Function ? item.detail : QString());
        QAction *const action = sub->addAction(text.replace(u'&', QStringLiteral("&&")));
        action->setToolTip(item.help);
        QObject::connect(action, &QAction::triggered, edit,
                         [target = edit, item] { insertFormulaItem(target, item, 0); });
    }
}

void FormulaEditPrivate::showHelp(const QHelpEvent &event)
{
    const int position = edit->cursorForPosition(event.pos()).position();
    QToolTip::showText(event.globalPos(), helpAt(position), edit->viewport());
}

void FormulaEditPrivate::showHelpAtCursor()
{
    const QTextCursor cursor = edit->textCursor();
    const QPoint place = edit->viewport()->mapToGlobal(edit->cursorRect().bottomRight());
    QString help = helpAt(cursor.position());
    if (help.isEmpty())
        help = helpAt(cursor.position() - 1);
    if (help.isEmpty())
        help = formulaFunctionHelp(enclosingFunction(edit->toPlainText(), cursor.position()));
    QToolTip::showText(place, help, edit->viewport());
}

/// What the token at that place is, and what is wrong with it.
QString FormulaEditPrivate::helpAt(int position) const
{
    const VKTab::Token token = formulaTokenAt(edit->toPlainText(), position);
    const QString error = m_check->errorAt(position).toHtmlEscaped();
    QString help;
    for (const FormulaItem &item : offered()) {
        if (item.text.compare(token.text, item.kind == FormulaItem::Variable
                                              ? Qt::CaseSensitive
                                              : Qt::CaseInsensitive) == 0 &&
            (item.kind == FormulaItem::Function) == (token.kind == VKTab::TokenKind::Function))
            help = item.help;
    }
    return error + (error.isEmpty() || help.isEmpty() ? QString() : QStringLiteral("<hr>")) + help;
}

bool FormulaEditPrivate::takeKey(QKeyEvent &key)
{
    const bool isOverride = key.type() == QEvent::ShortcutOverride;
    const bool wantsList = key.key() == Qt::Key_Space && key.modifiers() == Qt::ControlModifier;
    const bool wantsHelp = key.key() == Qt::Key_F1;
    if (isOverride) {
        const bool isEscape = key.key() == Qt::Key_Escape && popup->isVisible();
        key.setAccepted(wantsList || wantsHelp || isEscape);
        return key.isAccepted();
    }
    if (popup->takeKey(key))
        return true;
    if (wantsHelp)
        showHelpAtCursor();
    else if (wantsList)
        showCompletions();
    else if (!edit->isReadOnly()) {
        // The editor takes the key after this.
        const bool writes = !key.text().isEmpty() && key.text().front().isPrint();
        const bool erases = key.key() == Qt::Key_Backspace && popup->isVisible();
        if (writes || erases)
            QMetaObject::invokeMethod(
                popup, [this] { afterTyping(); }, Qt::QueuedConnection);
        else if (key.key() != Qt::Key_Shift)
            popup->hide();
    }
    return wantsHelp || wantsList;
}

void FormulaEditPrivate::afterTyping()
{
    const QTextCursor cursor = edit->textCursor();
    const QString text = edit->toPlainText();
    const FormulaWord word = formulaWordBefore(text, cursor.position());
    if (word.text.size() >= lettersToComplete)
        return showCompletions();
    popup->hide();
    const QChar typed = cursor.position() > 0 ? text.at(cursor.position() - 1) : QChar();
    if (typed == u'(' || typed == u',')
        showHelpAtCursor();
    else if (typed == u')')
        QToolTip::hideText();
}

void FormulaEditPrivate::showCompletions()
{
    const int position = edit->textCursor().position();
    const FormulaWord word = formulaWordBefore(edit->toPlainText(), position);
    if (edit->isReadOnly() || !word.canBeCompleted)
        return popup->hide();
    QList<FormulaItem> items = offered();
    if (!m_variableName.isEmpty() && word.isFirst)
        items.prepend({FormulaItem::Variable,
                       m_variableName + QStringLiteral(" = "),
                       menuText("Zuweisung an eine Variable der Zieltabelle"),
                       {}});
    popup->showFor(word.text, items);
}

void FormulaEditPrivate::complete(const FormulaItem &item)
{
    const int position = edit->textCursor().position();
    insertFormulaItem(edit, item,
                      int(formulaWordBefore(edit->toPlainText(), position).text.size()));
    if (item.kind == FormulaItem::Function)
        showHelpAtCursor();
}
