#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QtGlobal>

#include <utility>
#include <vector>

namespace VelkRelease {

class LineCells;

/// Which lines of one table another table holds. A line is equal to another if they agree on all
/// variables that both tables have and have a value in one of these at least. A line is held if
/// two of its values and two thirds of them stand in one line there, which agrees on all common
/// variables or, see findNearLines(), on all but one.
class VELKRELEASE_EXPORT TableMatch
{
public:
    /// Both must stay where they are.
    TableMatch(const LineCells &source, const LineCells &target);

    /// Looks for lines too that agree on all common variables but one, of three or more.
    void findNearLines();

    /// Lines that agree on all common variables but one, in which both have a value, when neither
    /// table has another line like these.
    struct NearPair
    {
        int sourceRow = 0;
        int targetRow = 0;
        size_t differing = 0; ///< Place among the common variables.
    };
    /// In the order of the source's lines; none of fewer than three common variables.
    [[nodiscard]] std::vector<NearPair> nearPairs() const;
    /// Lines that agree on the common variables in these places, when neither table has another
    /// line like these, and in two values and two thirds of those of the source's line: source row
    /// and target row, in the order of the source's lines.
    [[nodiscard]] std::vector<std::pair<int, int>> pairsBy(const std::vector<size_t> &places) const;
    /// Share of a common variable's values that the target has in it, whatever the lines.
    [[nodiscard]] double valueShare(size_t place) const;
    /// Columns of the common variables.
    [[nodiscard]] const std::vector<int> &sourceColumns() const { return m_sourceColumns; }
    [[nodiscard]] const std::vector<int> &targetColumns() const { return m_targetColumns; }

    /// Number of variables that both tables have.
    [[nodiscard]] int commonCount() const { return int(m_sourceColumns.size()); }
    /// Whether the tables share two variables and half of those of the source.
    [[nodiscard]] bool isRelated() const;
    /// Whether the target has an equal line.
    [[nodiscard]] bool isEqual(int sourceRow) const { return m_equal[size_t(sourceRow)]; }
    /// Whether a line of the target has the key of this line. False unless the target has the
    /// columns that identify the source's lines.
    [[nodiscard]] bool hasKey(int sourceRow) const
    {
        return !m_keyFound.empty() && m_keyFound[size_t(sourceRow)];
    }
    [[nodiscard]] bool isHeld(int sourceRow) const { return heldShare(sourceRow) > 0; }
    [[nodiscard]] int heldCount(const std::vector<int> &sourceRows) const;
    /// How well the target could take over these lines, 0 to 1: the share of their values that it
    /// holds, the share of its variables that the source has, the likeness of the numbers of lines.
    [[nodiscard]] double score(const std::vector<int> &sourceRows) const;
    /// Whether the target has all variables of the source, or else half of them, two at least.
    [[nodiscard]] bool hasVariables() const;
    /// Share of the values that the target has in the same variables, whatever the lines.
    struct ColumnShares
    {
        double ofValues = 0; ///< Of all values of the source, the mean over all its variables.
        /// The same, if variables of which most values are there count as whole: lines may be gone.
        /// 0 unless one of these has several values.
        double ofColumns = 0;
    };
    [[nodiscard]] ColumnShares columnShares() const;
    /// Whether any line has an equal line or its key in the target.
    [[nodiscard]] bool anyFound() const;

private:
    [[nodiscard]] double heldShare(int sourceRow) const;
    void findEqualLines();
    void findKeys();

    const LineCells *m_source;
    const LineCells *m_target;
    /// Columns of the common variables.
    std::vector<int> m_sourceColumns;
    std::vector<int> m_targetColumns;
    std::vector<bool> m_equal;
    std::vector<bool> m_keyFound;
    std::vector<int> m_equalValues; ///< By source row: most values that stand in one line there.
};

} // namespace VelkRelease
