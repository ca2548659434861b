#include "Tokenizer.h"

#include <algorithm>
#include <array>

namespace VKTab {

namespace {

constexpr std::array<QLatin1String, 3> logicWords = {QLatin1String("OR"), QLatin1String("AND"),
                                                     QLatin1String("NOT")};
constexpr std::array<QLatin1String, 6> comparisonWords = {QLatin1String("EQ"), QLatin1String("NE"),
                                                          QLatin1String("LT"), QLatin1String("LE"),
                                                          QLatin1String("GT"), QLatin1String("GE")};

template<size_t N>
bool contains(const std::array<QLatin1String, N> &words, QStringView word)
{
    return std::any_of(words.begin(), words.end(), [&](QLatin1String candidate) {
        return word.compare(candidate, Qt::CaseInsensitive) == 0;
    });
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isNameChar(QChar c)
{
    return c == u'_' || c.isLetter() || c.isDigit();
}

class Scanner
{
public:
    explicit Scanner(const QString &text)
        : m_text(text)
    {
    }

    QList<Token> run()
    {
        skipBlanks();
        while (m_pos < m_text.size()) {
            const qsizetype start = m_pos;
            const TokenKind kind = next();
            m_tokens.append(Token{kind, m_text.mid(start, m_pos - start), start, m_pos - start});
            skipBlanks();
        }
        return std::move(m_tokens);
    }

    /// End of the number that begins at the given place, or that place if none does.
    qsizetype numberEnd(qsizetype begin) const
    {
        qsizetype pos = digitsEnd(begin);
        const bool whole = pos > begin;
        if (at(pos) == u'.' && (isDigit(at(pos + 1)) || (whole && dotWordEnd(pos) == pos)))
            pos = digitsEnd(pos + 1);
        if (pos == begin)
            return begin;
        if (at(pos).toUpper() == u'E') {
            const bool sign = at(pos + 1) == u'+' || at(pos + 1) == u'-';
            const qsizetype digits = pos + (sign ? 2 : 1);
            if (digitsEnd(digits) > digits)
                pos = digitsEnd(digits);
        }
        return pos;
    }

private:
    QChar at(qsizetype pos) const { return pos < m_text.size() ? m_text.at(pos) : QChar(); }

    void skipBlanks()
    {
        while (m_pos < m_text.size() && m_text.at(m_pos).isSpace())
            ++m_pos;
    }

    qsizetype digitsEnd(qsizetype pos) const
    {
        while (isDigit(at(pos)))
            ++pos;
        return pos;
    }

    /// End of an operator in points, such as ".EQ.", or the given place if there is none.
    qsizetype dotWordEnd(qsizetype begin, TokenKind *kind = nullptr) const
    {
        qsizetype pos = begin + 1;
        while (pos - begin <= 3 && at(pos).isLetter())
            ++pos;
        if (at(pos) != u'.')
            return begin;
        const QStringView word = QStringView(m_text).mid(begin + 1, pos - begin - 1);
        const bool logic = contains(logicWords, word);
        if (!logic && !contains(comparisonWords, word))
            return begin;
        if (kind)
            *kind = logic ? TokenKind::Logic : TokenKind::Comparison;
        return pos + 1;
    }

    TokenKind next()
    {
        const QChar c = m_text.at(m_pos);
        if (c == u'\'')
            return scanText();
        if (c == u'.' && !isDigit(at(m_pos + 1)))
            return scanDotWord();
        if (isDigit(c) || c == u'.')
            return scanNumber();
        if (isNameChar(c))
            return scanName();
        return scanSign(c);
    }

    TokenKind scanText()
    {
        for (++m_pos; m_pos < m_text.size(); ++m_pos) {
            if (m_text.at(m_pos) != u'\'')
                continue;
            if (at(m_pos + 1) != u'\'') {
                ++m_pos;
                return TokenKind::Text;
            }
            ++m_pos;
        }
        return TokenKind::OpenText;
    }

    TokenKind scanDotWord()
    {
        TokenKind kind = TokenKind::Unknown;
        const qsizetype end = dotWordEnd(m_pos, &kind);
        m_pos = std::max(end, m_pos + 1);
        return kind;
    }

    /// A run that begins with digits and goes on with letters is a name ("3D_MODEL").
    TokenKind scanNumber()
    {
        const qsizetype end = numberEnd(m_pos);
        if (nameEnd(m_pos) > end)
            return scanName();
        m_pos = end;
        return TokenKind::Number;
    }

    qsizetype nameEnd(qsizetype pos) const
    {
        while (pos < m_text.size() && isNameChar(m_text.at(pos)))
            ++pos;
        return pos;
    }

    TokenKind scanName()
    {
        const qsizetype begin = m_pos;
        m_pos = nameEnd(begin);
        const QStringView name = QStringView(m_text).mid(begin, m_pos - begin);
        if (at(m_pos) == u'@' && name.compare(QLatin1String("SOURCE"), Qt::CaseInsensitive) == 0) {
            ++m_pos;
            return TokenKind::SourcePrefix;
        }
        qsizetype pos = m_pos;
        while (pos < m_text.size() && m_text.at(pos).isSpace())
            ++pos;
        const bool prefixed = !m_tokens.isEmpty() &&
                              m_tokens.last().kind == TokenKind::SourcePrefix &&
                              m_tokens.last().end() == begin;
        return at(pos) == u'(' && !prefixed ? TokenKind::Function : TokenKind::Name;
    }

    TokenKind scanSign(QChar c)
    {
        ++m_pos;
        switch (c.unicode()) {
        case u'*':
            m_pos += at(m_pos) == u'*' ? 1 : 0;
            return TokenKind::Arithmetic;
        case u'+':
        case u'-':
        case u'/':
            return TokenKind::Arithmetic;
        case u'(':
            return TokenKind::OpenBracket;
        case u')':
            return TokenKind::CloseBracket;
        case u',':
            return TokenKind::Comma;
        case u'=':
            return TokenKind::Assignment;
        default:
            --m_pos;
            return scanUnknown();
        }
    }

    TokenKind scanUnknown()
    {
        const bool pair = m_text.at(m_pos).isHighSurrogate() && at(m_pos + 1).isLowSurrogate();
        m_pos += pair ? 2 : 1;
        return TokenKind::Unknown;
    }

    const QString m_text;
    qsizetype m_pos = 0;
    QList<Token> m_tokens;
};

} // namespace

QList<Token> Tokenizer::operator()(const QString &text) const
{
    return Scanner(text).run();
}

bool isNumberLiteral(QStringView text)
{
    const QString copy = text.toString();
    return !copy.isEmpty() && Scanner(copy).numberEnd(0) == copy.size();
}

} // namespace VKTab
