#pragma once

#include <geomcore/expression/Program.h>

#include <memory>
#include <vector>

namespace VKTab {

class LineView;
class TableData;

/// Column of a variable that lines of the table have in their varsets: a plain, range or computed
/// one. -1 if there is none, or no table.
[[nodiscard]] VELKGEOMCORE_EXPORT int columnOfVariable(const TableData *table, QStringView name);

/// A program whose variables are bound to the columns of one table, to be evaluated on its lines
/// without building varsets. Made once per table; small; any thread. Gives the same results as the
/// program on the line's varset.
class VELKGEOMCORE_EXPORT BoundExpression
{
public:
    using Results = std::vector<ExpressionValue>;

    /// Where the value of a variable comes from; neither of the two: no value.
    struct Slot
    {
        int column = -1;
        /// Index among the results of formulas evaluated before.
        int result = -1;
    };

    /// A program of null never holds and gives no value. Variables that the table lacks, and all of
    /// them without a table, have no value. The table need not live longer than this call.
    BoundExpression(std::shared_ptr<const Program> program, const TableData *table);
    /// One slot for each variable of the program.
    BoundExpression(std::shared_ptr<const Program> program, std::vector<Slot> slots);

    /// The line is one of the table that this was made for.
    [[nodiscard]] bool holds(const LineView &line) const;
    void evaluate(const LineView &line, ExpressionValue &result) const;
    /// With the results that slots refer to.
    void evaluate(const LineView &line, const Results &results, ExpressionValue &result) const;

private:
    std::shared_ptr<const Program> m_program;
    std::vector<Slot> m_slots;
};

} // namespace VKTab
