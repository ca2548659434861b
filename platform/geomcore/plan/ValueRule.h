#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <memory>
#include <string>
#include <string_view>

namespace Plan {

/// A rule of proposals: what the value of a variable means. Values of the same meaning count as the
/// same where proposals are weighed, and nowhere else: their difference is shown as before, and no
/// line is assigned without a question because of it. Implemented by extensions.
class VELKGEOMCORE_EXPORT ValueRule
{
public:
    ValueRule() = default;
    virtual ~ValueRule();
    ValueRule(const ValueRule &) = delete;
    ValueRule &operator=(const ValueRule &) = delete;

    /// Texts are UTF-8; variables of both tables bear the new table's name. Empty if the rule says
    /// nothing of the value. Any thread, several at once.
    [[nodiscard]] virtual std::string meaning(std::string_view variable,
                                              std::string_view value) const = 0;

    /// Makes a rule known until the program ends. Before anything is assigned.
    static void add(std::unique_ptr<ValueRule> rule);
    /// What the first rule says that says something; else the value itself. \a scratch keeps what
    /// is returned.
    [[nodiscard]] static std::string_view meaningOf(std::string_view variable,
                                                    std::string_view value, std::string &scratch);
};

} // namespace Plan
