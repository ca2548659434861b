#pragma once

#include "TableMatch.h"

#include <release/VelkReleaseGlobal.h>

#include <cmath>
#include <optional>
#include <vector>

namespace VelkRelease {

/// The lines of a project whose new lines are known without weighing anything: those that a line of
/// the new table equals, and pairs of lines that differ in one variable alone, or in those alone
/// of which most values are others.
struct KnownLines
{
    /// A project's lines and those of the only table that can take them over; null without one.
    struct Tables
    {
        const LineCells *source = nullptr;
        const LineCells *target = nullptr;
    };
    Tables tables;
    std::optional<TableMatch> match; ///< None without a table, or if there are too many lines.
    struct Pair
    {
        int sourceRow = 0;
        int targetRow = 0;
        std::vector<size_t> differing; ///< Places among the common variables.
    };
    std::vector<Pair> pairs; ///< In the order of the source's lines.

    /// The number of a common variable.
    [[nodiscard]] int variable(size_t place) const;

    /// By project. Uses all cores; the tables must stay where they are.
    [[nodiscard]] static VELKRELEASE_EXPORT std::vector<KnownLines>
    of(const std::vector<Tables> &projects);

    /// Tables of more lines are not looked at: a project counts like few, however many it has.
    static constexpr int MostLines = 20'000;

private:
    void findPairs();
};

/// How often projects show a change, none of them counting for more than it may.
class SharedCount
{
public:
    /// Of \a cases lines of one project that could have changed so, \a supports did.
    void add(int supports, int cases)
    {
        const double weight = cases > MostOfProject ? double(MostOfProject) / cases : 1;
        m_supports += weight * supports;
        m_cases += weight * cases;
    }
    [[nodiscard]] int supports() const { return int(std::lround(m_supports)); }
    [[nodiscard]] int cases() const { return int(std::lround(m_cases)); }
    /// Else that nothing changed says more.
    [[nodiscard]] bool isMost() const { return 2 * supports() > cases(); }

    /// Lines of one project that count for one change.
    static constexpr int MostOfProject = 4;
    /// Projects that have to show a change.
    static constexpr int LeastProjects = 2;

private:
    double m_supports = 0;
    double m_cases = 0;
};

} // namespace VelkRelease
