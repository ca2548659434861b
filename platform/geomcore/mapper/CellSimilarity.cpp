#include "CellSimilarity.h"

#include "SimilarityRules.h"

#include <geomcore/table/CanonicalNumber.h>
#include <geomcore/table/CellKey.h>
#include <geomcore/table/RangeText.h>

#include <algorithm>
#include <cmath>

namespace Mapper {

using VKTab::CanonicalNumber;
using VKTab::RangeText;

namespace {

/// Ranges with more values are compared as a whole.
constexpr qint64 MaxRangeValues = 1000;

QString toText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

qint64 commonValues(const RangeText &a, const RangeText &b)
{
    qint64 common = 0;
    for (qint64 i = 0; i < a.count(); ++i)
        common += b.contains(a.value(i)) ? 1 : 0;
    return common;
}

} // namespace

double numberSimilarity(double a, double b)
{
    if (a == b)
        return 1;
    if (a == 0 || b == 0 || (a < 0) != (b < 0))
        return 0;
    const double distance = std::fabs(a - b) / std::max(std::fabs(a), std::fabs(b));
    return std::max(0.0, 1.0 - distance / NumberRange);
}

double rangeSimilarity(std::string_view source, std::string_view targetRange, char decimalChar)
{
    const std::optional<RangeText> from = RangeText::parse(toText(source));
    const std::optional<RangeText> to = RangeText::parse(toText(targetRange), decimalChar);
    if (!from || !to || from->isEmpty() || to->isEmpty())
        return source == targetRange ? 1 : 0;
    if (from->count() == 1)
        return to->contains(from->value(0)) ? 1 : 0;
    if (from->count() > MaxRangeValues || to->count() > MaxRangeValues)
        return from->canonicalText() == to->canonicalText() ? 1 : 0;
    return std::min(1.0,
                    2.0 * double(commonValues(*from, *to)) / double(from->count() + to->count()));
}

ComparableCell::ComparableCell(std::string_view text)
    : m_text(text)
{
    if (const std::optional<CanonicalNumber> number = CanonicalNumber::parse(text))
        m_number = number->toDouble();
}

double ComparableCell::similarity(std::string_view cell, char decimalChar) const
{
    const std::string_view trimmed = VKTab::trimmedCell(cell);
    if (trimmed == m_text)
        return 1;
    if (m_number) {
        if (const std::optional<CanonicalNumber> other = CanonicalNumber::parse(cell, decimalChar))
            return numberSimilarity(*m_number, other->toDouble());
    }
    if (!m_comparable)
        m_comparable.emplace(m_text);
    return m_comparable->similarity(ComparableText(trimmed));
}

} // namespace Mapper
