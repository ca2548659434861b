#pragma once

#include "Program.h"

#include <QHash>
#include <QPair>

namespace VKTab {

/// Writes the instructions of a program from the tree of a statement.
class ProgramWriter
{
public:
    explicit ProgramWriter(Program &program)
        : m_program(program)
    {
    }

    void write(const NodeBase &statement);

private:
    using Code = Program::Code;

    void writeNode(const NodeBase &node);
    void writeOperation(const NodeOperation &node);
    void writeChain(const NodeBase &node, Code jump);
    void writeCall(const NodeFunction &node);
    void writeConditional(const NodeFunction &node);
    void writeNumber(const NodeNumber &node);
    void writeText(const QString &content, Operand operand);
    void writeVariable(const NodeVariable &node);

    /// Appends an instruction that changes the height of the stack; gives its index.
    size_t append(Code code, int stackChange, int argument = 0);
    void jumpToHere(size_t instruction);

    Program &m_program;
    /// Slot of a variable, by its name and whether it has the prefix.
    QHash<QPair<QString, bool>, int> m_slots;
    int m_height = 0;
};

} // namespace VKTab
