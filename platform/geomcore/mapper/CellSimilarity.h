#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include "TextSimilarity.h"

#include <optional>
#include <string_view>

namespace Mapper {

/// From 0 to 1 by relative distance; numbers of different sign, and 0 beside another number, have
/// nothing in common.
[[nodiscard]] VELKGEOMCORE_EXPORT double numberSimilarity(double a, double b);

/// A value of a source line, prepared to be compared with many target cells.
class VELKGEOMCORE_EXPORT ComparableCell
{
public:
    /// In plain notation; an empty text is no value.
    explicit ComparableCell(std::string_view text);

    [[nodiscard]] bool hasValue() const { return !m_text.empty(); }
    [[nodiscard]] std::string_view text() const { return m_text; }
    [[nodiscard]] const std::optional<double> &number() const { return m_number; }
    /// From 0 to 1 with a cell that has a value. \a least as in ComparableText::similarity.
    [[nodiscard]] double similarity(std::string_view cell, char decimalChar,
                                    double least = 0) const;
    /// The same if it costs little; nothing for two texts that differ.
    [[nodiscard]] std::optional<double> quickSimilarity(std::string_view cell,
                                                        char decimalChar) const;

private:
    std::string_view m_text;
    std::optional<double> m_number;
    mutable std::optional<ComparableText> m_comparable;
};

} // namespace Mapper
