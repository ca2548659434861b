#include "JsonWriter.h"

#include <QIODevice>

#include <charconv>
#include <cmath>
#include <cstring>

namespace {

/// A device is given pieces of about this size.
constexpr qsizetype PieceSize = 256 * 1024;
constexpr std::string_view Blanks = "                ";

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
        at[0] = 'u';
        at[1] = '0';
        at[2] = '0';
        at[3] = Digits[(c >> 4) & 15];
        at[4] = Digits[c & 15];
        at += 5;
    }
    return at;
}

/// A qint64 takes this many characters at most.
constexpr int NumberSize = 20;

char *putNumber(char *at, auto number)
{
    return std::to_chars(at, at + NumberSize, number).ptr;
}

/// Writes six characters.
char *escapeUnit(char *at, char16_t unit)
{
    static constexpr char Digits[] = "0123456789abcdef";
    *at++ = '\\';
    *at++ = 'u';
    for (int shift = 12; shift >= 0; shift -= 4)
        *at++ = Digits[(unit >> shift) & 15];
    return at;
}

} // namespace

JsonWriter::JsonWriter(Layout layout, int level)
    : m_layout(layout)
    , m_level(level)
{
}

JsonWriter::JsonWriter(QIODevice &device, Layout layout)
    : m_device(&device)
    , m_layout(layout)
    , m_level(0)
{
}

void JsonWriter::row(std::initializer_list<int> numbers)
{
    beforeValue();
    char *at = reserve(qsizetype(numbers.size()) * (NumberSize + 1) + 2);
    *at++ = '[';
    for (int number : numbers) {
        at = putNumber(at, number);
        *at++ = ',';
    }
    at -= numbers.size() > 0 ? 1 : 0;
    *at++ = ']';
    m_at = at;
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
    startRow();
    putText(name);
    put(m_layout == Indented ? ": " : ":");
    m_afterKey = true;
}

void JsonWriter::value(std::string_view utf8)
{
    beforeValue();
    putText(utf8);
}

void JsonWriter::value(QStringView text)
{
    beforeValue();
    putText(text);
}

void JsonWriter::value(int number)
{
    beforeValue();
    m_at = putNumber(reserve(NumberSize), number);
}

void JsonWriter::value(qint64 number)
{
    beforeValue();
    m_at = putNumber(reserve(NumberSize), number);
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
    if (indentBy == 0) {
        put(std::string_view(json.data(), std::size_t(json.size())));
        return;
    }
    const char *from = json.data();
    const char *const end = from + json.size();
    while (from != end) {
        const void *feed = std::memchr(from, '\n', std::size_t(end - from));
        const char *to = feed ? static_cast<const char *>(feed) + 1 : end;
        put(std::string_view(from, std::size_t(to - from)));
        from = to;
        if (feed && indentBy > 0) {
            std::memset(reserve(indentBy), ' ', std::size_t(indentBy));
            m_at += indentBy;
        }
        for (int i = indentBy; feed && i < 0 && from != end && *from == ' '; ++i)
            ++from;
    }
}

void JsonWriter::seen(const std::function<void(QByteArrayView)> &see,
                      const std::function<void()> &write)
{
    Q_ASSERT(m_device);
    beforeValue();
    handOn();
    m_afterKey = true; // what comes before the value is there
    m_see = &see;
    write();
    handOn();
    m_see = nullptr;
}

void JsonWriter::leaveTo(const std::function<qsizetype()> &put)
{
    Q_ASSERT(m_device);
    beforeValue();
    handOn();
    m_handedOn += put();
}

QByteArray JsonWriter::take()
{
    m_buffer.truncate(pending());
    m_at = m_end = nullptr;
    m_first = true;
    return std::exchange(m_buffer, QByteArray());
}

bool JsonWriter::finish()
{
    handOn();
    return !m_refused;
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
    char *at = reserve(m_level + 2 + qsizetype(Blanks.size()));
    if (!m_first)
        *at++ = ',';
    if (m_layout == Indented && !m_oneRow && size() > 0)
        at = putLineFeed(at);
    m_at = at;
    m_first = false;
}

char *JsonWriter::putLineFeed(char *at)
{
    *at++ = '\n';
    // A copy of fixed size is quicker; what is too much is written over.
    std::memcpy(at, Blanks.data(), Blanks.size());
    if (m_level > int(Blanks.size()))
        std::memset(at, ' ', std::size_t(m_level));
    return at + m_level;
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
    char *at = reserve(m_level + 2 + qsizetype(Blanks.size()));
    if (m_layout == Indented && !m_oneRow && !m_first)
        at = putLineFeed(at);
    *at++ = bracket;
    m_at = at;
    m_first = false;
    m_oneRow = false;
}

void JsonWriter::put(std::string_view text)
{
    const auto size = qsizetype(text.size());
    if (m_device && size > PieceSize) {
        handOn();
        handOn(text);
        return;
    }
    std::memcpy(reserve(size), text.data(), text.size());
    m_at += size;
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

void JsonWriter::putText(QStringView text)
{
    // Nearly every text is plain ASCII and needs no copy in between.
    char *at = reserve(text.size() + 2);
    *at++ = '"';
    for (QChar c : text) {
        if (c.unicode() >= 0x80 || mustBeEscaped(char(c.unicode()))) {
            if (!text.isValidUtf16()) {
                putUnpaired(text);
                return;
            }
            const QByteArray utf8 = text.toUtf8();
            putText(std::string_view(utf8.constData(), std::size_t(utf8.size())));
            return;
        }
        *at++ = char(c.unicode());
    }
    *at++ = '"';
    m_at = at;
}

/// A text with halves of surrogate pairs, which have no UTF-8 and are escaped.
void JsonWriter::putUnpaired(QStringView text)
{
    char *at = reserve(text.size() * 6 + 2);
    *at++ = '"';
    while (!text.isEmpty()) {
        const char16_t unit = text.front().unicode();
        const bool pair = text.first(qMin(text.size(), qsizetype(2))).isValidUtf16();
        const qsizetype units = QChar::isHighSurrogate(unit) && pair ? 2 : 1;
        if (units == 1 && QChar::isSurrogate(unit)) {
            at = escapeUnit(at, unit);
        } else if (unit < 0x80 && mustBeEscaped(char(unit))) {
            at = escape(at, char(unit));
        } else {
            for (char byte : text.first(units).toUtf8())
                *at++ = byte;
        }
        text = text.sliced(units);
    }
    *at++ = '"';
    m_at = at;
}

void JsonWriter::grow(qsizetype size)
{
    handOn();
    const qsizetype used = pending();
    const qsizetype least = m_device ? PieceSize : 256;
    m_buffer.resize(qMax(qMax(least, used + size), m_device ? 0 : 2 * m_buffer.size()));
    m_at = m_buffer.data() + used;
    m_end = m_buffer.data() + m_buffer.size();
}

void JsonWriter::handOn()
{
    const qsizetype size = pending();
    if (!m_device || size == 0)
        return;
    handOn(std::string_view(m_buffer.constData(), std::size_t(size)));
    m_at = m_buffer.data();
}

void JsonWriter::handOn(std::string_view text)
{
    const auto size = qsizetype(text.size());
    Q_ASSERT(m_device);
    if (m_see)
        (*m_see)(QByteArrayView(text.data(), size));
    m_refused = m_refused || m_device->write(text.data(), size) != size;
    m_handedOn += size;
}
