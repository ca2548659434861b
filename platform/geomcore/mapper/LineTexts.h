#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Mapper {

/// Values of one source line as one target sees them, a text for each common variable: in plain
/// notation, empty for no value. Kept from line to line to save its room.
struct LineTexts
{
    struct Value
    {
        std::string_view text;
        /// Decimal character inside the values of a range; single numbers have a point.
        char decimalChar = '.';
    };

    std::vector<Value> values;
    std::vector<std::string> scratch; ///< One for each value.

    void resize(size_t count)
    {
        values.resize(count);
        scratch.resize(count);
    }
    [[nodiscard]] int countValues() const
    {
        int count = 0;
        for (const Value &value : values)
            count += value.text.empty() ? 0 : 1;
        return count;
    }
};

} // namespace Mapper
