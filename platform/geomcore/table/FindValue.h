#pragma once

#include <geomcore/value/Value.h>
#include <geomcore/value/Var.h>

namespace VKTab {

/// A value to search for: a variable of the searched table and what it shall have.
class FindValue
{
public:
    FindValue() = default;
    FindValue(const Var &var, const Value &value)
        : m_var(var)
        , m_value(value)
    {
    }

    [[nodiscard]] Var getVar() const { return m_var; }
    [[nodiscard]] Value getValue() const { return m_value; }

private:
    Var m_var;
    Value m_value;
};

} // namespace VKTab
