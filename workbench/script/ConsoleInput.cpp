#include "ConsoleInput.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QStringListModel>

namespace {

QString commonBegin(const QStringList &names)
{
    QString begin = names.value(0);
    for (const QString &name : names) {
        while (!name.startsWith(begin))
            begin.chop(1);
    }
    return begin;
}

bool isOfList(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape ||
           key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

ConsoleInput::ConsoleInput(QWidget *parent)
    : QLineEdit(parent)
    , m_completer(new QCompleter(this))
    , m_names(new QStringListModel(this))
{
    m_completer->setModel(m_names);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWidget(this);
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this,
            &ConsoleInput::insertName);
}

void ConsoleInput::setHistory(const QStringList &lines)
{
    m_history = lines.mid(std::max<qsizetype>(0, lines.size() - HistoryLimit));
    m_place = int(m_history.size());
}

bool ConsoleInput::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *const key = static_cast<QKeyEvent *>(event);
        const bool isTab = key->key() == Qt::Key_Tab && key->modifiers() == Qt::NoModifier;
        // The list of names gives its keys to this field first, and takes what that does not want.
        if (m_completer->popup()->isVisible() && (isTab || isOfList(key->key()))) {
            event->ignore();
            return true;
        }
        if (isTab && !text().left(cursorPosition()).trimmed().isEmpty()) {
            completeName();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void ConsoleInput::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        return showFromHistory(m_place - 1);
    case Qt::Key_Down:
        return showFromHistory(m_place + 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return enter();
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void ConsoleInput::enter()
{
    const QString line = text();
    if (line.trimmed().isEmpty())
        return;
    if (m_history.isEmpty() || m_history.last() != line)
        m_history << line;
    setHistory(m_history);
    m_written.clear();
    clear();
    Q_EMIT entered(line);
}

void ConsoleInput::showFromHistory(int place)
{
    if (place < 0 || place > m_history.size())
        return;
    if (m_place == m_history.size())
        m_written = text();
    m_place = place;
    setText(place == m_history.size() ? m_written : m_history.at(place));
}

QString ConsoleInput::nameBeforeCursor() const
{
    static const QRegularExpression name(QStringLiteral("[\\w$]*$"));
    return name.match(text().left(cursorPosition())).captured();
}

void ConsoleInput::completeName()
{
    const QStringList names =
        m_complete ? m_complete(text().left(cursorPosition())) : QStringList();
    if (names.isEmpty())
        return;
    insertName(commonBegin(names));
    if (names.size() == 1)
        return;
    m_names->setStringList(names);
    m_completer->complete();
}

void ConsoleInput::insertName(const QString &name)
{
    QString line = text();
    const qsizetype begin = cursorPosition() - nameBeforeCursor().size();
    line.replace(begin, cursorPosition() - begin, name);
    setText(line);
    setCursorPosition(int(begin + name.size()));
}
