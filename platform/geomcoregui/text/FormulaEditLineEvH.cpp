#include "FormulaEditLineEvH.h"

#include "FormulaEditPrivate.h"
#include "VkTableHighlighter.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPlainTextEdit>

FormulaEditLineEvH::FormulaEditLineEvH()
    : d(std::make_unique<FormulaEditPrivate>())
{
}

FormulaEditLineEvH::~FormulaEditLineEvH()
{
    setEdit(nullptr);
}

void FormulaEditLineEvH::setEdit(QPlainTextEdit *edit)
{
    if (d->edit) {
        d->edit->removeEventFilter(this);
        d->edit->viewport()->removeEventFilter(this);
        d->detach();
    }
    if (!edit)
        return;
    d->attach(edit);
    edit->installEventFilter(this);
    edit->viewport()->installEventFilter(this);
    connect(d->popup, &FormulaCompletionPopup::chosen, this,
            [this](const FormulaItem &item) { d->complete(item); });
}

void FormulaEditLineEvH::setHighlighter(VkTableHighlighter *highlighter)
{
    d->highlighter = highlighter;
    d->colourNames();
}

void FormulaEditLineEvH::setStatement(const QHash<QString, MapVarValueC> &source,
                                      const QHash<QString, MapVarValueC> &target,
                                      const QString &variableName)
{
    d->setStatement(source, target, variableName);
}

void FormulaEditLineEvH::setShowFunctions(bool show)
{
    d->showFunctions = show;
}

void FormulaEditLineEvH::setShowOperators(bool show)
{
    d->showOperators = show;
}

void FormulaEditLineEvH::setShowLogic(bool show)
{
    d->showLogic = show;
}

void FormulaEditLineEvH::setContent(const QHash<QString, MapVarValueC> &varset,
                                    const QString &label, bool prefixed)
{
    d->variables = FormulaVariables::ofVarset(varset, label, prefixed);
}

void FormulaEditLineEvH::setContent(const VKTab::Content &table, const QString &label,
                                    bool prefixed)
{
    d->variables = FormulaVariables::ofTable(table, label, prefixed);
}

void FormulaEditLineEvH::setAdditionalContent(const VKTab::Content &table, const QString &label)
{
    d->additional = FormulaVariables::ofTable(table, label, true);
}

void FormulaEditLineEvH::initWithoutContent()
{
    d->variables = {};
    d->additional = {};
}

bool FormulaEditLineEvH::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ContextMenu:
        d->showMenu(*static_cast<QContextMenuEvent *>(event));
        return true;
    case QEvent::ToolTip:
        if (object == d->edit->viewport()) {
            d->showHelp(*static_cast<QHelpEvent *>(event));
            return true;
        }
        break;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (object == d->edit)
            return d->takeKey(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        d->popup->hide();
        break;
    case QEvent::PaletteChange:
        if (object == d->edit && d->highlighter)
            d->highlighter->rehighlight();
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}
