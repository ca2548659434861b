#include "CellSimilarity.h"

#include "SimilarityRules.h"

#include <geomcore/value/CanonicalNumber.h>
#include <geomcore/value/CellKey.h>

#include <algorithm>
#include <cmath>

namespace Mapper {

using VKTab::CanonicalNumber;

double numberSimilarity(double a, double b)
{
    if (a == b)
        return 1;
    if (a == 0 || b == 0 || (a < 0) != (b < 0))
        return 0;
    const double distance = std::fabs(a - b) / std::max(std::fabs(a), std::fabs(b));
    return std::max(0.0, 1.0 - distance / NumberRange);
}

ComparableCell::ComparableCell(std::string_view text)
    : m_text(text)
{
    if (const std::optional<CanonicalNumber> number = CanonicalNumber::parse(text))
        m_number = number->toDouble();
}

std::optional<double> ComparableCell::quickSimilarity(std::string_view cell, char decimalChar) const
{
    if (VKTab::trimmedCell(cell) == m_text)
        return 1;
    if (m_number) {
        if (const std::optional<CanonicalNumber> other = CanonicalNumber::parse(cell, decimalChar))
            return numberSimilarity(*m_number, other->toDouble());
    }
    return std::nullopt;
}

double ComparableCell::similarity(std::string_view cell, char decimalChar, double least) const
{
    if (const std::optional<double> quick = quickSimilarity(cell, decimalChar))
        return *quick;
    if (!m_comparable)
        m_comparable.emplace(m_text);
    return m_comparable->similarity(ComparableText(VKTab::trimmedCell(cell)), least);
}

} // namespace Mapper
