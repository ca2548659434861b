#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/expression/Program.h>

namespace VKTab {

/// Values of a program's variables from varsets: plain names from the line's values, names with
/// "SOURCE@" from those that are being made for the target table. Keeps references to all three.
class VELKGEOMCORE_EXPORT VarsetSource : public OperandSource
{
public:
    using Varset = QHash<QString, MapVarValueC>;

    VarsetSource(const Program &program, const Varset &line, const Varset &made);
    ~VarsetSource() override;

    [[nodiscard]] Operand operand(int slot, std::pmr::memory_resource &memory) const override;

private:
    const Program &m_program;
    const Varset &m_line;
    const Varset &m_made;
};

} // namespace VKTab
