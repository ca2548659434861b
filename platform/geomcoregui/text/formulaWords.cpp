#include "formulaWords.h"

#include <geomcore/expression/Tokenizer.h>

#include <QPlainTextEdit>
#include <QTextBlock>

namespace {

bool isNameChar(QChar c)
{
    return c == u'_' || c.isLetterOrNumber();
}

/// Place where the word before the position begins.
qsizetype wordStart(const QString &text, qsizetype position)
{
    static const QLatin1String prefix("SOURCE@");
    qsizetype start = position;
    while (start > 0 && isNameChar(text.at(start - 1)))
        --start;
    const auto before = QStringView(text).left(start);
    if (before.endsWith(prefix, Qt::CaseInsensitive))
        return start - prefix.size();
    const bool isOperator = before.endsWith(u'.') && !(start > 1 && text.at(start - 2).isDigit());
    return isOperator ? start - 1 : start;
}

QChar charAt(const QTextDocument *document, int position)
{
    return position < 0 ? QChar(QChar::ParagraphSeparator) : document->characterAt(position);
}

bool isBlank(QChar c)
{
    return c.isNull() || c.isSpace() || c == QChar::ParagraphSeparator;
}

} // namespace

FormulaWord formulaWordBefore(const QString &text, qsizetype position)
{
    const QList<VKTab::Token> tokens = VKTab::Tokenizer()(text.left(position));
    const qsizetype start = wordStart(text, position);
    FormulaWord word{text.mid(start, position - start), true, false};
    word.isFirst = tokens.isEmpty() || tokens.first().start >= start;
    if (tokens.isEmpty())
        return word;
    const VKTab::TokenKind last = tokens.last().kind;
    const bool atEnd = tokens.last().end() == position;
    word.canBeCompleted =
        last != VKTab::TokenKind::OpenText &&
        !(atEnd && (last == VKTab::TokenKind::Text || last == VKTab::TokenKind::Number));
    const bool isOperator =
        atEnd && (last == VKTab::TokenKind::Comparison || last == VKTab::TokenKind::Logic);
    if (!word.canBeCompleted || isOperator)
        word.text.clear();
    return word;
}

VKTab::Token formulaTokenAt(const QString &text, qsizetype position)
{
    const QList<VKTab::Token> tokens = VKTab::Tokenizer()(text);
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        VKTab::Token token = tokens.at(i);
        const bool isPrefix = token.kind == VKTab::TokenKind::SourcePrefix &&
                              i + 1 < tokens.size() && tokens.at(i + 1).start == token.end();
        if (isPrefix) {
            const VKTab::Token name = tokens.at(++i);
            token = {name.kind, token.text + name.text, token.start, token.length + name.length};
        }
        if (position >= token.start && position < token.end())
            return token;
    }
    return {};
}

QString enclosingFunction(const QString &text, qsizetype position)
{
    QStringList open;
    const QList<VKTab::Token> tokens = VKTab::Tokenizer()(text);
    for (qsizetype i = 0; i < tokens.size() && tokens.at(i).end() <= position; ++i) {
        const VKTab::TokenKind kind = tokens.at(i).kind;
        if (kind == VKTab::TokenKind::CloseBracket && !open.isEmpty())
            open.removeLast();
        else if (kind == VKTab::TokenKind::OpenBracket)
            open.append(i > 0 && tokens.at(i - 1).kind == VKTab::TokenKind::Function
                            ? tokens.at(i - 1).text
                            : QString());
    }
    open.removeAll(QString());
    return open.isEmpty() ? QString() : open.last();
}

void insertFormulaItem(QPlainTextEdit *edit, const FormulaItem &item, int replaced)
{
    if (edit->isReadOnly())
        return;
    QTextCursor cursor = edit->textCursor();
    cursor.beginEditBlock();
    const QString selected = cursor.selectedText();
    if (!cursor.hasSelection() && replaced > 0)
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, replaced);
    cursor.removeSelectedText();
    const QTextDocument *const document = edit->document();
    const QChar before = charAt(document, cursor.position() - 1);
    const QChar after = charAt(document, cursor.position());
    if (item.kind == FormulaItem::Function) {
        const bool hasBrackets = after == u'(';
        cursor.insertText(hasBrackets ? item.text : item.text + u'(' + selected + u')');
        if (selected.isEmpty())
            cursor.movePosition(hasBrackets ? QTextCursor::NextCharacter
                                            : QTextCursor::PreviousCharacter);
    } else if (item.kind == FormulaItem::Variable) {
        cursor.insertText(item.text);
    } else {
        cursor.insertText((isBlank(before) ? QString() : QStringLiteral(" ")) + item.text);
        if (after == u' ')
            cursor.movePosition(QTextCursor::NextCharacter);
        else
            cursor.insertText(QStringLiteral(" "));
    }
    cursor.endEditBlock();
    edit->setTextCursor(cursor);
    edit->setFocus();
}
