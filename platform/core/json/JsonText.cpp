#include "JsonText.h"

#include "JsonGrammar.h"

#include <core/text/PString.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

qsizetype markSize(QByteArrayView json)
{
    return json.startsWith(QByteArrayView(ByteOrderMark.data(), ByteOrderMark.size()))
               ? qsizetype(ByteOrderMark.size())
               : 0;
}

/// The character that an escape of four hexadecimal digits stands for.
char16_t fromHex(const char *digits)
{
    return char16_t(QByteArray::fromRawData(digits, 4).toUShort(nullptr, 16));
}

/// Puts one escape, whose letter stands at \a at, into the text. Gives the place behind it.
const char *unescape(const char *at, QString &text)
{
    static constexpr std::string_view Letters = "bfnrt";
    static constexpr std::string_view Controls = "\b\f\n\r\t";
    if (*at == 'u') {
        text += QChar(fromHex(at + 1));
        return at + 5;
    }
    const std::size_t control = Letters.find(*at);
    text += QLatin1Char(control == std::string_view::npos ? *at : Controls[control]);
    return at + 1;
}

} // namespace

bool JsonText::check(QByteArrayView json, QString *error)
{
    const qsizetype mark = markSize(json);
    JsonGrammar grammar(json.sliced(mark));
    if (grammar.check())
        return true;
    if (error)
        *error = QStringLiteral("%1: %2").arg(place(json, grammar.faultAt() + mark),
                                              PString::translate(grammar.fault(), "VelkCore"));
    return false;
}

QString JsonText::place(QByteArrayView json, qsizetype offset)
{
    const QByteArrayView before = json.first(qBound(qsizetype(0), offset, json.size()));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const qsizetype column = before.size() - before.lastIndexOf('\n');
    return PString::translate("Zeile %1, Spalte %2", "VelkCore").arg(line).arg(column);
}

QByteArrayView JsonText::trimmed(QByteArrayView json)
{
    json = json.sliced(markSize(json));
    while (!json.isEmpty() && JsonGrammar::isBlank(json.front()))
        json = json.sliced(1);
    while (!json.isEmpty() && JsonGrammar::isBlank(json.back()))
        json.chop(1);
    return json;
}

QString JsonText::unquoted(QByteArrayView quoted)
{
    const QByteArrayView inner = quoted.sliced(1, quoted.size() - 2);
    const char *at = inner.data();
    const char *const end = at + inner.size();
    QString text;
    while (at != end) {
        const void *found = std::memchr(at, '\\', std::size_t(end - at));
        const char *escape = found ? static_cast<const char *>(found) : end;
        text += QString::fromUtf8(at, escape - at);
        at = found ? unescape(escape + 1, text) : end;
    }
    return text;
}

QByteArray JsonText::compacted(QByteArrayView json)
{
    QByteArray result;
    result.reserve(json.size());
    bool inText = false;
    for (qsizetype i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (inText || !JsonGrammar::isBlank(c))
            result += c;
        if (inText && c == '\\')
            result += json[++i];
        else if (c == '"')
            inText = !inText;
    }
    return result;
}

JsonText::Walker::Walker(QByteArrayView json)
    : m_at(json.data() + 1)
    , m_end(json.data() + json.size())
    , m_object(json.front() == '{')
{
}

bool JsonText::Walker::next()
{
    skipBlanks();
    if (*m_at == ',') {
        ++m_at;
        skipBlanks();
    }
    if (*m_at == '}' || *m_at == ']')
        return false;
    if (m_object) {
        const char *name = m_at;
        skipText();
        m_name = QByteArrayView(name, m_at - name);
        skipBlanks();
        ++m_at; // colon
        skipBlanks();
    }
    const char *value = m_at;
    skipValue();
    m_value = QByteArrayView(value, m_at - value);
    return true;
}

void JsonText::Walker::skipBlanks()
{
    while (m_at != m_end && JsonGrammar::isBlank(*m_at))
        ++m_at;
}

void JsonText::Walker::skipText()
{
    for (++m_at; *m_at != '"'; ++m_at) {
        if (*m_at == '\\')
            ++m_at;
    }
    ++m_at;
}

void JsonText::Walker::skipValue()
{
    if (*m_at == '"') {
        skipText();
        return;
    }
    if (*m_at != '{' && *m_at != '[') {
        while (m_at != m_end && !JsonGrammar::isBlank(*m_at) && *m_at != ',' && *m_at != '}' &&
               *m_at != ']')
            ++m_at;
        return;
    }
    int depth = 0;
    do {
        switch (*m_at) {
        case '"':
            skipText();
            continue;
        case '{':
        case '[':
            ++depth;
            break;
        case '}':
        case ']':
            --depth;
            break;
        default:
            break;
        }
        ++m_at;
    } while (depth > 0);
}
