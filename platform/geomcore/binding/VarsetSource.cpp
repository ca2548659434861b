#include "VarsetSource.h"

namespace VKTab {

VarsetSource::VarsetSource(const Program &program, const Varset &line, const Varset &made)
    : m_program(program)
    , m_line(line)
    , m_made(made)
{
}

VarsetSource::~VarsetSource() = default;

Operand VarsetSource::operand(int slot, std::pmr::memory_resource &memory) const
{
    const Program::Variable &variable = m_program.variables()[size_t(slot)];
    const Varset &values = variable.prefixed ? m_made : m_line;
    const auto value = values.find(variable.name);
    if (value == values.end())
        return {};
    const QByteArray text = value->getValue().toString().toUtf8();
    return Operand::stored(keepText({text.constData(), size_t(text.size())}, memory));
}

} // namespace VKTab
