#include "CellCondition.h"

#include "SearchText.h"
#include <geomcore/value/CanonicalNumber.h>
#include <geomcore/value/RangeCell.h>

#include <algorithm>

namespace {

std::optional<double> numberOf(QStringView text, char decimalChar)
{
    const QByteArray bytes = text.toUtf8();
    const auto number =
        VKTab::CanonicalNumber::parse({bytes.constData(), size_t(bytes.size())}, decimalChar);
    return number ? std::optional(number->toDouble()) : std::nullopt;
}

} // namespace

CellCondition::CellCondition(const CatalogSearchCondition &condition, const Column &column)
    : m_op(condition.op)
    , m_column(column)
    , m_low(number(condition.low))
    , m_high(number(condition.high))
    , m_lowText(SearchText::folded(condition.low.trimmed()))
    , m_highText(SearchText::folded(condition.high.trimmed()))
{
    const bool lowIsNumber =
        m_low || (m_op == CatalogSearchCondition::Between && m_lowText.isEmpty());
    const bool highIsNumber =
        m_op != CatalogSearchCondition::Between || m_high || m_highText.isEmpty();
    const bool isText =
        m_op == CatalogSearchCondition::Contains || m_op == CatalogSearchCondition::StartsWith;
    m_comparesNumbers = lowIsNumber && highIsNumber && !isText;
}

std::optional<double> CellCondition::number(const QString &text)
{
    return numberOf(text, ',');
}

bool CellCondition::holds(QStringView cell) const
{
    const auto range =
        m_column.isRange ? VKTab::parseRangeCell(cell, m_column.decimalChar) : std::nullopt;
    if (!range)
        return valueHolds(cell, m_column.decimalChar);
    const qint64 count = std::min<qint64>(range->count(), VKTab::RangeText::MaxValues);
    for (qint64 i = 0; i < count; ++i) {
        if (valueHolds(range->value(i), m_column.decimalChar))
            return true;
    }
    return false;
}

bool CellCondition::valueHolds(QStringView value, char decimalChar) const
{
    if (m_comparesNumbers) {
        if (const auto number = numberOf(value, decimalChar))
            return numberHolds(*number);
        return m_op == CatalogSearchCondition::NotEqual;
    }
    return textHolds(value);
}

bool CellCondition::numberHolds(double value) const
{
    const double low = m_low.value_or(0);
    switch (m_op) {
    case CatalogSearchCondition::Equal:
        return value == low;
    case CatalogSearchCondition::NotEqual:
        return value != low;
    case CatalogSearchCondition::Less:
        return value < low;
    case CatalogSearchCondition::LessEqual:
        return value <= low;
    case CatalogSearchCondition::Greater:
        return value > low;
    case CatalogSearchCondition::GreaterEqual:
        return value >= low;
    case CatalogSearchCondition::Between:
        return (!m_low || value >= *m_low) && (!m_high || value <= *m_high);
    default:
        return false;
    }
}

bool CellCondition::textHolds(QStringView value) const
{
    const QString text = SearchText::folded(value.trimmed());
    switch (m_op) {
    case CatalogSearchCondition::Equal:
        return text == m_lowText;
    case CatalogSearchCondition::NotEqual:
        return text != m_lowText;
    case CatalogSearchCondition::Contains:
        return text.contains(m_lowText);
    case CatalogSearchCondition::StartsWith:
        return text.startsWith(m_lowText);
    case CatalogSearchCondition::Less:
        return text < m_lowText;
    case CatalogSearchCondition::LessEqual:
        return text <= m_lowText;
    case CatalogSearchCondition::Greater:
        return text > m_lowText;
    case CatalogSearchCondition::GreaterEqual:
        return text >= m_lowText;
    case CatalogSearchCondition::Between:
        return (m_lowText.isEmpty() || text >= m_lowText) &&
               (m_highText.isEmpty() || text <= m_highText);
    }
    return false;
}
