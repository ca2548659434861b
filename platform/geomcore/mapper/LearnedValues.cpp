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

} // namespace

void LearnedValues::addTo(Plan::KnownChanges &known, const QString &variable, int number,
                          Plan::CellValues &values) const
{
    const std::string name = variable.toStdString();
    const auto numberOf = [&](const QString &value) {
        const std::string text = value.toStdString();
        std::string meaning;
        return values.number(Plan::ValueRule::meaningOf(name, text, meaning), '.');
    };
    for (const LearnedReplacement &learned : m_learned) {
        if (learned.variable != variable)
            continue;
        const int before = numberOf(learned.before);
        const int after = numberOf(learned.after);
        if (before == after || before == Plan::CellValues::NoValue ||
            after == Plan::CellValues::NoValue)
            continue;
        const Plan::CellChange change = Plan::changeBetween(values, number, before, after);
        known.add(number, change.keys[Plan::CellChange::Whole], pairsOf(learned));
    }
}

std::string LearnedValues::signature() const
{
    QString text;
    for (const LearnedReplacement &learned : m_learned) {
        for (const QString &part :
             {learned.variable, learned.before, learned.after, QString::number(learned.supports),
              QString::number(learned.cases)})
            text += part + u'\x1d';
    }
    return text.toStdString();
}

} // namespace Mapper
