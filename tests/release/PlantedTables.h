#pragma once

#include "PlantedMistakes.h"

#include <random>

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

    /// As PlantedMistakes has them.
    bool plantShift(int count, int steps);
    bool plantSwap(int distance);

    [[nodiscard]] PlantedMistakes::Score score() const;
    [[nodiscard]] VelkRelease::NeighbourValues values() const;

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
    VelkRelease::NeighbourLines m_truth;
};
