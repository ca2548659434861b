#include "LearnedValues.h"

#include <geomcore/plan/CellChange.h>
#include <geomcore/plan/ValueRule.h>
#include <geomcore/plan/VariableRates.h>

namespace Mapper {

namespace {

/// Like the rates that are assumed before a table shows its own. One line more did not change so.
double pairsOf(const LearnedReplacement &learned)
{
    return Plan::VariableRates::Strength * learned.supports / (double(learned.cases) + 1);
}

std::uint64_t keyOfNumbers(const LearnedReplacement &learned, int number)
{
    const double factor = learned.factor.toDouble();
    const double offset = learned.offset.toDouble();
    if (offset == 0 && factor != 1)
        return Plan::keyOfFactor(number, factor);
    return factor == 1 && offset != 0 ? Plan::keyOfOffset(number, offset) : 0;
}

std::uint64_t keyOfWhole(const LearnedReplacement &learned, int number, Plan::CellValues &values)
{
    const std::string name = learned.variable.toStdString();
    const auto numberOf = [&](const QString &value) {
        const std::string text = value.toStdString();
        std::string meaning;
        return values.number(Plan::ValueRule::meaningOf(name, text, meaning), '.');
    };
    const int before = numberOf(learned.before);
    const int after = numberOf(learned.after);
    if (before == after || before == Plan::CellValues::NoValue ||
        after == Plan::CellValues::NoValue)
        return 0;
    return Plan::changeBetween(values, number, before, after).keys[Plan::CellChange::Whole];
}

} // namespace

void LearnedValues::addTo(Plan::KnownChanges &known, const QString &variable, int number,
                          Plan::CellValues &values) const
{
    for (const LearnedReplacement &learned : m_learned) {
        if (learned.variable != variable)
            continue;
        const std::uint64_t key = learned.isNumeric() ? keyOfNumbers(learned, number)
                                                      : keyOfWhole(learned, number, values);
        if (key != 0)
            known.add(number, key, pairsOf(learned));
    }
}

std::string LearnedValues::signature() const
{
    QString text;
    for (const LearnedReplacement &learned : m_learned) {
        for (const QString &part :
             {learned.variable, learned.before, learned.after, QString::number(learned.supports),
              QString::number(learned.cases), learned.factor, learned.offset})
            text += part + u'\x1d';
    }
    return text.toStdString();
}

} // namespace Mapper
