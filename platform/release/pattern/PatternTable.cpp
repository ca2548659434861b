#include "PatternTable.h"

#include <algorithm>
#include <cmath>

namespace VelkRelease {

namespace {

constexpr double ProbabilitySteps = 1e9;

qint64 stepsOf(double probability)
{
    return qint64(std::llround(probability * ProbabilitySteps));
}

/// The number of a name; \a next if the name is new.
int numberFor(QHash<QString, int> &numbers, const QString &name, int next)
{
    const auto known = numbers.constFind(name);
    return known != numbers.cend() ? *known : *numbers.insert(name, next);
}

bool contains(const std::vector<int> &all, const std::vector<int> &some)
{
    return std::includes(all.begin(), all.end(), some.begin(), some.end());
}

} // namespace

/// Ascending.
std::vector<int> PatternTable::changeIds(const QList<ValueChange> &changes)
{
    std::vector<int> ids;
    ids.reserve(size_t(changes.size()));
    for (const ValueChange &change : changes) {
        const int id = numberFor(m_changeOf, change.lookUpName(), int(m_having.size()));
        if (size_t(id) == m_having.size())
            m_having.emplace_back();
        ids.push_back(id);
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

int PatternTable::patternFor(const QList<ValueChange> &changes, bool comparable, bool doubtful)
{
    const std::vector<int> ids = changeIds(changes);
    QString name = !comparable ? QStringLiteral("-") : doubtful ? QStringLiteral("?") : QString();
    for (const int id : ids)
        name += QString::number(id) + u' ';
    const int next = count();
    const int pattern = numberFor(m_patternOf, name, next);
    if (pattern < next)
        return pattern;
    append(changes, ids);
    m_patterns.back().comparable = comparable;
    m_patterns.back().doubtful = comparable && doubtful;
    return next;
}

int PatternTable::append(const QList<ValueChange> &changes, const std::vector<int> &ids)
{
    const int pattern = count();
    m_patterns.push_back({changes, true, false, {}, {}, 0, 0, {}, -1});
    m_changesOf.push_back(ids);
    noteLarger(pattern);
    for (const int id : ids)
        m_having[size_t(id)].push_back(pattern);
    return pattern;
}

int PatternTable::partFor(const QList<ValueChange> &shown, const QList<ValueChange> &changes)
{
    const int shownAt = count();
    const int whole = numberFor(m_patternOf, QStringLiteral("any"), shownAt);
    if (whole == shownAt)
        append(shown, {}); // none of its lines has all of them
    const std::vector<int> ids = changeIds(changes);
    QString name = QStringLiteral("part ");
    for (const int id : ids)
        name += QString::number(id) + u' ';
    const int next = count();
    const int part = numberFor(m_patternOf, name, next);
    if (part == next) {
        append(changes, ids);
        m_patterns.back().whole = whole;
    }
    return part;
}

int PatternTable::goneFor(const GoneGroup &group, bool doubtful)
{
    const QString name = QStringList{QStringLiteral("gone"),
                                     doubtful ? QStringLiteral("?") : QString(),
                                     group.key(),
                                     group.place,
                                     group.variable,
                                     group.value}
                             .join(QChar(0x1f));
    const int next = count();
    const int pattern = numberFor(m_patternOf, name, next);
    if (pattern == next) {
        m_patterns.push_back({{}, true, doubtful, group, {}, 0, 0, {}, -1});
        m_changesOf.emplace_back();
    }
    return pattern;
}

/// Finds the patterns that have all changes of a new one, and those all of whose changes it has.
void PatternTable::noteLarger(int pattern)
{
    const std::vector<int> &own = m_changesOf[size_t(pattern)];
    std::vector<int> others;
    for (const int id : own)
        others.insert(others.end(), m_having[size_t(id)].begin(), m_having[size_t(id)].end());
    std::sort(others.begin(), others.end());
    others.erase(std::unique(others.begin(), others.end()), others.end());
    for (const int other : others) {
        const std::vector<int> &its = m_changesOf[size_t(other)];
        if (its.size() == own.size())
            continue;
        if (contains(its, own))
            m_patterns[size_t(pattern)].larger.push_back(other);
        else if (contains(own, its))
            m_patterns[size_t(other)].larger.push_back(pattern);
    }
}

void PatternTable::add(int index, const Place &place, double probability)
{
    addTo(m_patterns[size_t(index)], place, probability);
    if (const int whole = wholeOf(index); whole != index)
        addTo(m_patterns[size_t(whole)], place, probability);
}

void PatternTable::remove(int index, const Place &place)
{
    removeFrom(m_patterns[size_t(index)], place);
    if (const int whole = wholeOf(index); whole != index)
        removeFrom(m_patterns[size_t(whole)], place);
}

void PatternTable::addTo(Pattern &pattern, const Place &place, double probability)
{
    ++pattern.lines;
    pattern.sum += stepsOf(probability);
    pattern.open[place.project][place.line] = probability;
}

void PatternTable::removeFrom(Pattern &pattern, const Place &place)
{
    const auto lines = pattern.open.find(place.project);
    const auto line = lines->second.find(place.line);
    --pattern.lines;
    pattern.sum -= stepsOf(line->second);
    lines->second.erase(line);
    if (lines->second.empty())
        pattern.open.erase(lines);
}

PatternTable::Numbers PatternTable::numbers(int index) const
{
    const Pattern &pattern = m_patterns[size_t(index)];
    Numbers numbers{pattern.lines, int(pattern.open.size()), 0, 0};
    if (pattern.lines > 0)
        numbers.probability = double(pattern.sum) / (ProbabilitySteps * pattern.lines);
    for (const int other : pattern.larger)
        numbers.exceptions += m_patterns[size_t(other)].lines;
    return numbers;
}

std::vector<int> PatternTable::ranked(bool gone) const
{
    std::vector<int> ranked;
    for (int i = 0; i < count(); ++i) {
        const Pattern &pattern = m_patterns[size_t(i)];
        if (pattern.lines > 0 && pattern.whole < 0 && pattern.gone.has_value() == gone)
            ranked.push_back(i);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [this](int a, int b) {
        return m_patterns[size_t(a)].lines > m_patterns[size_t(b)].lines;
    });
    return ranked;
}

std::vector<PatternTable::Place> PatternTable::places(int pattern, int most) const
{
    std::vector<Place> places;
    for (const auto &[project, lines] : m_patterns[size_t(pattern)].open) {
        for (const auto &[line, probability] : lines) {
            if (most >= 0 && int(places.size()) == most)
                return places;
            places.push_back({project, line});
        }
    }
    return places;
}

std::vector<int> PatternTable::lines(int pattern, int project) const
{
    std::vector<int> lines;
    const auto &open = m_patterns[size_t(pattern)].open;
    const auto found = open.find(project);
    if (found == open.end())
        return lines;
    lines.reserve(found->second.size());
    for (const auto &[line, probability] : found->second)
        lines.push_back(line);
    return lines;
}

std::vector<PatternTable::Place> PatternTable::exceptions(int pattern, int most) const
{
    std::vector<Place> found;
    for (const int other : m_patterns[size_t(pattern)].larger) {
        const std::vector<Place> some = places(other, most);
        found.insert(found.end(), some.begin(), some.end());
    }
    std::sort(found.begin(), found.end());
    if (most >= 0 && int(found.size()) > most)
        found.resize(size_t(most));
    return found;
}

std::vector<PatternTable::Place> PatternTable::leastSure() const
{
    std::vector<std::pair<double, Place>> sorted;
    for (const Pattern &pattern : m_patterns) {
        if (pattern.gone || pattern.whole >= 0)
            continue;
        for (const auto &[project, lines] : pattern.open) {
            for (const auto &[line, probability] : lines)
                sorted.push_back({probability, {project, line}});
        }
    }
    std::sort(sorted.begin(), sorted.end());
    std::vector<Place> places;
    places.reserve(sorted.size());
    for (const auto &[probability, place] : sorted)
        places.push_back(place);
    return places;
}

} // namespace VelkRelease
