#include "TextSimilarity.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace Mapper {

namespace {

/// Length of the token that begins at \a from; 0 if none does.
qsizetype tokenLength(QStringView text, qsizetype from)
{
    qsizetype at = from;
    if (text[at].isLetter()) {
        while (at < text.size() && text[at].isLetter())
            ++at;
        return at - from;
    }
    bool point = false;
    while (at < text.size()) {
        const bool nextIsDigit = at + 1 < text.size() && text[at + 1].isDigit();
        if (text[at] == u'.' && !point && at > from && nextIsDigit)
            point = true;
        else if (!text[at].isDigit())
            break;
        ++at;
    }
    return at - from;
}

std::vector<QStringView> tokensOf(QStringView text)
{
    std::vector<QStringView> tokens;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = tokenLength(text, at);
        if (length > 0)
            tokens.push_back(text.mid(at, length));
        at += std::max<qsizetype>(length, 1);
    }
    std::sort(tokens.begin(), tokens.end());
    tokens.erase(std::unique(tokens.begin(), tokens.end()), tokens.end());
    return tokens;
}

/// Characters that are compared one by one.
constexpr qsizetype MaxEdited = 128;

double dice(const std::vector<QStringView> &a, const std::vector<QStringView> &b)
{
    if (a.empty() && b.empty())
        return 0;
    size_t common = 0;
    for (const QStringView token : a)
        common += std::binary_search(b.begin(), b.end(), token) ? 1U : 0U;
    return 2.0 * double(common) / double(a.size() + b.size());
}

__extension__ using Bits = unsigned __int128;

/// The bits of the places at which a text has a character.
class Places
{
public:
    explicit Places(QStringView text)
    {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const char16_t c = text[i].unicode();
            (c < m_latin.size() ? m_latin[c] : m_others[c]) |= Bits(1) << unsigned(i);
        }
    }
    [[nodiscard]] Bits of(char16_t c) const
    {
        if (c < m_latin.size())
            return m_latin[c];
        const auto other = m_others.find(c);
        return other == m_others.end() ? Bits(0) : other->second;
    }

private:
    std::array<Bits, 256> m_latin{};
    std::unordered_map<char16_t, Bits> m_others;
};

/// Levenshtein distance by whole columns of differences at once (Myers 1999, Hyyrö 2001). The
/// pattern is not empty and has no more characters than Bits has bits.
int bitParallelDistance(QStringView pattern, QStringView text)
{
    const Places places(pattern);
    const Bits last = Bits(1) << unsigned(pattern.size() - 1);
    Bits up = ~Bits(0);
    Bits down = 0;
    auto distance = int(pattern.size());
    for (const QChar c : text) {
        const Bits equal = places.of(c.unicode());
        const Bits vertical = equal | down;
        const Bits horizontal = (((equal & up) + up) ^ up) | equal;
        Bits right = down | ~(horizontal | up);
        Bits left = up & horizontal;
        distance += (right & last) != 0 ? 1 : 0;
        distance -= (left & last) != 0 ? 1 : 0;
        right = (right << 1U) | 1U;
        left <<= 1U;
        up = left | ~(vertical | right);
        down = right & vertical;
    }
    return distance;
}

} // namespace

ComparableText::ComparableText(std::string_view utf8)
    : m_text(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())).trimmed().toLower())
    , m_tokens(tokensOf(m_text))
{
}

double ComparableText::similarity(const ComparableText &other, double least) const
{
    if (m_text == other.m_text)
        return 1;
    const QStringView a = QStringView(m_text).left(MaxEdited);
    const QStringView b = QStringView(other.m_text).left(MaxEdited);
    const auto longer = double(std::max(a.size(), b.size()));
    const double tokens = 0.5 * dice(m_tokens, other.m_tokens);
    const double most = tokens + 0.5 * double(std::min(a.size(), b.size())) / longer;
    if (most < least)
        return most;
    return tokens + 0.5 * (1.0 - double(editDistance(a, b)) / longer);
}

int editDistance(QStringView a, QStringView b)
{
    if (a.size() > b.size())
        std::swap(a, b);
    if (!a.isEmpty() && a.size() <= qsizetype(sizeof(Bits) * 8))
        return bitParallelDistance(a, b);
    std::vector<int> row(size_t(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < a.size(); ++i) {
        int diagonal = row[0];
        row[0] = int(i) + 1;
        for (qsizetype j = 0; j < b.size(); ++j) {
            const int replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[size_t(j) + 1];
            row[size_t(j) + 1] = std::min({replaced, diagonal + 1, row[size_t(j)] + 1});
        }
    }
    return row.back();
}

} // namespace Mapper
