#include "LineComparison.h"

#include "BoundTarget.h"
#include "ExactSearch.h"
#include "TargetTable.h"

#include <core/text/countText.h>
#include <core/text/PString.h>
#include <geomcore/plan/PairEvidence.h>

#include <algorithm>
#include <cmath>

namespace Mapper {

namespace {

/// Names and values that a sentence shows of one kind; the rest is a number.
constexpr qsizetype MaxNamedVariables = 4;
/// Characters that a sentence shows of a value.
constexpr qsizetype MaxShown = 40;
/// Numbers that differ by less of the larger one are near if nothing else is known.
constexpr double NearPart = 0.25;

QString tr(const char *text)
{
    return PString::translate(text, "VelkGeomCore");
}

QString tr(const char *text, qsizetype count)
{
    return translateCount(text, "VelkGeomCore", int(count));
}

QString cutValue(const QString &value)
{
    return value.size() > MaxShown ? value.left(MaxShown) + QChar(0x2026) : value;
}

QString change(const ComparedVariableC &variable)
{
    QString text = variable.name + u' ' + cutValue(variable.oldValue) + QChar(u' ') +
                   QChar(0x2192) + QChar(u' ') + cutValue(variable.newValue);
    if (variable.supports > 0)
        text += QStringLiteral(" (") + tr("so in %Ln weiteren Zeile(n)", variable.supports) + u')';
    return text;
}

QString missing(const ComparedVariableC &variable)
{
    return variable.oldValue.isEmpty()
               ? variable.name + QStringLiteral(" + ") + cutValue(variable.newValue)
               : variable.name + QStringLiteral(" - ") + cutValue(variable.oldValue);
}

QString joined(const QString &kind, const QStringList &parts)
{
    QString text = parts.mid(0, MaxNamedVariables).join(QStringLiteral(", "));
    if (parts.size() > MaxNamedVariables)
        text += QStringLiteral(", ") + tr("%Ln weitere", parts.size() - MaxNamedVariables);
    return kind.arg(text);
}

/// Sets what became of two values that differ.
void judgeChange(ComparedVariableC &variable, const Plan::CellEvidence &evidence)
{
    const auto likeliest = std::max_element(evidence.ways.begin(), evidence.ways.end());
    switch (Plan::Way(likeliest - evidence.ways.begin())) {
    case Plan::Way::Change:
        variable.outcome = ComparedVariableC::Replaced;
        // None of what was agreed to or only other projects show.
        variable.supports =
            evidence.supports > 0 ? std::max(1, int(std::lround(evidence.supports))) : 0;
        break;
    case Plan::Way::Near:
    case Plan::Way::Alike:
        variable.outcome = ComparedVariableC::Near;
        break;
    case Plan::Way::Same:
    case Plan::Way::Other:
        variable.outcome = ComparedVariableC::Different;
        break;
    }
}

/// What two values alone say.
bool isNear(std::string_view value, char valueDecimal, std::string_view cell, char cellDecimal)
{
    Plan::CellValues values;
    const int ofValue = values.number(value, valueDecimal);
    const int ofCell = values.number(cell, cellDecimal);
    const Plan::CellValues::Value a = values.value(ofValue);
    const Plan::CellValues::Value b = values.value(ofCell);
    if (a.isNumber && b.isNumber)
        return std::abs(a.number - b.number) <=
               NearPart * std::max(std::abs(a.number), std::abs(b.number));
    return std::any_of(a.distinct.begin(), a.distinct.end(), [&](int token) {
        return std::binary_search(b.distinct.begin(), b.distinct.end(), token);
    });
}

} // namespace

QList<ComparedVariableC> compareLines(const BoundTarget &target, const TargetValues &values,
                                      int row, const CellJudge &judge)
{
    QList<ComparedVariableC> compared;
    std::string scratch;
    const TargetTable &table = *target.table();
    const std::vector<int> &variables = values.search->variables();
    const std::vector<int> &known = target.variables();
    compared.reserve(qsizetype(variables.size()));
    for (size_t place = 0; place < variables.size(); ++place) {
        const std::string_view cell = table.text(row, variables[place], scratch);
        const std::string_view value = values.texts.values[place].text;
        ComparedVariableC variable;
        variable.name = table.variables()[size_t(variables[place])].name;
        variable.oldValue = QString::fromUtf8(value.data(), qsizetype(value.size()));
        variable.newValue = QString::fromUtf8(cell.data(), qsizetype(cell.size()));
        const auto at = std::find(known.begin(), known.end(), variables[place]);
        if (value.empty() != cell.empty())
            variable.outcome = ComparedVariableC::Missing;
        else if (value.empty() || values.search->equals(values.texts.values[place], row, place))
            variable.outcome = ComparedVariableC::Equal;
        else if (judge && at != known.end())
            judgeChange(variable, judge(size_t(at - known.begin())));
        else if (isNear(value, values.texts.values[place].decimalChar, cell,
                        table.variables()[size_t(variables[place])].decimalChar))
            variable.outcome = ComparedVariableC::Near;
        compared.append(variable);
    }
    return compared;
}

QString explanationOf(const QList<ComparedVariableC> &variables)
{
    QStringList equal;
    QStringList replaced;
    QStringList near;
    QStringList different;
    QStringList without;
    for (const ComparedVariableC &variable : variables) {
        switch (variable.outcome) {
        case ComparedVariableC::Equal:
            if (!variable.newValue.isEmpty())
                equal.append(variable.name);
            break;
        case ComparedVariableC::Replaced:
            replaced.append(change(variable));
            break;
        case ComparedVariableC::Near:
            near.append(change(variable));
            break;
        case ComparedVariableC::Different:
            different.append(change(variable));
            break;
        case ComparedVariableC::Missing:
            without.append(missing(variable));
            break;
        }
    }
    QStringList parts;
    if (!equal.isEmpty())
        parts.append(joined(tr("gleich: %1"), equal));
    if (!replaced.isEmpty())
        parts.append(joined(tr("ersetzt: %1"), replaced));
    if (!near.isEmpty())
        parts.append(joined(tr("ähnlich: %1"), near));
    if (!different.isEmpty())
        parts.append(joined(tr("verschieden: %1"), different));
    if (!without.isEmpty())
        parts.append(joined(tr("ohne Gegenstück: %1"), without));
    return parts.join(QStringLiteral("; "));
}

QString nothingFits()
{
    return tr("Keine Zeile der Ziele passt zu dieser.");
}

} // namespace Mapper
