#include "PairLikeness.h"

#include <release/pattern/CellParts.h>

#include <algorithm>
#include <cmath>

namespace VelkRelease {

namespace {

constexpr std::size_t MostLearned = 1000;
/// A name that fewer other pairs have says no more than the general one.
constexpr int FewestAlike = 3;
constexpr double MostWeight = 5;
/// What is expected before a table is known, in lines: partners are equal, neighbours now and then.
constexpr int Expected = 10;
constexpr int ExpectedEqual = 9;
constexpr int ExpectedByChance = 3;
/// Rows beside that a change of numbers leads to by chance: series grow by steps that are alike, so
/// that shifted lines look as if something was added to each.
constexpr int ExpectedMapped = 4;

/// Equal values by which a run of lines must have more beside its rows, for each of its ends.
constexpr double StepsChange = 1.5;

constexpr int NoValues = 0; ///< the name of two missing values, which say nothing
constexpr int EqualValues = 1;

QString numberName(double number)
{
    return QString::number(number, 'g', 6);
}

/// How far two numbers are from each other, in a few grades.
QString gradeOf(double before, double after)
{
    const double size = std::max(std::abs(before), std::abs(after));
    const double distance = std::abs(after - before) / size;
    return distance < 0.02  ? QStringLiteral("n1")
           : distance < 0.1 ? QStringLiteral("n2")
                            : QStringLiteral("n3");
}

} // namespace

PairLikeness::PairLikeness(const NeighbourValues &values, int target, int rows,
                           const std::vector<std::pair<int, int>> &pairs)
    : m_values(values)
    , m_target(target)
    , m_rows(rows)
{
    m_nameOf.insert(QStringLiteral("none"), NoValues);
    m_nameOf.insert(QStringLiteral("="), EqualValues);
    learn(pairs);
}

int PairLikeness::name(const QString &text)
{
    const auto known = m_nameOf.constFind(text);
    return known != m_nameOf.cend() ? *known : *m_nameOf.insert(text, int(m_nameOf.size()));
}

int PairLikeness::mapName(const QString &text)
{
    const auto id = std::size_t(name(text));
    m_isMap.resize(std::max(m_isMap.size(), id + 1));
    m_isMap[id] = true;
    return int(id);
}

std::vector<int> PairLikeness::textsOf(const QStringList &values)
{
    std::vector<int> ids;
    ids.reserve(std::size_t(values.size()));
    for (const QString &value : values) {
        const auto known = m_idOf.constFind(value);
        if (known != m_idOf.cend()) {
            ids.push_back(*known);
            continue;
        }
        ids.push_back(*m_idOf.insert(value, int(m_texts.size())));
        m_texts.push_back({value, numberOf(value)});
    }
    return ids;
}

const std::vector<int> &PairLikeness::lineTexts(int index)
{
    const auto known = m_lineTexts.constFind(index);
    return known != m_lineTexts.cend()
               ? *known
               : *m_lineTexts.insert(index, textsOf(m_values.ofLine(index, m_target)));
}

const std::vector<int> &PairLikeness::rowTexts(int row)
{
    const auto known = m_rowTexts.constFind(row);
    return known != m_rowTexts.cend()
               ? *known
               : *m_rowTexts.insert(row, textsOf(m_values.ofRow(m_target, row)));
}

PairLikeness::Relation PairLikeness::relationOfTexts(const QString &before, const QString &after)
{
    QString exact;
    QString numbers;
    const std::vector<CellPart> parts = differingParts(before, after);
    for (const CellPart &part : parts) {
        exact += part.before + QChar(0x1f) + part.after + QChar(0x1e);
        const auto from = numberOf(part.before);
        const auto to = numberOf(part.after);
        numbers += from && to && *from != 0 ? u'x' + numberName(*to / *from)
                                            : part.before + QChar(0x1f) + part.after;
        numbers += QChar(0x1e);
    }
    return {name(u't' + exact), mapName(u'm' + numbers),
            name(u'p' + QString::number(std::min(countLostTokens(before, after), 3)))};
}

PairLikeness::Relation PairLikeness::relation(int before, int after)
{
    if (before == after)
        return {m_texts[std::size_t(before)].text.isEmpty() ? NoValues : EqualValues, -1, -1};
    const quint64 key = quint64(quint32(before)) << 32U | quint32(after);
    const auto known = m_relations.constFind(key);
    if (known != m_relations.cend())
        return *known;
    const Text &from = m_texts[std::size_t(before)];
    const Text &to = m_texts[std::size_t(after)];
    Relation relation{-1, -1, -1};
    if (from.text.isEmpty())
        relation[0] = name(QStringLiteral("+"));
    else if (to.text.isEmpty())
        relation[0] = name(QStringLiteral("-"));
    else if (!from.number || !to.number)
        relation = relationOfTexts(from.text, to.text);
    else if (*from.number == *to.number)
        relation[0] = EqualValues;
    else
        relation = {*from.number == 0 ? -1 : mapName(u'x' + numberName(*to.number / *from.number)),
                    mapName(u'+' + numberName(*to.number - *from.number)),
                    name(gradeOf(*from.number, *to.number))};
    return *m_relations.insert(key, relation);
}

void PairLikeness::learn(const std::vector<std::pair<int, int>> &pairs)
{
    m_counts.clear();
    m_likeness.clear();
    m_learnedRow.clear();
    m_partners = 0;
    m_neighbours = 0;
    const std::size_t step = std::max(std::size_t(1), pairs.size() / MostLearned);
    for (std::size_t i = 0; i < pairs.size(); i += step) {
        const auto [index, row] = pairs[i];
        if (lineTexts(index).empty())
            continue;
        countPair(index, row, 1);
        m_learnedRow.insert(index, row);
    }
    // So that a few lines, or a table of which much is wrong, do not say that equality is strange.
    for (std::vector<Count> &counts : m_counts) {
        counts.resize(std::max(counts.size(), std::size_t(EqualValues) + 1));
        counts[EqualValues].partners += ExpectedEqual;
        counts[EqualValues].neighbours += ExpectedByChance;
    }
    m_partners += Expected;
    m_neighbours += Expected;
    takeBestWeights();
}

/// Only equal values tell: in a series the same number is added to each in any shift.
int PairLikeness::countEqual(int index, int row)
{
    const std::vector<int> &before = lineTexts(index);
    const std::vector<int> &after = rowTexts(row);
    int equal = 0;
    for (std::size_t v = 0; v < before.size() && v < after.size(); ++v) {
        const Text &from = m_texts[std::size_t(before[v])];
        const Text &to = m_texts[std::size_t(after[v])];
        const bool same = before[v] == after[v] || (from.number && from.number == to.number);
        equal += same && !from.text.isEmpty() ? 1 : 0;
    }
    return equal;
}

/// By how many rows each pair should be further on for most values to be equal.
std::vector<int> PairLikeness::stepsOfRuns(const std::vector<std::pair<int, int>> &pairs,
                                           int mostSteps)
{
    const std::size_t count = 2 * std::size_t(mostSteps) + 1;
    const auto none = std::size_t(mostSteps);
    std::vector<double> best(count, -StepsChange); // equal values of the pairs so far, by steps
    best[none] = 0;
    std::vector<quint8> before(pairs.size() * count); // the steps of the pair before
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto most = std::size_t(std::max_element(best.begin(), best.end()) - best.begin());
        const double changed = best[most] - StepsChange;
        for (std::size_t steps = 0; steps < count; ++steps) {
            before[i * count + steps] = quint8(best[steps] >= changed ? steps : most);
            best[steps] = std::max(best[steps], changed);
            const int row = pairs[i].second + int(steps) - mostSteps;
            if (row >= 0 && row < m_rows)
                best[steps] += countEqual(pairs[i].first, row);
        }
    }
    best[none] += StepsChange;
    auto steps = std::size_t(std::max_element(best.begin(), best.end()) - best.begin());
    std::vector<int> result(pairs.size());
    for (std::size_t i = pairs.size(); i-- > 0;) {
        result[i] = int(steps) - mostSteps;
        steps = before[i * count + steps];
    }
    return result;
}

