#pragma once

#include <release/neighbour/NeighbourCheck.h>

#include <map>
#include <random>
#include <set>

/// An old and a new table made by chance, the true assignment of their lines, and mistakes that are
/// planted in it.
class PlantedTables
{
public:
    struct Kind
    {
        bool renamed = false;    ///< designations and materials are replaced everywhere
        bool scaled = false;     ///< lengths are halved
        bool measured = false;   ///< weights are measured anew
        bool resorted = false;   ///< the new table has another order
        bool withoutKey = false; ///< no designation tells the lines apart
        double changed = 0.1;    ///< share of lines that are gone, and of those that are new
        double merged = 0;       ///< share of lines that became one with the line before
    };

    PlantedTables(const Kind &kind, int lines, unsigned seed);

    /// Some consecutive lines get the row of another one, so many rows away; at the end of the
    /// lines two then share one, or the last one gets none.
    bool plantShift(int count, int steps);
    /// Two lines at most so far apart.
    bool plantSwap(int distance);

    [[nodiscard]] const VelkRelease::NeighbourLines &lines() const { return m_lines; }
    [[nodiscard]] VelkRelease::NeighbourValues values() const;
    /// Lines whose row is not the true one.
    [[nodiscard]] std::set<int> wrongLines() const;
    [[nodiscard]] int rowOf(int line) const { return m_truth[std::size_t(line - 1)]; }

private:
    [[nodiscard]] int chance(int below) { return int(m_random() % unsigned(below)); }
    [[nodiscard]] bool happens(double share) { return chance(100000) < int(share * 100000); }
    [[nodiscard]] QStringList oldLine(int index);
    [[nodiscard]] QStringList newLine(const QStringList &old);

    const Kind m_kind;
    std::mt19937 m_random;
    VelkRelease::NeighbourLines m_lines;
    std::vector<QStringList> m_old;
    std::vector<QStringList> m_new;
    std::vector<int> m_truth; ///< row of each line; -1: gone
};
