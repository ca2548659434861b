#include "PlantedTables.h"

#include <algorithm>

using VelkRelease::NeighbourLines;

namespace {

const QStringList materials{"St37-2", "St52-3", "A2-70", "A4-80"};
const QStringList newMaterials{"S235JR", "S355J2", "A2-70", "A4-80"};

} // namespace

QStringList PlantedTables::oldLine(int index)
{
    const int diameter = 3 + index / 12;
    const int length = 10 + 5 * (index % 12);
    const QString material = materials[(index / 6) % 4];
    return {m_kind.withoutKey ? QStringLiteral("bolt")
                              : QString("DIN 933 - M%1 x %2").arg(diameter).arg(length),
            QString::number(diameter),
            QString::number(length),
            material,
            QString::number(diameter * diameter * length / 40.0 + chance(10), 'f', 2),
            happens(0.3) ? QStringLiteral("on stock") : QString()};
}

QStringList PlantedTables::newLine(const QStringList &old)
{
    QStringList line = old;
    if (m_kind.renamed) {
        line[0].replace("DIN 933", "ISO 4017");
        line[3] = newMaterials[materials.indexOf(old[3])];
    }
    if (m_kind.scaled)
        line[2] = QString::number(old[2].toDouble() / 2);
    if (m_kind.measured)
        line[4] = QString::number(old[4].toDouble() * (1 + (chance(200) - 100) / 5000.0), 'f', 2);
    if (happens(0.2))
        line[5] = QStringLiteral("see catalog %1").arg(chance(40));
    return line;
}

PlantedTables::PlantedTables(const Kind &kind, int lines, unsigned seed)
    : m_kind(kind)
    , m_random(seed)
{
    std::vector<int> truth;    // row of each line; -1: gone
    std::vector<int> sourceOf; // of each row; -1: new
    for (int i = 0; i < lines; ++i) {
        m_old.push_back(oldLine(i));
        truth.push_back(-1);
        if (happens(kind.changed)) {
            m_new.push_back(newLine(oldLine(chance(lines + 40))));
            sourceOf.push_back(-1);
        }
        if (happens(kind.changed))
            continue;
        if (happens(kind.merged) && !sourceOf.empty() && sourceOf.back() >= 0) {
            truth.back() = int(m_new.size()) - 1;
            m_old.back() = m_old[std::size_t(sourceOf.back())];
            continue;
        }
        truth.back() = int(m_new.size());
        m_new.push_back(newLine(m_old.back()));
        sourceOf.push_back(i);
    }
    if (kind.resorted) {
        std::vector<int> order(m_new.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = int(i);
        std::stable_sort(order.begin(), order.end(), [this](int a, int b) {
            return m_new[std::size_t(a)][2].toDouble() < m_new[std::size_t(b)][2].toDouble();
        });
        std::vector<QStringList> sorted;
        std::vector<int> placeOf(order.size());
        for (std::size_t i = 0; i < order.size(); ++i) {
            placeOf[std::size_t(order[i])] = int(i);
            sorted.push_back(m_new[std::size_t(order[i])]);
        }
        m_new = sorted;
        for (int &row : truth)
            row = row < 0 ? -1 : placeOf[std::size_t(row)];
    }
    for (int i = 0; i < lines; ++i) {
        const int row = truth[std::size_t(i)];
        m_lines.lines.push_back({i + 1, row < 0 ? -1 : 0, row, row < 0 && happens(0.5)});
    }
    m_lines.rows.resize(1);
    for (int row = 0; row < int(m_new.size()); ++row)
        m_lines.rows[0].push_back(row + 1);
    m_truth = m_lines;
}

bool PlantedTables::plantShift(int count, int steps)
{
    return PlantedMistakes::shift(m_lines, 0, count, steps, m_random);
}

bool PlantedTables::plantSwap(int distance)
{
    return PlantedMistakes::swap(m_lines, distance, m_random);
}

PlantedMistakes::Score PlantedTables::score() const
{
    return PlantedMistakes::scoreOf(m_truth, m_lines, values());
}

VelkRelease::NeighbourValues PlantedTables::values() const
{
    return {[this](int index, int) { return m_old[std::size_t(index)]; },
            [this](int, int row) {
                return m_new[std::size_t(row)];
            }};
}
