#include "ComputedColumns.h"

#include "LineView.h"
#include "tableExpressions.h"
#include <geomcore/csv/FieldIndex.h>

#include <algorithm>

namespace VKTab {

/// The computed values of one line, as far as they were asked for.
struct ComputedColumns::Memory
{
    explicit Memory(size_t count)
        : values(count)
        , rounds(count, 0)
    {
    }

    /// Forgets all values.
    void clear()
    {
        if (++round == 0) {
            std::fill(rounds.begin(), rounds.end(), 0);
            round = 1;
        }
    }
    [[nodiscard]] bool has(int index) const { return rounds[size_t(index)] == round; }

    int row = -1; ///< Whose values these are; -1 if of a line that may change.
    quint32 round = 1;
    BoundExpression::Results values; ///< Texts as the line shows them.
    std::vector<quint32> rounds;     ///< In which the values were made.
    std::vector<int> open;           ///< Still to be evaluated.
    std::string scratch;
};

ComputedColumns::ComputedColumns(const FieldIndex &fields, int firstColumn)
    : m_firstColumn(firstColumn)
{
    for (int column = firstColumn; column < fields.fields().size(); ++column)
        add(fields, column);
    findCycle(fields);
}

ComputedColumns::~ComputedColumns()
{
    delete m_memory.load();
}

void ComputedColumns::add(const FieldIndex &fields, int column)
{
    const TableExpression parsed = parseFormula(fields.fields().at(column));
    if (!parsed.program)
        m_faults.push_back({fields.fields().at(column).name, parsed.error});
    std::vector<BoundExpression::Slot> slotList;
    std::vector<int> needs;
    for (const Program::Variable &variable :
         parsed.program ? parsed.program->variables() : std::vector<Program::Variable>()) {
        const int read = fields.indexOfVariable(variable.name);
        if (read < m_firstColumn) {
            slotList.push_back({read, -1});
        } else {
            slotList.push_back({-1, read - m_firstColumn});
            needs.push_back(read - m_firstColumn);
        }
    }
    m_formulas.push_back({BoundExpression(parsed.program, std::move(slotList)), std::move(needs)});
}

/// Walks from need to need without recursion, as a chain may be as long as the table is wide.
void ComputedColumns::findCycle(const FieldIndex &fields)
{
    enum : char { New, Open, Done };
    std::vector<char> states(m_formulas.size(), New);
    std::vector<std::pair<int, size_t>> path; // formula, and which of its needs comes next
    for (int start = 0; start < int(m_formulas.size()) && m_cycle.isEmpty(); ++start) {
        if (states[size_t(start)] == New)
            path.emplace_back(start, 0);
        while (!path.empty()) {
            auto &[at, next] = path.back();
            states[size_t(at)] = Open;
            const std::vector<int> &needs = m_formulas[size_t(at)].needs;
            if (next == needs.size()) {
                states[size_t(at)] = Done;
                path.pop_back();
                continue;
            }
            const int need = needs[next++];
            if (states[size_t(need)] == New) {
                path.emplace_back(need, 0);
            } else if (states[size_t(need)] == Open) {
                const auto first = std::find_if(path.begin(), path.end(), [need](const auto &step) {
                    return step.first == need;
                });
                for (auto step = first; step != path.end(); ++step)
                    m_cycle.append(fields.fields().at(m_firstColumn + step->first).name);
                path.clear();
            }
        }
    }
}

void ComputedColumns::evaluate(const LineView &line, int column, std::string &result) const
{
    std::unique_ptr<Memory> memory = memoryFor(line);
    const int index = column - m_firstColumn;
    evaluateAll(line, index, *memory);
    result = memory->values[size_t(index)].text;
    delete m_memory.exchange(memory.release());
}

std::unique_ptr<ComputedColumns::Memory> ComputedColumns::memoryFor(const LineView &line) const
{
    std::unique_ptr<Memory> memory(m_memory.exchange(nullptr));
    if (!memory)
        memory = std::make_unique<Memory>(m_formulas.size());
    const int row = line.isPlain() ? line.row() : -1;
    if (row < 0 || row != memory->row)
        memory->clear();
    memory->row = row;
    return memory;
}

void ComputedColumns::evaluateAll(const LineView &line, int index, Memory &memory) const
{
    memory.open.assign(1, index);
    while (!memory.open.empty()) {
        const int next = memory.open.back();
        if (!memory.has(next)) {
            if (pushNeeds(next, memory))
                continue;
            evaluateOne(line, next, memory);
        }
        memory.open.pop_back();
    }
}

bool ComputedColumns::pushNeeds(int index, Memory &memory) const
{
    const size_t before = memory.open.size();
    for (const int need : m_formulas[size_t(index)].needs) {
        if (!memory.has(need))
            memory.open.push_back(need);
    }
    return memory.open.size() > before;
}

void ComputedColumns::evaluateOne(const LineView &line, int index, Memory &memory) const
{
    const int column = m_firstColumn + index;
    ExpressionValue &value = memory.values[size_t(index)];
    if (!line.takeShownInstead(column, value.text))
        m_formulas[size_t(index)].expression.evaluate(line, memory.values, value);
    const std::string_view shown = line.shownText(column, value.text, memory.scratch);
    if (shown.data() != value.text.data() || shown.size() != value.text.size())
        value.text = std::string(shown);
    memory.rounds[size_t(index)] = memory.round;
}

} // namespace VKTab
