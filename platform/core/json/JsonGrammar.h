#pragma once

#include <QByteArrayView>

#include <vector>

/// Tells whether a text is JSON by grammar (RFC 8259, UTF-8), in one pass, reading nothing outside
/// of it. Takes what readers of values refuse although it is JSON: numbers of any size, escapes of
/// halves of surrogate pairs, nesting of any depth.
class JsonGrammar
{
public:
    explicit JsonGrammar(QByteArrayView json);

    /// Whether the text is one value with nothing but blanks around.
    [[nodiscard]] bool check();

    /// Whether it may stand between values.
    [[nodiscard]] static bool isBlank(char c)
    {
        return c == ' ' || c == '\n' || c == '\r' || c == '\t';
    }

    /// Where the first fault stands, and what it is: a text of the context "VelkCore".
    [[nodiscard]] qsizetype faultAt() const { return m_at - m_begin; }
    [[nodiscard]] const char *fault() const { return m_fault; }

private:
    /// What stands behind a value or an opening bracket.
    enum class Next { Fault, Value, End };

    [[nodiscard]] Next value();
    [[nodiscard]] Next behindValue();
    [[nodiscard]] Next open(char closing);
    [[nodiscard]] Next behindComma();
    bool name();
    bool text();
    bool escape();
    bool character();
    bool number();
    bool digits();
    bool word(const char *letters);
    bool fail(const char *fault);
    Next stop(const char *fault);
    void skipBlanks();
    [[nodiscard]] char peek() const { return m_at == m_end ? '\0' : *m_at; }

    const char *const m_begin;
    const char *m_at;
    const char *const m_end;
    const char *m_fault = "";
    std::vector<bool> m_open; ///< the brackets that are open; true for an object's
};
