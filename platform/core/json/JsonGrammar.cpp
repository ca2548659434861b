#include "JsonGrammar.h"

#include <QtGlobal>

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
        return stop(m_open.empty() ? QT_TRANSLATE_NOOP("VelkCore", "Das Dokument hat keinen Wert.")
                                   : QT_TRANSLATE_NOOP("VelkCore", "Ein Wert fehlt."));
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
            return m_at == m_end ? Next::End
                                 : stop(QT_TRANSLATE_NOOP("VelkCore",
                                                          "Hinter dem Dokument steht noch etwas."));
        const char c = peek();
        if (c == ',')
            return behindComma();
        if (c != (m_open.back() ? '}' : ']'))
            return stop(
                m_open.back()
                    ? QT_TRANSLATE_NOOP("VelkCore", "Hinter einem Eintrag fehlt ein Komma oder }.")
                    : QT_TRANSLATE_NOOP("VelkCore",
                                        "Hinter einem Listenwert fehlt ein Komma oder ]."));
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
        return fail(QT_TRANSLATE_NOOP("VelkCore", "Der Name eines Eintrags fehlt."));
    if (!text())
        return false;
    skipBlanks();
    if (peek() != ':')
        return fail(QT_TRANSLATE_NOOP("VelkCore",
                                      "Hinter dem Namen eines Eintrags fehlt ein Doppelpunkt."));
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
            return fail(QT_TRANSLATE_NOOP("VelkCore",
                                          "Das schließende Anführungszeichen eines Textes fehlt."));
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
        return fail(
            QT_TRANSLATE_NOOP("VelkCore", "Ein Text enthält eine unbekannte Escape-Folge."));
    ++m_at;
    for (int i = 0; i < 4; ++i, ++m_at) {
        if (!isHexadecimal(peek()))
            return fail(QT_TRANSLATE_NOOP("VelkCore",
                                          "Hinter \\u müssen vier hexadezimale Ziffern stehen."));
    }
    return true;
}

/// One beyond ASCII.
bool JsonGrammar::character()
{
    const auto first = static_cast<unsigned char>(*m_at);
    if (first < 0x20)
        return fail(QT_TRANSLATE_NOOP(
            "VelkCore", "Ein Steuerzeichen in einem Text muss als Escape-Folge dastehen."));
    Sequence rest = sequence(first);
    if (rest.bytes == 0 || m_end - m_at <= rest.bytes)
        return fail(QT_TRANSLATE_NOOP("VelkCore", "Ein Text ist kein UTF-8."));
    for (int i = 1; i <= rest.bytes; ++i) {
        const auto byte = static_cast<unsigned char>(m_at[i]);
        if (byte < rest.least || byte > rest.most)
            return fail(QT_TRANSLATE_NOOP("VelkCore", "Ein Text ist kein UTF-8."));
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
        return fail(minus ? QT_TRANSLATE_NOOP("VelkCore", "Eine Zahl hat keine Ziffern.")
                          : QT_TRANSLATE_NOOP("VelkCore", "Ein Wert fehlt."));
    if (peek() == '.' && (++m_at, !digits()))
        return fail(
            QT_TRANSLATE_NOOP("VelkCore", "Eine Zahl hat keine Ziffern hinter ihrem Punkt."));
    if (peek() != 'e' && peek() != 'E')
        return true;
    ++m_at;
    if (peek() == '+' || peek() == '-')
        ++m_at;
    return digits() ||
           fail(QT_TRANSLATE_NOOP("VelkCore", "Eine Zahl hat keine Ziffern in ihrem Exponenten."));
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
        return fail(QT_TRANSLATE_NOOP("VelkCore", "Ein Wert fehlt."));
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
