// A rule of proposals: material numbers and short names of the same steel mean the same.

#include <core/plugin/Extensions.h>
#include <geomcore/plan/ValueRule.h>

#include <map>

namespace {

const std::map<std::string, std::string, std::less<>> numbers = {
    {"X5CrNi18-10", "1.4301"},
    {"X5CrNiMo17-12-2", "1.4401"},
    {"C45", "1.0503"},
};

class MaterialRule : public Plan::ValueRule
{
public:
    std::string meaning(std::string_view variable, std::string_view value) const override
    {
        if (variable != "MATERIAL")
            return {};
        const auto known = numbers.find(value);
        return known == numbers.end() ? std::string() : known->second;
    }
};

} // namespace

VELK_EXTENSION
{
    Plan::ValueRule::add(std::make_unique<MaterialRule>());
}
