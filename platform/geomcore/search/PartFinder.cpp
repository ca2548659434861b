#include "PartFinder.h"

#include "SearchText.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace {

constexpr int CandidatesPerQuestion = 4096;

bool isPartOfAWord(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9') ||
           (static_cast<unsigned char>(character) & 0x80U) != 0;
}

/// How well a word fits at the best of its places: 0 at the begin of the name, 1 at the begin of a
/// word in it, 2 within one; three more outside of the name. Nothing if it is not there.
std::optional<int> rankOf(std::string_view text, std::string_view word)
{
    const size_t slash = text.rfind('/');
    const size_t name = slash == std::string_view::npos ? 0 : slash + 1;
    std::optional<int> best;
    for (size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
        int rank = at >= name ? 0 : 3;
        if (at != name && (at != 0 || name == 0))
            rank += at > 0 && isPartOfAWord(text[at - 1]) ? 2 : 1;
        best = std::min(best.value_or(rank), rank);
    }
    return best;
}

} // namespace

void PartFinder::add(QStringView text)
{
    m_begins.push_back(m_texts.size());
    QByteArray folded = SearchText::folded(text).toUtf8();
    folded.replace('\n', ' ');
    m_texts.append(folded.constData(), size_t(folded.size()));
    m_texts.push_back('\n');
}

std::string_view PartFinder::text(int entry) const
{
    const size_t begin = m_begins[size_t(entry)];
    const size_t end =
        size_t(entry) + 1 < m_begins.size() ? m_begins[size_t(entry) + 1] : m_texts.size();
    return std::string_view(m_texts).substr(begin, end - begin - 1);
}

PartFinder::Hits PartFinder::find(const QString &words, int limit,
                                  const std::function<bool()> &isStale) const
{
    std::vector<std::string> parts;
    const QStringList folded =
        SearchText::folded(words).simplified().split(u' ', Qt::SkipEmptyParts);
    parts.reserve(size_t(folded.size()));
    for (const QString &part : folded)
        parts.push_back(part.toStdString());
    if (parts.empty())
        return {};
    // The longest word is the rarest one, as a rule.
    std::stable_sort(parts.begin(), parts.end(),
                     [](const auto &one, const auto &other) { return one.size() > other.size(); });

    Hits hits;
    std::vector<Hit> all;
    size_t from = 0;
    int candidates = 0;
    while (from < m_texts.size()) {
        const size_t at = m_texts.find(parts.front(), from);
        if (at == std::string::npos)
            break;
        const auto next = std::upper_bound(m_begins.begin(), m_begins.end(), at);
        const int entry = int(next - m_begins.begin()) - 1;
        const std::string_view candidate = text(entry);
        int rank = 0;
        const bool hasAll = std::all_of(parts.begin(), parts.end(), [&](const std::string &part) {
            const std::optional<int> one = rankOf(candidate, part);
            rank += one.value_or(0);
            return one.has_value();
        });
        if (hasAll)
            all.push_back({entry, rank});
        from = next == m_begins.end() ? m_texts.size() : *next;
        if (isStale && ++candidates % CandidatesPerQuestion == 0 && isStale())
            return {};
    }
    const auto better = [this](const Hit &one, const Hit &other) {
        return std::tuple(one.rank, text(one.entry).size(), one.entry) <
               std::tuple(other.rank, text(other.entry).size(), other.entry);
    };
    const auto last = all.begin() + std::min<std::ptrdiff_t>(limit, std::ptrdiff_t(all.size()));
    std::partial_sort(all.begin(), last, all.end(), better);
    hits.best = QList<Hit>(all.begin(), last);
    hits.count = int(all.size());
    return hits;
}
