#include "MessageText.h"

#include <QEvent>
#include <QTextBlock>

MessageText::MessageText(int lines, QWidget *parent)
    : QPlainTextEdit(parent)
    , m_lines(lines)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

MessageText::~MessageText() = default;

QSize MessageText::sizeHint() const
{
    return {600, fontMetrics().lineSpacing() * m_lines + 2 * frameWidth()};
}

void MessageText::add(const QString &text, Inks::Ink ink)
{
    QTextCharFormat format;
    format.setForeground(Inks::ink(ink, palette()));
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    if (!document()->isEmpty())
        cursor.insertBlock();
    const int first = cursor.block().position();
    cursor.insertText(text, format);
    for (QTextBlock block = document()->findBlock(first); block.isValid(); block = block.next())
        block.setUserState(int(ink));
    moveCursor(QTextCursor::End);
    ensureCursorVisible();
}

void MessageText::colourAnew()
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QTextCharFormat format;
        format.setForeground(Inks::ink(Inks::Ink(std::max(0, block.userState())), palette()));
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
}

void MessageText::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colourAnew();
}
