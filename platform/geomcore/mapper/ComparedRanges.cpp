#include "ComparedRanges.h"

#include <geomcore/value/RangeText.h>

#include <QSet>

#include <algorithm>

namespace Mapper {

using VKTab::RangeText;

namespace {

/// Ranges with more values are compared as a whole.
constexpr qint64 MaxCompared = 1000;

std::optional<RangeText> parse(std::string_view text, char decimalChar)
{
    auto range =
        RangeText::parse(QString::fromUtf8(text.data(), qsizetype(text.size())), decimalChar);
    return range && range->isEmpty() ? std::nullopt : range;
}

double commonValues(const RangeText &a, const RangeText &b)
{
    double common = 0;
    for (qint64 i = 0; i < a.count(); ++i)
        common += b.contains(a.value(i)) ? 1 : 0;
    return common;
}

} // namespace

bool rangeContains(std::string_view range, char rangeDecimal, std::string_view value,
                   char valueDecimal)
{
    const auto outer = parse(range, rangeDecimal);
    if (!outer)
        return false;
    const auto inner = parse(value, valueDecimal);
    return inner && outer->containsAll(*inner);
}

bool sameRange(std::string_view a, char aDecimal, std::string_view b, char bDecimal)
{
    if (a == b)
        return true;
    const auto first = parse(a, aDecimal);
    const auto second = parse(b, bDecimal);
    return first && second && first->containsAll(*second) && second->containsAll(*first);
}

bool rangeHasTexts(std::string_view range, char rangeDecimal, std::string_view value,
                   char valueDecimal)
{
    const auto outer = parse(range, rangeDecimal);
    const auto inner = parse(value, valueDecimal);
    if (!outer || !inner || outer->count() > MaxCompared || inner->count() > MaxCompared)
        return false;
    const QStringList texts = outer->values();
    const QSet<QString> offered(texts.begin(), texts.end());
    const QStringList wanted = inner->values();
    return std::all_of(wanted.begin(), wanted.end(),
                       [&](const QString &text) { return offered.contains(text); });
}

double rangeSimilarity(std::string_view range, char rangeDecimal, std::string_view value,
                       char valueDecimal)
{
    const auto to = parse(range, rangeDecimal);
    const auto from = parse(value, valueDecimal);
    if (!to || !from)
        return range == value ? 1 : 0;
    if (from->count() == 1 || to->count() > MaxCompared || from->count() > MaxCompared)
        return to->containsAll(*from) ? 1 : 0;
    return std::min(1.0, 2 * commonValues(*from, *to) / double(from->count() + to->count()));
}

} // namespace Mapper