void PairLikeness::learnBeside(const std::vector<std::pair<int, int>> &pairs, int mostSteps)
{
    const std::vector<int> steps = stepsOfRuns(pairs, mostSteps);
    std::vector<std::pair<int, int>> beside;
    bool any = false;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto [index, row] = pairs[i];
        any = any || steps[i] != 0;
        if (row + steps[i] >= 0 && row + steps[i] < m_rows)
            beside.emplace_back(index, row + steps[i]);
    }
    if (any)
        learn(beside);
}

void PairLikeness::countPair(int index, int row, int times)
{
    count(index, row, &Count::partners, times);
    m_partners += times;
    for (const int beside : {row - 2, row - 1, row + 1, row + 2}) {
        if (beside < 0 || beside >= m_rows)
            continue;
        count(index, beside, &Count::neighbours, times);
        m_neighbours += times;
    }
}

void PairLikeness::count(int index, int row, int Count::*counter, int times)
{
    const std::vector<int> &before = lineTexts(index);
    const std::vector<int> &after = rowTexts(row);
    m_counts.resize(std::max(m_counts.size(), before.size()));
    for (std::size_t v = 0; v < before.size() && v < after.size(); ++v) {
        for (const int name : relation(before[v], after[v])) {
            if (name < 0)
                continue;
            m_counts[v].resize(std::max(m_counts[v].size(), std::size_t(name) + 1));
            m_counts[v][std::size_t(name)].*counter += times;
        }
    }
}

