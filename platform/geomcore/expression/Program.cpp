#include "Program.h"

#include "EvaluationMemory.h"
#include "ExpressionFunctions.h"
#include "ProgramWriter.h"

#include <core/message/PMessage.h>
#include <core/text/countText.h>

#include <QSet>

#include <array>
#include <cmath>
#include <memory_resource>
#include <type_traits>

namespace VKTab {

namespace {

enum class Order { None, Less, Equal, Greater };

Order orderOf(double a, double b)
{
    if (nearlyEqual(a, b))
        return Order::Equal;
    return a < b ? Order::Less : Order::Greater;
}

/// Exact, by the bytes of UTF-8, which is the order of code points.
Order orderOf(std::string_view a, std::string_view b)
{
    const int result = a.compare(b);
    if (result == 0)
        return Order::Equal;
    return result < 0 ? Order::Less : Order::Greater;
}

/// An empty stored value is no value, except beside a text, where it is the empty text.
Order orderOf(const Operand &a, const Operand &b, std::pmr::memory_resource &memory)
{
    const bool text = a.kind == Operand::Kind::Text || b.kind == Operand::Kind::Text;
    if (!text) {
        if (a.hasNoValue() || b.hasNoValue())
            return Order::None;
        const auto numberA = a.toNumber();
        const auto numberB = numberA ? b.toNumber() : std::nullopt;
        if (numberB)
            return orderOf(*numberA, *numberB);
    }
    const auto textA = a.toText(memory);
    const auto textB = b.toText(memory);
    return textA && textB ? orderOf(*textA, *textB) : Order::None;
}

} // namespace

OperandSource::~OperandSource() = default;

/// One evaluation.
class Program::Run
{
public:
    Run(const Program &program, const OperandSource &source)
        : m_program(program)
        , m_source(source)
        , m_memory(m_buffer.data(), m_buffer.size())
        , m_stack(stackIn(m_memory, size_t(program.m_stackSize)))
    {
    }

    Operand result()
    {
        const size_t end = m_program.m_code.size();
        for (size_t at = 0; at < end;)
            at = step(m_program.m_code[at], at);
        return m_top > 0 ? top() : Operand();
    }

    EvaluationMemory &memory() { return m_memory; }

private:
    /// Not initialised: a place is written before it is read.
    static Operand *stackIn(std::pmr::memory_resource &memory, size_t size)
    {
        static_assert(std::is_trivially_copyable_v<Operand> &&
                      std::is_trivially_destructible_v<Operand>);
        return static_cast<Operand *>(memory.allocate(size * sizeof(Operand), alignof(Operand)));
    }

    Operand &top() { return m_stack[m_top - 1]; }
    Operand take() { return m_stack[--m_top]; }
    void push(const Operand &operand) { m_stack[m_top++] = operand; }

    /// Gives the place of the next instruction.
    size_t step(const Instruction &instruction, size_t at)
    {
        switch (instruction.code) {
        case Code::Jump:
            return size_t(instruction.argument);
        case Code::JumpIfFalse:
        case Code::JumpIfTrue:
            if (top().isTrue() == (instruction.code == Code::JumpIfTrue))
                return size_t(instruction.argument);
            take();
            break;
        case Code::TakeAndJumpIfFalse:
            if (!take().isTrue())
                return size_t(instruction.argument);
            break;
        default:
            evaluate(instruction);
        }
        return at + 1;
    }

    void evaluate(const Instruction &instruction)
    {
        switch (instruction.code) {
        case Code::Constant:
            return push(m_program.m_constants[size_t(instruction.argument)]);
        case Code::Variable:
            return push(m_source.operand(instruction.argument, m_memory));
        case Code::Negate:
        case Code::Positive:
            return sign(instruction.code);
        case Code::Not:
            top() = Operand::ofLogical(!top().isTrue());
            return;
        case Code::Call:
            return call(instruction);
        default:
            return binary(instruction.code);
        }
    }

    void sign(Code code)
    {
        const auto number = top().toNumber();
        if (!number)
            top() = Operand();
        else
            top() = Operand::ofNumber(code == Code::Negate ? -*number : *number);
    }

    void call(const Instruction &instruction)
    {
        m_top -= size_t(instruction.count);
        const std::span<const Operand> arguments(m_stack + m_top, size_t(instruction.count));
        push(instruction.function->evaluate(arguments, m_memory));
    }

    void binary(Code code)
    {
        const Operand right = take();
        if (code >= Code::Equal) {
            const Order order = orderOf(top(), right, m_memory);
            top() = Operand::ofLogical(compare(code, order));
            return;
        }
        const auto a = top().toNumber();
        const auto b = right.toNumber();
        top() = a && b ? Operand::ofNumber(calculate(code, *a, *b)) : Operand();
    }

    static bool compare(Code code, Order order)
    {
        switch (code) {
        case Code::Equal:
            return order == Order::Equal;
        case Code::NotEqual:
            return order == Order::Less || order == Order::Greater;
        case Code::Less:
            return order == Order::Less;
        case Code::LessEqual:
            return order == Order::Less || order == Order::Equal;
        case Code::Greater:
            return order == Order::Greater;
        default:
            return order == Order::Greater || order == Order::Equal;
        }
    }

    static double calculate(Code code, double a, double b)
    {
        switch (code) {
        case Code::Add:
            return a + b;
        case Code::Subtract:
            return a - b;
        case Code::Multiply:
            return a * b;
        case Code::Divide:
            return b == 0 ? std::nan("") : a / b;
        default:
            return std::pow(a, b);
        }
    }

    const Program &m_program;
    const OperandSource &m_source;
    alignas(std::max_align_t) std::array<std::byte, 1024> m_buffer;
    EvaluationMemory m_memory;
    Operand *const m_stack;
    size_t m_top = 0;
};

Program::Program(const NodeBase &statement)
{
    ProgramWriter(*this).write(statement);
}

Program::~Program() = default;

QStringList Program::variableNames() const
{
    QStringList names;
    QSet<QString> known;
    for (const Variable &variable : m_variables) {
        const qsizetype before = known.size();
        known.insert(variable.name);
        if (known.size() > before)
            names.append(variable.name);
    }
    return names;
}

bool Program::holds(const OperandSource &source) const
{
    if (!isLogical())
        return false;
    Run run(*this, source);
    const bool held = run.result().isTrue();
    if (run.memory().refused())
        tellRefused();
    return held;
}

void Program::evaluate(const OperandSource &source, ExpressionValue &result) const
{
    Run run(*this, source);
    const Operand value = run.result();
    const auto text = value.toText(run.memory());
    result.text.assign(text.value_or(std::string_view()));
    result.numeric = value.toNumber().has_value();
    if (run.memory().refused())
        tellRefused();
}

void Program::tellRefused() const
{
    if (m_told.test_and_set(std::memory_order_relaxed))
        return;
    const QString text = translateCount("Ein Text in der Formel für %1 wird länger als %Ln "
                                        "Zeichen und bleibt ohne Wert",
                                        "VelkGeomCore", int(EvaluationMemory::MostCharacters));
    const QString names = variableNames().join(QLatin1String(", "));
    PMessage::LogToWindow(text.arg(m_target.isEmpty() ? names : m_target));
}

} // namespace VKTab
