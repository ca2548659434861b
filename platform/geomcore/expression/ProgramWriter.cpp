#include "ProgramWriter.h"

#include "ExpressionFunctions.h"
#include "NodeAssign.h"

#include <algorithm>

namespace VKTab {

void ProgramWriter::write(const NodeBase &statement)
{
    m_program.m_type = statement.getType();
    if (statement.getArt() != AssignArt)
        return writeNode(statement);
    m_program.m_target = static_cast<const NodeAssign &>(statement).name();
    writeNode(*statement.children().front());
}

void ProgramWriter::writeNode(const NodeBase &node)
{
    switch (node.getArt()) {
    case NumberArt:
        return writeNumber(static_cast<const NodeNumber &>(node));
    case TextArt:
        return writeText(static_cast<const NodeText &>(node).content(), Operand::ofText({}));
    case VariableArt:
        return writeVariable(static_cast<const NodeVariable &>(node));
    case AndArt:
        return writeChain(node, Code::JumpIfFalse);
    case OrArt:
        return writeChain(node, Code::JumpIfTrue);
    case FunctionArt:
        return writeCall(static_cast<const NodeFunction &>(node));
    case SignArt:
    case NotArt:
    case ArithmeticArt:
    case ComparisonArt:
        return writeOperation(static_cast<const NodeOperation &>(node));
    default:
        return;
    }
}

void ProgramWriter::writeOperation(const NodeOperation &node)
{
    for (const auto &child : node.children())
        writeNode(*child);
    if (node.getArt() == NotArt) {
        append(Code::Not, 0);
        return;
    }
    if (node.getArt() == SignArt) {
        append(node.op() == NodeOperator::Minus ? Code::Negate : Code::Positive, 0);
        return;
    }
    // Both enumerations list the operators with two operands in the same order.
    const int offset = int(node.op()) - int(NodeOperator::Plus);
    append(Code(int(Code::Add) + offset), -1);
}

/// Stops at the first operand that decides the chain.
void ProgramWriter::writeChain(const NodeBase &node, Code jump)
{
    std::vector<size_t> jumps;
    for (size_t i = 0; i < node.children().size(); ++i) {
        if (i > 0)
            jumps.push_back(append(jump, -1));
        writeNode(*node.children()[i]);
    }
    for (const size_t instruction : jumps)
        jumpToHere(instruction);
}

void ProgramWriter::writeCall(const NodeFunction &node)
{
    if (node.function().isConditional())
        return writeConditional(node);
    for (const auto &child : node.children())
        writeNode(*child);
    const int count = int(node.children().size());
    Program::Instruction &call = m_program.m_code[append(Code::Call, 1 - count)];
    call.count = count;
    call.function = &node.function();
}

void ProgramWriter::writeConditional(const NodeFunction &node)
{
    writeNode(*node.children()[0]);
    const size_t toElse = append(Code::TakeAndJumpIfFalse, -1);
    writeNode(*node.children()[1]);
    const size_t toEnd = append(Code::Jump, -1);
    jumpToHere(toElse);
    writeNode(*node.children()[2]);
    jumpToHere(toEnd);
}

void ProgramWriter::writeNumber(const NodeNumber &node)
{
    const std::string text = node.text().toStdString();
    // Out of the range of a double: such a number is no value.
    writeText(node.text(), parseDecimal(text) ? Operand::ofNumber(*parseDecimal(text)) : Operand());
}

void ProgramWriter::writeText(const QString &content, Operand operand)
{
    m_program.m_texts.push_back(std::make_unique<const std::string>(content.toStdString()));
    operand.text = *m_program.m_texts.back();
    m_program.m_constants.push_back(operand);
    append(Code::Constant, 1, int(m_program.m_constants.size()) - 1);
}

void ProgramWriter::writeVariable(const NodeVariable &node)
{
    auto &variables = m_program.m_variables;
    int &known = m_slots[{node.name(), node.isPrefixed()}]; // counted from 1, so that 0 is none
    if (known == 0) {
        variables.push_back({node.name(), node.isPrefixed()});
        known = int(variables.size());
    }
    append(Code::Variable, 1, known - 1);
}

size_t ProgramWriter::append(Code code, int stackChange, int argument)
{
    m_program.m_code.push_back({code, 0, argument, nullptr});
    m_height += stackChange;
    m_program.m_stackSize = std::max(m_program.m_stackSize, m_height);
    return m_program.m_code.size() - 1;
}

void ProgramWriter::jumpToHere(size_t instruction)
{
    m_program.m_code[instruction].argument = int(m_program.m_code.size());
}

} // namespace VKTab
