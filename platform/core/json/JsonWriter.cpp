#include "JsonWriter.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace {

bool mustBeEscaped(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

/// Writes at most six characters.
char *escape(char *at, char c)
{
    static constexpr char Digits[] = "0123456789abcdef";
    *at++ = '\\';
    switch (c) {
    case '"':
    case '\\':
        *at++ = c;
        break;
    case '\n':
        *at++ = 'n';
        break;
    case '\r':
        *at++ = 'r';
        break;
    case '\t':
        *at++ = 't';
        break;
    case '\b':
        *at++ = 'b';
        break;
    case '\f':
        *at++ = 'f';
        break;
    default:
        std::memcpy(at, "u00", 3);
        at[3] = Digits[(c >> 4) & 15];
        at[4] = Digits[c & 15];
        at += 5;
    }
    return at;
}

} // namespace

JsonWriter::JsonWriter(Layout layout, int level)
    : m_layout(layout)
    , m_level(level)
{
}

void JsonWriter::key(std::string_view name)
{
    startRow();
    putText(name);
    put(m_layout == Indented ? ": " : ":");
    m_afterKey = true;
}

void JsonWriter::key(QStringView name)
{
    const QByteArray utf8 = name.toUtf8();
    key(std::string_view(utf8.constData(), std::size_t(utf8.size())));
}

void JsonWriter::value(std::string_view utf8)
{
    beforeValue();
    putText(utf8);
}

void JsonWriter::value(QStringView text)
{
    const QByteArray utf8 = text.toUtf8();
    value(std::string_view(utf8.constData(), std::size_t(utf8.size())));
}

void JsonWriter::value(qint64 number)
{
    beforeValue();
    char *at = reserve(24);
    m_at = std::to_chars(at, m_end, number).ptr;
}

void JsonWriter::value(bool flag)
{
    beforeValue();
    put(flag ? "true" : "false");
}

void JsonWriter::value(double number)
{
    if (!std::isfinite(number)) {
        null();
        return;
    }
    beforeValue();
    char *at = reserve(32);
    m_at = std::to_chars(at, m_end, number).ptr;
}

void JsonWriter::null()
{
    beforeValue();
    put("null");
}

void JsonWriter::written(QByteArrayView json, int indentBy)
{
    beforeValue();
    const char *from = json.data();
    const char *const end = from + json.size();
    while (from != end) {
        const void *feed =
            indentBy > 0 ? std::memchr(from, '\n', std::size_t(end - from)) : nullptr;
        const char *to = feed ? static_cast<const char *>(feed) + 1 : end;
        put(std::string_view(from, std::size_t(to - from)));
        if (feed) {
            std::memset(reserve(indentBy), ' ', std::size_t(indentBy));
            m_at += indentBy;
        }
        from = to;
    }
}

QByteArray JsonWriter::take()
{
    m_buffer.truncate(size());
    m_at = m_end = nullptr;
    m_first = true;
    return std::exchange(m_buffer, QByteArray());
}

void JsonWriter::beforeValue()
{
    if (m_afterKey)
        m_afterKey = false;
    else
        startRow();
}

void JsonWriter::startRow()
{
    char *at = reserve(m_level + 2);
    if (!m_first)
        *at++ = ',';
    if (m_layout == Indented && !m_oneRow && (size() > 0)) {
        *at++ = '\n';
        std::memset(at, ' ', std::size_t(m_level));
        at += m_level;
    }
    m_at = at;
    m_first = false;
}

void JsonWriter::open(char bracket, bool oneRow)
{
    beforeValue();
    *reserve(1) = bracket;
    ++m_at;
    ++m_level;
    m_first = true;
    m_oneRow = oneRow;
}

void JsonWriter::close(char bracket)
{
    --m_level;
    char *at = reserve(m_level + 2);
    if (m_layout == Indented && !m_oneRow && !m_first) {
        *at++ = '\n';
        std::memset(at, ' ', std::size_t(m_level));
        at += m_level;
    }
    *at++ = bracket;
    m_at = at;
    m_first = false;
    m_oneRow = false;
}

void JsonWriter::put(std::string_view text)
{
    std::memcpy(reserve(qsizetype(text.size())), text.data(), text.size());
    m_at += text.size();
}

void JsonWriter::putText(std::string_view utf8)
{
    reserve(qsizetype(utf8.size()) * 6 + 2);
    char *at = m_at;
    *at++ = '"';
    std::size_t from = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        if (!mustBeEscaped(utf8[i]))
            continue;
        std::memcpy(at, utf8.data() + from, i - from);
        at = escape(at + (i - from), utf8[i]);
        from = i + 1;
    }
    std::memcpy(at, utf8.data() + from, utf8.size() - from);
    at += utf8.size() - from;
    *at++ = '"';
    m_at = at;
}

void JsonWriter::grow(qsizetype size)
{
    const qsizetype used = this->size();
    m_buffer.resize(qMax(qsizetype(256), qMax(used + size, 2 * m_buffer.size())));
    m_at = m_buffer.data() + used;
    m_end = m_buffer.data() + m_buffer.size();
}
