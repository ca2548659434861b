#include "ValueRule.h"

#include <vector>

namespace Plan {

namespace {

std::vector<std::unique_ptr<ValueRule>> &valueRules()
{
    static std::vector<std::unique_ptr<ValueRule>> rules;
    return rules;
}

} // namespace

ValueRule::~ValueRule() = default;

void ValueRule::add(std::unique_ptr<ValueRule> rule)
{
    valueRules().push_back(std::move(rule));
}

std::string_view ValueRule::meaningOf(std::string_view variable, std::string_view value,
                                      std::string &scratch)
{
    if (value.empty())
        return value;
    for (const std::unique_ptr<ValueRule> &rule : valueRules()) {
        scratch = rule->meaning(variable, value);
        if (!scratch.empty())
            return scratch;
    }
    return value;
}

} // namespace Plan
