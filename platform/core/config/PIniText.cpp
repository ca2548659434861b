#include "PIniText.h"

#include <algorithm>
#include <optional>

namespace Internal {

namespace {

struct Escape
{
    char16_t letter;
    char16_t character;
};
constexpr Escape Escapes[] = {
    {u'"', u'"'}, {u'\\', u'\\'}, {u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}};

/// Control characters, and what UTF-8 cannot carry through or a reader might take away.
bool needsCode(QChar c)
{
    const char16_t code = c.unicode();
    return code < 0x20 || (code >= 0x7f && code < 0xa0) || code == 0xfeff || code >= 0xfffe;
}

/// One half of a surrogate pair without the other.
bool isLoneSurrogate(QStringView text, qsizetype i)
{
    if (text[i].isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    return text[i].isLowSurrogate() && (i == 0 || !text[i - 1].isHighSurrogate());
}

bool hasCodes(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (needsCode(text[i]) || isLoneSurrogate(text, i))
            return true;
    }
    return false;
}

bool hasBlankEnds(QStringView text)
{
    return text.trimmed().size() != text.size();
}

bool isHexDigit(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

std::optional<QChar> readCode(QStringView digits)
{
    if (digits.size() != 4 || !std::all_of(digits.begin(), digits.end(), isHexDigit))
        return std::nullopt;
    return QChar(ushort(digits.toUInt(nullptr, 16)));
}

/// Reads the escape at i, which is a backslash, and moves i behind it.
void readEscape(QStringView text, qsizetype &i, QuotedText &result)
{
    const QChar letter = i + 1 < text.size() ? text[i + 1] : QChar();
    for (const Escape &escape : Escapes) {
        if (letter == escape.letter) {
            result.text += QChar(escape.character);
            i += 2;
            return;
        }
    }
    if (const auto code = letter == u'u' ? readCode(text.mid(i + 2, 4)) : std::nullopt) {
        result.text += *code;
        i += 6;
        return;
    }
    if (result.unknownEscape.isEmpty())
        result.unknownEscape = text.mid(i, 2).toString();
    result.text += text[i++];
}

} // namespace

QuotedText readQuoted(QStringView text)
{
    QuotedText result;
    for (qsizetype i = 1; i < text.size();) {
        if (text[i] == u'"') {
            result.end = i + 1;
            return result;
        }
        if (text[i] == u'\\')
            readEscape(text, i, result);
        else
            result.text += text[i++];
    }
    return result;
}

QString quoted(const QString &text)
{
    QString result(u'"');
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        bool escaped = false;
        for (const Escape &escape : Escapes) {
            if (c == escape.character) {
                result += u'\\';
                result += QChar(escape.letter);
                escaped = true;
            }
        }
        if (escaped)
            continue;
        if (needsCode(c) || isLoneSurrogate(text, i))
            result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QChar(u'0'));
        else
            result += c;
    }
    return result + u'"';
}

bool valueNeedsQuotes(const QString &value)
{
    return value.startsWith(u'"') || value.contains(u';') || value.contains(u'#') ||
           hasBlankEnds(value) || hasCodes(value);
}

bool keyNeedsQuotes(const QString &key)
{
    static constexpr QStringView specialAtBegin = u"\"[;#";
    return key.isEmpty() || specialAtBegin.contains(key.at(0)) || key.contains(u'=') ||
           hasBlankEnds(key) || hasCodes(key);
}

bool sectionNeedsQuotes(const QString &section)
{
    return section.startsWith(u'"') || section.contains(u']') || hasBlankEnds(section) ||
           hasCodes(section);
}

} // namespace Internal