void PairLikeness::takeBestWeights()
{
    m_best.clear();
    for (const std::vector<Count> &counts : m_counts) {
        double best = 0;
        for (std::size_t name = EqualValues; name < counts.size(); ++name) {
            if (counts[name].partners >= FewestAlike)
                best = std::max(best, weightOf(counts[name], 0, int(name)));
        }
        m_best.push_back(best);
    }
}

PairLikeness::Count PairLikeness::countOf(std::size_t variable, int name) const
{
    const std::vector<Count> &counts = m_counts[variable];
    return std::size_t(name) < counts.size() ? counts[std::size_t(name)] : Count();
}

/// \a own: pairs that are not counted.
double PairLikeness::weightOf(Count count, int own, int name) const
{
    if (std::size_t(name) < m_isMap.size() && m_isMap[std::size_t(name)])
        count.neighbours += ExpectedMapped;
    const double partners = (std::max(0, count.partners - own) + 0.5) / (m_partners - own + 1.0);
    const double neighbours = (count.neighbours + 0.5) / (m_neighbours + 1.0);
    return std::clamp(std::log(partners / neighbours), -MostWeight, MostWeight);
}

double PairLikeness::weight(std::size_t variable, const Relation &relation, bool isPair) const
{
    if (relation[0] == NoValues || variable >= m_counts.size())
        return 0;
    const int own = isPair ? 1 : 0;
    Count count;
    int used = -1;
    for (const int name : relation) {
        if (name < 0)
            continue;
        used = name;
        count = countOf(variable, name);
        if (count.partners - own >= FewestAlike)
            break;
    }
    return weightOf(count, own, used);
}

double PairLikeness::of(int index, int row, bool isPair)
{
    const quint64 key = quint64(quint32(index)) << 32U | quint32(row);
    if (!isPair) {
        const auto known = m_likeness.constFind(key);
        if (known != m_likeness.cend())
            return *known;
    }
    const double sum = sumOf(index, row, isPair);
    if (!isPair)
        m_likeness.insert(key, sum);
    return sum;
}

double PairLikeness::sumOf(int index, int row, bool isPair)
{
    const std::vector<int> &before = lineTexts(index);
    const std::vector<int> &after = rowTexts(row);
    double sum = 0;
    for (std::size_t v = 0; v < before.size() && v < after.size(); ++v)
        sum += weight(v, relation(before[v], after[v]), isPair);
    return sum;
}

bool PairLikeness::areAlike(int row, int other)
{
    const std::vector<int> texts = rowTexts(row);
    return texts == rowTexts(other);
}

double PairLikeness::gainByOthers(const std::vector<Move> &moves)
{
    const auto countThem = [&](int times) {
        for (const Move &move : moves) {
            const auto learned = m_learnedRow.constFind(move.index);
            if (learned != m_learnedRow.cend())
                countPair(move.index, *learned, times);
        }
    };
    countThem(-1);
    double sum = 0;
    for (const Move &move : moves)
        sum += sumOf(move.index, move.otherRow, false) - sumOf(move.index, move.row, false);
    countThem(1);
    return sum;
}

double PairLikeness::room(int index, int row)
{
    const std::vector<int> &before = lineTexts(index);
    const std::vector<int> &after = rowTexts(row);
    double sum = 0;
    for (std::size_t v = 0; v < before.size() && v < after.size() && v < m_best.size(); ++v) {
        // Another row may have a value where this one has none.
        const double own = weight(v, relation(before[v], after[v]), true);
        sum += std::max(0.0, m_best[v] - own);
    }
    return sum;
}

} // namespace VelkRelease
