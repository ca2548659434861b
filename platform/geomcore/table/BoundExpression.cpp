#include "BoundExpression.h"

#include "LineView.h"
#include "TableData.h"

namespace VKTab {

namespace {

class LineSource : public OperandSource
{
public:
    LineSource(const LineView &line, const std::vector<BoundExpression::Slot> &slotList,
               const BoundExpression::Results &results)
        : m_line(line)
        , m_slots(slotList)
        , m_results(results)
    {
    }

    [[nodiscard]] Operand operand(int slot, std::pmr::memory_resource &memory) const override
    {
        const BoundExpression::Slot &source = m_slots[size_t(slot)];
        if (source.result >= 0)
            return Operand::stored(m_results[size_t(source.result)].text);
        return source.column >= 0 ? cell(source.column, memory) : Operand();
    }

private:
    [[nodiscard]] Operand cell(int column, std::pmr::memory_resource &memory) const
    {
        std::string scratch;
        const std::string_view text = m_line.text(column, scratch);
        const bool inTable = text.empty() || text.data() < scratch.data() ||
                             text.data() >= scratch.data() + scratch.size();
        return Operand::stored(inTable ? text : keepText(text, memory));
    }

    const LineView &m_line;
    const std::vector<BoundExpression::Slot> &m_slots;
    const BoundExpression::Results &m_results;
};

std::vector<BoundExpression::Slot> slotsOf(const Program *program, const TableData *table)
{
    std::vector<BoundExpression::Slot> result;
    if (!program)
        return result;
    for (const Program::Variable &variable : program->variables())
        result.push_back({columnOfVariable(table, variable.name), -1});
    return result;
}

} // namespace

int columnOfVariable(const TableData *table, QStringView name)
{
    return table ? table->fields().indexOfVariable(name) : -1;
}

BoundExpression::BoundExpression(std::shared_ptr<const Program> program, const TableData *table)
    : m_program(std::move(program))
    , m_slots(slotsOf(m_program.get(), table))
{
}

BoundExpression::BoundExpression(std::shared_ptr<const Program> program, std::vector<Slot> slotList)
    : m_program(std::move(program))
    , m_slots(std::move(slotList))
{
}

bool BoundExpression::holds(const LineView &line) const
{
    return m_program && m_program->holds(LineSource(line, m_slots, {}));
}

void BoundExpression::evaluate(const LineView &line, ExpressionValue &result) const
{
    evaluate(line, {}, result);
}

void BoundExpression::evaluate(const LineView &line, const Results &results,
                               ExpressionValue &result) const
{
    if (m_program)
        m_program->evaluate(LineSource(line, m_slots, results), result);
    else
        result = {};
}

} // namespace VKTab
