#include "TextSimilarity.h"

#include <algorithm>
#include <numeric>

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

std::vector<QString> tokensOf(const QString &text)
{
    std::vector<QString> tokens;
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

double dice(const std::vector<QString> &a, const std::vector<QString> &b)
{
    if (a.empty() && b.empty())
        return 0;
    size_t common = 0;
    for (const QString &token : a)
        common += std::binary_search(b.begin(), b.end(), token) ? 1U : 0U;
    return 2.0 * double(common) / double(a.size() + b.size());
}

} // namespace

ComparableText::ComparableText(std::string_view utf8)
    : m_text(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())).trimmed().toLower())
    , m_tokens(tokensOf(m_text))
{
}

double ComparableText::similarity(const ComparableText &other) const
{
    const qsizetype longer = std::max(m_text.size(), other.m_text.size());
    if (m_text == other.m_text)
        return 1;
    const double edit = 1.0 - double(editDistance(m_text, other.m_text)) / double(longer);
    return 0.5 * dice(m_tokens, other.m_tokens) + 0.5 * edit;
}

int editDistance(QStringView a, QStringView b)
{
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
