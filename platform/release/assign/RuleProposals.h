#pragma once

#include <release/VelkReleaseGlobal.h>

#include <vector>

namespace VelkRelease {

class LineCells;

/// Works out from the values of an old project and of the new ones that take over its lines which
/// variables got another name, and by the values of which variable the project was split. Tables
/// and variables are numbered as in LineCells.
class VELKRELEASE_EXPORT RuleProposals
{
public:
    /// A variable of the source under the name that it has in the target.
    struct Rename
    {
        int source;
        int target;

        friend bool operator==(const Rename &, const Rename &) = default;
    };
    /// Which lines a target is for.
    struct Split
    {
        int variable = -1; ///< of the source; -1: the project was not split by values
        /// For each target, a source row for each of its values.
        std::vector<std::vector<int>> rows;
    };

    struct Target
    {
        const LineCells *cells;
        bool isNear = false; ///< In the folder of the project.
    };

    /// All tables must stay where they are.
    RuleProposals(const LineCells &source, const std::vector<Target> &targets);

    /// Variables of the source that the target lacks, each with one that the source lacks: they
    /// have the same values in the lines that are equal in all other variables that both have. If
    /// there are too few such lines, the new column must have the values of the old one, and then
    /// most lines must be equal but for variables that were reworded. In the order of the source's
    /// variables.
    [[nodiscard]] const std::vector<Rename> &renames(int target) const
    {
        return m_renames[size_t(target)];
    }
    /// The lines of \a source with those variables under their names in \a target.
    [[nodiscard]] static LineCells renamed(const LineCells &source, const Target &target);
    /// A variable that no target has, and each value of which belongs to one target: that one holds
    /// the lines with the value, compared in what did not change in most lines. Nothing if values
    /// would fit another target nearly as well.
    [[nodiscard]] Split split() const;

private:
    struct Parting;

    [[nodiscard]] std::vector<Rename> findRenames(const Target &target) const;
    [[nodiscard]] Parting part(int column) const;

    const LineCells &m_source;
    const std::vector<Target> m_targets;
    std::vector<std::vector<Rename>> m_renames;
};

} // namespace VelkRelease
