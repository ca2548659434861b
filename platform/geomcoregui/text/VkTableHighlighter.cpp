#include "VkTableHighlighter.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPalette>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace {

/// States of a block.
enum { Closed, OpenText };

/// A colour for light and one for dark ground, each with a contrast of at least 4.5 to it.
QColor ink(QRgb onLight, QRgb onDark)
{
    const bool dark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    return dark ? onDark : onLight;
}

QTextCharFormat format(const QColor &color, bool bold = false)
{
    QTextCharFormat result;
    result.setForeground(color);
    if (bold)
        result.setFontWeight(QFont::Bold);
    return result;
}

QTextCharFormat wrong()
{
    QTextCharFormat result = format(ink(0xffc00000, 0xffff8080));
    result.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    result.setUnderlineColor(result.foreground().color());
    return result;
}

QTextCharFormat formatOf(VKTab::TokenKind kind)
{
    switch (kind) {
    case VKTab::TokenKind::Number:
        return format(ink(0xff1750eb, 0xff79b8ff));
    case VKTab::TokenKind::Text:
        return format(ink(0xff067d17, 0xff85d996));
    case VKTab::TokenKind::Function:
        return format(ink(0xff7a3e9d, 0xffd2a8ff));
    case VKTab::TokenKind::SourcePrefix:
        return format(ink(0xff8a4b00, 0xffffb86b));
    case VKTab::TokenKind::Comparison:
    case VKTab::TokenKind::Logic:
        return format(ink(0xff0033b3, 0xff9ecbff), true);
    case VKTab::TokenKind::OpenText:
    case VKTab::TokenKind::Unknown:
        return wrong();
    case VKTab::TokenKind::Arithmetic:
    case VKTab::TokenKind::Assignment:
        return format(ink(0xff0033b3, 0xff9ecbff));
    case VKTab::TokenKind::Name:
    case VKTab::TokenKind::OpenBracket:
    case VKTab::TokenKind::CloseBracket:
    case VKTab::TokenKind::Comma:
        break;
    }
    return {};
}

QTextCharFormat known()
{
    return format(ink(0xff00627a, 0xff7fd5ea));
}

QString htmlOf(QStringView text, const QTextCharFormat &format)
{
    const QString escaped = text.toString().toHtmlEscaped();
    QString style;
    if (format.hasProperty(QTextFormat::ForegroundBrush))
        style += QStringLiteral("color:%1;").arg(format.foreground().color().name());
    if (format.fontWeight() == QFont::Bold)
        style += QStringLiteral("font-weight:bold;");
    if (format.underlineStyle() == QTextCharFormat::WaveUnderline)
        style += QStringLiteral("text-decoration:underline;");
    return style.isEmpty() ? escaped
                           : QStringLiteral("<span style=\"%1\">%2</span>").arg(style, escaped);
}

QString htmlOf(const QTextBlock &block)
{
    const QString text = block.text();
    QString html;
    qsizetype done = 0;
    for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
        html += QStringView(text).mid(done, range.start - done).toString().toHtmlEscaped();
        html += htmlOf(QStringView(text).mid(range.start, range.length), range.format);
        done = range.start + range.length;
    }
    return html + QStringView(text).mid(done).toString().toHtmlEscaped();
}

} // namespace

VkTableHighlighter::VkTableHighlighter(
    const std::function<QList<VKTab::Token>(const QString &)> &tokenizer, QTextDocument *document)
    : QSyntaxHighlighter(document)
    , m_tokenizer(tokenizer)
{
    // A document without layout tells nobody of its changes.
    (void)document->documentLayout();
}

VkTableHighlighter::~VkTableHighlighter() = default;

QString VkTableHighlighter::toHtml() const
{
    QString html = QStringLiteral("<pre style=\"white-space:pre-wrap;\">");
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block != document()->begin())
            html += u'\n';
        html += htmlOf(block);
    }
    return html + QStringLiteral("</pre>");
}

void VkTableHighlighter::setNameCheck(const NameCheck &check)
{
    m_isKnown = check;
    rehighlight();
}

QTextCharFormat VkTableHighlighter::formatOf(const QList<VKTab::Token> &tokens, qsizetype index,
                                             bool isFirstBlock) const
{
    const VKTab::Token &token = tokens.at(index);
    const bool isFunction = token.kind == VKTab::TokenKind::Function;
    if (!m_isKnown || (!isFunction && token.kind != VKTab::TokenKind::Name))
        return ::formatOf(token.kind);
    NamePlace place = isFunction ? NamePlace::Function : NamePlace::Read;
    if (index > 0 && tokens.at(index - 1).kind == VKTab::TokenKind::SourcePrefix)
        place = NamePlace::Prefixed;
    else if (isFirstBlock && index == 0 && tokens.size() > 1 &&
             tokens.at(1).kind == VKTab::TokenKind::Assignment)
        place = NamePlace::Assigned;
    if (!m_isKnown(token.text, place))
        return wrong();
    return isFunction ? ::formatOf(token.kind) : known();
}

void VkTableHighlighter::highlightBlock(const QString &text)
{
    if (!m_tokenizer)
        return;
    // A text that the line before left open is split with a quote in front.
    const bool isOpen = previousBlockState() == OpenText;
    const QList<VKTab::Token> tokens = m_tokenizer(isOpen ? u'\'' + text : text);
    const bool isFirst = currentBlock() == document()->begin();
    const bool isLast = !currentBlock().next().isValid();
    setCurrentBlockState(Closed);
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const VKTab::Token &token = tokens.at(i);
        QTextCharFormat tokenFormat = formatOf(tokens, i, isFirst);
        if (token.kind == VKTab::TokenKind::OpenText) {
            setCurrentBlockState(OpenText);
            if (!isLast)
                tokenFormat = ::formatOf(VKTab::TokenKind::Text);
        }
        const int start = int(token.start) - (isOpen ? 1 : 0);
        if (!tokenFormat.isEmpty())
            setFormat(std::max(start, 0), int(token.end()) - (isOpen ? 1 : 0) - std::max(start, 0),
                      tokenFormat);
    }
}
