#include "JsonGrammar.h"

#include <array>
#include <string_view>

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isHexadecimal(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Bytes that stand for themselves in a text.
constexpr std::array<bool, 256> plainBytes()
{
    std::array<bool, 256> plain{};
    for (std::size_t byte = 0x20; byte < 0x80; ++byte)
        plain[byte] = byte != '"' && byte != '\\';
    return plain;
}

constexpr std::array<bool, 256> Plain = plainBytes();

/// How the UTF-8 of a character goes on behind its first byte: shortest forms only, no surrogates.
struct Sequence
{
    int bytes = 0;              ///< behind the first; 0 if none begins with it
    unsigned char least = 0x80; ///< of the second byte
    unsigned char most = 0xBF;
};

Sequence sequence(unsigned char first)
{
    if (first < 0xC2 || first > 0xF4)
        return {};
    if (first < 0xE0)
        return {1};
    if (first < 0xF0)
        return {2, static_cast<unsigned char>(first == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(first == 0xED ? 0x9F : 0xBF)};
    return {3, static_cast<unsigned char>(first == 0xF0 ? 0x90 : 0x80),
            static_cast<unsigned char>(first == 0xF4 ? 0x8F : 0xBF)};
}

} // namespace

JsonGrammar::JsonGrammar(QByteArrayView json)
    : m_begin(json.data())
    , m_at(m_begin)
    , m_end(m_begin + json.size())
{
}

bool JsonGrammar::check()
{
    Next next = Next::Value;
    while (next == Next::Value)
        next = value();
    return next == Next::End;
}

JsonGrammar::Next JsonGrammar::value()
{
    skipBlanks();
    if (m_at == m_end)
        return stop(m_open.empty() ? "The document has no value." : "A value is missing.");
    switch (*m_at) {
    case '{':
        return open('}');
    case '[':
        return open(']');
    case '"':
        return text() ? behindValue() : Next::Fault;
    case 't':
        return word("true") ? behindValue() : Next::Fault;
    case 'f':
        return word("false") ? behindValue() : Next::Fault;
    case 'n':
        return word("null") ? behindValue() : Next::Fault;
    default:
        return number() ? behindValue() : Next::Fault;
    }
}

JsonGrammar::Next JsonGrammar::open(char closing)
{
    ++m_at;
    m_open.push_back(closing == '}');
    skipBlanks();
    if (peek() == closing)
        return behindValue();
    if (m_open.back() && !name())
        return Next::Fault;
    return Next::Value;
}

/// Closes what ends here too.
JsonGrammar::Next JsonGrammar::behindValue()
{
    for (;;) {
        skipBlanks();
        if (m_open.empty())
            return m_at == m_end ? Next::End : stop("Something stands behind the document.");
        const char c = peek();
        if (c == ',')
            return behindComma();
        if (c != (m_open.back() ? '}' : ']'))
            return stop(m_open.back() ? "A comma or } is missing behind a member."
                                      : "A comma or ] is missing behind an element.");
        ++m_at;
        m_open.pop_back();
    }
}

JsonGrammar::Next JsonGrammar::behindComma()
{
    ++m_at;
    skipBlanks();
    if (m_open.back() && !name())
        return Next::Fault;
    return Next::Value;
}

bool JsonGrammar::name()
{
    if (peek() != '"')
        return fail("The name of a member is missing.");
    if (!text())
        return false;
    skipBlanks();
    if (peek() != ':')
        return fail("A colon is missing behind the name of a member.");
    ++m_at;
    return true;
}

bool JsonGrammar::text()
{
    ++m_at;
    for (;;) {
        while (m_at != m_end && Plain[static_cast<unsigned char>(*m_at)])
            ++m_at;
        if (m_at == m_end)
            return fail("The closing quote of a text is missing.");
        if (*m_at == '"') {
            ++m_at;
            return true;
        }
        if (!(*m_at == '\\' ? escape() : character()))
            return false;
    }
}

bool JsonGrammar::escape()
{
    ++m_at;
    if (std::string_view("\"\\/bfnrt").find(peek()) != std::string_view::npos) {
        ++m_at;
        return true;
    }
    if (peek() != 'u')
        return fail("No such escape in a text.");
    ++m_at;
    for (int i = 0; i < 4; ++i, ++m_at) {
        if (!isHexadecimal(peek()))
            return fail("An escape \\u wants four hexadecimal digits.");
    }
    return true;
}

/// One beyond ASCII.
bool JsonGrammar::character()
{
    const auto first = static_cast<unsigned char>(*m_at);
    if (first < 0x20)
        return fail("A control character in a text must be escaped.");
    Sequence rest = sequence(first);
    if (rest.bytes == 0 || m_end - m_at <= rest.bytes)
        return fail("A text is no UTF-8.");
    for (int i = 1; i <= rest.bytes; ++i) {
        const auto byte = static_cast<unsigned char>(m_at[i]);
        if (byte < rest.least || byte > rest.most)
            return fail("A text is no UTF-8.");
        rest.least = 0x80;
        rest.most = 0xBF;
    }
    m_at += rest.bytes + 1;
    return true;
}

bool JsonGrammar::number()
{
    const bool minus = peek() == '-';
    if (minus)
        ++m_at;
    if (peek() == '0')
        ++m_at;
    else if (!digits())
        return fail(minus ? "A number has no digits." : "A value is missing.");
    if (peek() == '.' && (++m_at, !digits()))
        return fail("A number has no digits behind its point.");
    if (peek() != 'e' && peek() != 'E')
        return true;
    ++m_at;
    if (peek() == '+' || peek() == '-')
        ++m_at;
    return digits() || fail("A number has no digits in its exponent.");
}

bool JsonGrammar::digits()
{
    const char *const from = m_at;
    while (isDigit(peek()))
        ++m_at;
    return m_at != from;
}

bool JsonGrammar::word(const char *letters)
{
    const std::string_view wanted(letters);
    if (!std::string_view(m_at, std::size_t(m_end - m_at)).starts_with(wanted))
        return fail("A value is missing.");
    m_at += wanted.size();
    return true;
}

bool JsonGrammar::fail(const char *fault)
{
    m_fault = fault;
    return false;
}

JsonGrammar::Next JsonGrammar::stop(const char *fault)
{
    m_fault = fault;
    return Next::Fault;
}

void JsonGrammar::skipBlanks()
{
    while (m_at != m_end && isBlank(*m_at))
        ++m_at;
}
