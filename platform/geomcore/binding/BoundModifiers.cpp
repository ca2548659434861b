#include "BoundModifiers.h"

#include "VarsetModifierI.h"

#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <QSet>

#include <set>

namespace VKTab {

namespace {

QString wide(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

} // namespace

MapVarValueC namedValue(const QString &name, const ExpressionValue &value)
{
    MapVarValueC result;
    result.setName(name);
    if (!value.text.empty())
        result.setValue(Value(wide(value.text)));
    result.setNumeric(value.numeric);
    return result;
}

BoundModifiers::BoundModifiers(const QList<const VarsetModifierI *> &modifiers,
                               const TableData *table)
{
    const int fields = table ? int(table->descriptor().fields.size()) : 0;
    QSet<QString> known;
    known.reserve(fields);
    for (int column = 0; column < fields; ++column) {
        const TableField &field = table->descriptor().fields[column];
        // Of several columns of one name the first is the variable.
        if (field.name.isEmpty() || known.contains(field.name))
            continue;
        known.insert(field.name);
        if (field.kind > FieldKind::Computed)
            continue;
        m_variables.append({field.name, column});
        m_columns.insert(field.name, column);
    }
    for (const VarsetModifierI *modifier : modifiers)
        modifier->bind(*this);
}

BoundModifiers::~BoundModifiers() = default;

BoundModifiers::Origin BoundModifiers::origin(const QString &name) const
{
    const auto touched = m_touched.find(name);
    return touched != m_touched.end() ? *touched : columnOrigin(name);
}

QStringList BoundModifiers::names() const
{
    QStringList result;
    for (const TableVariable &variable : m_variables)
        result.append(variable.name);
    for (const QString &name : m_touchedNames) {
        if (columnOrigin(name).kind == Origin::Absent)
            result.append(name);
    }
    result.removeIf([this](const QString &name) { return origin(name).kind == Origin::Absent; });
    return result;
}

void BoundModifiers::evaluate(const LineView &line, Results &results) const
{
    results.resize(m_formulas.size());
    for (size_t i = 0; i < m_formulas.size(); ++i)
        m_formulas[i].evaluate(line, results, results[i]);
}

std::string_view BoundModifiers::text(const Origin &origin, const LineView &line,
                                      const Results &results, std::string &scratch) const
{
    if (origin.kind == Origin::Column)
        return line.text(origin.index, scratch);
    if (origin.kind == Origin::Formula)
        return results[size_t(origin.index)].text;
    return {};
}

QHash<QString, MapVarValueC> BoundModifiers::varset(const LineView &line) const
{
    Results results;
    evaluate(line, results);
    QHash<QString, MapVarValueC> result;
    for (const QString &name : names())
        result.insert(name, valueOf(name, line, results));
    return result;
}

MapVarValueC BoundModifiers::valueOf(const QString &name, const LineView &line,
                                     const Results &results) const
{
    const Origin from = origin(name);
    if (from.kind == Origin::Formula)
        return namedValue(name, results[size_t(from.index)]);
    MapVarValueC value;
    value.setName(name);
    if (from.kind != Origin::Column)
        return value;
    value.setValue(line.value(from.index));
    value.setNumeric(line.table()->descriptor().fields[from.index].isNumeric());
    return value;
}

void BoundModifiers::remove(const QString &target)
{
    setOrigin(target, {Origin::Absent, -1});
}

void BoundModifiers::bindColumn(const QString &source, const QString &target)
{
    const Origin from = columnOrigin(source);
    setOrigin(target, from.kind == Origin::Absent ? Origin{Origin::NoValue, -1} : from);
}

void BoundModifiers::bindFormula(std::shared_ptr<const Program> formula)
{
    std::vector<BoundExpression::Slot> slotList;
    std::set<int> columns;
    for (const Program::Variable &variable : formula->variables()) {
        const Origin from = variable.prefixed ? origin(variable.name) : columnOrigin(variable.name);
        slotList.push_back({from.kind == Origin::Column ? from.index : -1,
                            from.kind == Origin::Formula ? from.index : -1});
        if (from.kind == Origin::Column)
            columns.insert(from.index);
        else if (from.kind == Origin::Formula)
            columns.insert(formulaColumns(from.index).begin(), formulaColumns(from.index).end());
    }
    m_formulaColumns.emplace_back(columns.begin(), columns.end());
    const QString target = formula->target();
    m_formulas.emplace_back(std::move(formula), std::move(slotList));
    setOrigin(target, {Origin::Formula, formulaCount() - 1});
}

BoundModifiers::Origin BoundModifiers::columnOrigin(const QString &name) const
{
    const auto column = m_columns.constFind(name);
    return column == m_columns.cend() ? Origin() : Origin{Origin::Column, *column};
}

void BoundModifiers::setOrigin(const QString &target, const Origin &origin)
{
    if (!m_touched.contains(target))
        m_touchedNames.append(target);
    m_touched.insert(target, origin);
}

} // namespace VKTab
