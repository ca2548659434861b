#include "BoundTarget.h"

#include "ExactSearch.h"
#include "PairJoinBuilder.h"
#include "SourceTable.h"
#include "TargetTable.h"

#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/CellKey.h>

#include <algorithm>

namespace Mapper {

using Origin = VKTab::BoundModifiers::Origin;

namespace {

/// The first cells of a row; kept from row to row for its room.
struct SplitRow
{
    void split(const VKTab::TableData &table, int row, size_t width)
    {
        cells.resize(width);
        table.firstCells(row, cells, scratch);
    }

    std::vector<std::string_view> cells;
    std::string scratch;
};

/// Equal rows that are looked through for one with the same ranges.
constexpr int MaxEqual = 64;

bool hasConfirmedLine(const PrjMappingTargetC &target)
{
    if (target.lineCounts().verified() == 0)
        return false;
    for (const LineTable::Iterator &entry : target.lines()) {
        if (entry.state() == PRJMAPPING::Verified && entry.targetLine() != -1)
            return true;
    }
    return false;
}

std::optional<QString> faultyConditionOf(const PrjMappingTargetC &target)
{
    for (const VarsetConditionI *condition : target.getConditions()) {
        if (!condition->program())
            return condition->getCondition();
    }
    return std::nullopt;
}

PrjMappingTargetC withoutLines(PrjMappingTargetC target)
{
    target.clearLines(false);
    return target;
}

QString modifierText(const VarsetModifierI *modifier)
{
    if (const auto *var = dynamic_cast<const VarsetVarMappingC *>(modifier))
        return var->getSourceVarName() + u'\x1f' + var->getTargetVarName();
    const auto *value = dynamic_cast<const VarsetValueMappingC *>(modifier);
    return value ? value->getFormula() : QString();
}

} // namespace

BoundTarget::BoundTarget(int index, const PrjMappingTargetC &target,
                         const std::shared_ptr<const TargetTable> &table, const SourceTable &source,
                         const QStringList &ranges, bool shownOnly)
    : m_index(index)
    , m_target(withoutLines(target))
    , m_path(target.getTargetPath())
    , m_table(table)
    , m_source(source)
    , m_ranges(ranges)
    , m_shownOnly(shownOnly)
    , m_hasVerified(hasConfirmedLine(target))
    , m_conditions(target.getConditions(), source.data().get())
    , m_modifiers(target.getVarsetModifier(), source.data().get())
    , m_faultyCondition(faultyConditionOf(target))
{
    if (m_table && m_source.isValid())
        bindVariables();
}

BoundTarget::~BoundTarget() = default;

void BoundTarget::bindVariables()
{
    const std::vector<TargetVariable> &variables = m_table->variables();
    for (size_t i = 0; i < variables.size(); ++i) {
        const Origin origin = m_modifiers.origin(variables[i].name);
        if (origin.kind == Origin::Absent)
            continue;
        m_variables.push_back(int(i));
        m_origins.push_back(origin);
    }
    bindUses();
    bindTexts();
}

void BoundTarget::bindUses()
{
    std::vector<int> uses(size_t(m_source.data()->descriptor().fields.size()));
    for (const Origin &origin : m_origins) {
        if (origin.kind == Origin::Formula)
            return;
        if (origin.kind == Origin::Column)
            uses[size_t(origin.index)] = 1;
    }
    m_uses = std::move(uses);
    const std::vector<int> &columns = m_source.columns();
    m_comparesEverything = std::all_of(columns.begin(), columns.end(),
                                       [this](int column) { return m_uses[size_t(column)] > 0; });
}

void BoundTarget::bindTexts()
{
    const int stored = m_source.data()->columnCount();
    for (size_t i = 0; i < m_variables.size(); ++i) {
        const TargetVariable &variable = m_table->variables()[size_t(m_variables[i])];
        const Origin &origin = m_origins[i];
        if (origin.kind == Origin::NoValue || !isText(m_variables[i]))
            continue;
        if (variable.stored && origin.kind == Origin::Column && origin.index < stored)
            m_textPairs.push_back({origin.index, variable.column});
        else
            m_textsAreStored = false;
    }
    const VKTab::TableData &target = m_table->data();
    m_sameColumns = m_source.data()->header() == target.header() &&
                    std::all_of(m_textPairs.begin(), m_textPairs.end(), [](const TextPair &pair) {
                        return pair.sourceColumn == pair.targetColumn;
                    });
    const auto columns = std::minmax_element(
        m_textPairs.begin(), m_textPairs.end(),
        [](const TextPair &a, const TextPair &b) { return a.sourceColumn < b.sourceColumn; });
    if (m_textPairs.empty())
        return;
    m_firstText = columns.first->sourceColumn;
    m_lastText = columns.second->sourceColumn;
}

bool BoundTarget::isText(int variable) const
{
    const TargetVariable &target = m_table->variables()[size_t(variable)];
    const Origin origin = m_modifiers.origin(target.name);
    return target.text || (origin.kind == Origin::Column &&
                           !m_source.data()->descriptor().fields[origin.index].isNumeric());
}

bool BoundTarget::hasSameTexts(int sourceRow, int row) const
{
    if (m_textPairs.empty())
        return true;
    const VKTab::TableData &source = *m_source.data();
    const VKTab::TableData &target = m_table->data();
    if (m_sameColumns && source.hasSameBytes(sourceRow, target, row, m_firstText, m_lastText))
        return true;
    thread_local SplitRow ours;
    thread_local SplitRow theirs;
    size_t width = 0;
    size_t otherWidth = 0;
    for (const TextPair &pair : m_textPairs) {
        width = std::max(width, size_t(pair.sourceColumn) + 1);
        otherWidth = std::max(otherWidth, size_t(pair.targetColumn) + 1);
    }
    ours.split(source, sourceRow, width);
    theirs.split(target, row, otherWidth);
    return std::all_of(m_textPairs.begin(), m_textPairs.end(), [&](const TextPair &pair) {
        const auto text = ours.cells[size_t(pair.sourceColumn)];
        const auto other = theirs.cells[size_t(pair.targetColumn)];
        return VKTab::trimmedCell(text) == VKTab::trimmedCell(other) ||
               (source.isMissing(text) && target.isMissing(other));
    });
}

bool BoundTarget::hasSameTexts(const TargetValues &values, int row) const
{
    const std::vector<int> &variables = values.search->variables();
    for (size_t place = 0; place < variables.size(); ++place) {
        if (isText(variables[place]) &&
            !values.search->equalsAsText(values.texts.values[place], row, place))
            return false;
    }
    return true;
}

bool BoundTarget::countCompared(const LineInput &line, int &compared, int &values) const
{
    if (m_uses.empty() || !line.view)
        return false;
    values = m_source.countValues(*line.view, m_uses, compared);
    return true;
}

void BoundTarget::countCompared(const LineInput &line, const TargetValues &taken, int &compared,
                                int &values) const
{
    QSet<QString> reached;
    const std::vector<int> &variables = taken.search->variables();
    for (size_t place = 0; place < variables.size(); ++place) {
        if (taken.texts.values[place].text.empty())
            continue;
        for (const QString &name : sourceNames(variables[place]))
            reached.insert(name);
    }
    const Varset own = line.view ? varsetOf(*line.view) : *line.varset;
    compared = 0;
    values = 0;
    for (auto value = own.begin(); value != own.end(); ++value) {
        if (value->getValue().toString().trimmed().isEmpty())
            continue;
        ++values;
        compared += reached.contains(value.key()) ? 1 : 0;
    }
}

QStringList BoundTarget::sourceNames(int variable) const
{
    const QString &name = m_table->variables()[size_t(variable)].name;
    const Origin origin = m_modifiers.origin(name);
    if (origin.kind == Origin::Absent) // no column, but perhaps one of the values at hand
        return {name};
    if (origin.kind == Origin::NoValue)
        return {};
    const QList<VKTab::TableField> &fields = m_source.data()->descriptor().fields;
    if (origin.kind == Origin::Column)
        return {fields[origin.index].name};
    QStringList names;
    for (int column : m_modifiers.formulaColumns(origin.index))
        names.append(fields[column].name);
    return names;
}

QSet<QString> BoundTarget::comparedSourceNames() const
{
    QSet<QString> names;
    for (int variable : m_variables) {
        for (const QString &name : sourceNames(variable))
            names.insert(name);
    }
    return names;
}

bool BoundTarget::conditionsHold(const LineInput &line) const
{
    return line.view ? m_conditions.holds(*line.view) : m_target.conditionsHold(*line.varset);
}

QStringList BoundTarget::failingConditions(const LineInput &line) const
{
    QStringList texts;
    for (const VarsetConditionI *condition : m_target.getConditions()) {
        if (line.view ? condition->holds(*line.view) : condition->holds(*line.varset))
            continue;
        texts.append(condition->getCondition());
    }
    return texts;
}

BoundTarget::Varset BoundTarget::updateVarset(const LineInput &line) const
{
    return line.view ? m_modifiers.varset(*line.view) : m_target.updateVarset(*line.varset);
}

void BoundTarget::takeValues(const LineInput &line, TargetValues &values) const
{
    if (!line.view) {
        takeValues(updateVarset(line), values);
        return;
    }
    setSearch(m_variables, values);
    m_modifiers.evaluate(*line.view, values.results);
    for (size_t i = 0; i < m_origins.size(); ++i) {
        LineTexts::Value &value = values.texts.values[i];
        value.text =
            m_modifiers.text(m_origins[i], *line.view, values.results, values.texts.scratch[i]);
        const bool column = m_origins[i].kind == Origin::Column;
        value.decimalChar = column ? m_source.decimalChar(m_origins[i].index) : '.';
    }
}

void BoundTarget::takeValues(const Varset &targetVarset, TargetValues &values) const
{
    std::vector<int> variables;
    const std::vector<TargetVariable> &all = m_table->variables();
    for (size_t i = 0; i < all.size(); ++i) {
        if (targetVarset.contains(all[i].name))
            variables.push_back(int(i));
    }
    setSearch(variables, values);
    for (size_t i = 0; i < variables.size(); ++i) {
        const QString &name = all[size_t(variables[i])].name;
        LineTexts::Value &value = values.texts.values[i];
        values.texts.scratch[i] =
            targetVarset.value(name).getValue().toString().trimmed().toStdString();
        value.text = values.texts.scratch[i];
        const Origin origin = m_modifiers.origin(name);
        const bool column = origin.kind == Origin::Column;
        value.decimalChar = column ? m_source.decimalChar(origin.index) : '.';
    }
}

void BoundTarget::setSearch(const std::vector<int> &variables, TargetValues &values) const
{
    if (!m_search || m_search->variables() != variables)
        m_search = m_table->exactSearch(variables);
    values.search = m_search;
    values.texts.resize(variables.size());
}

std::vector<int> BoundTarget::equalRows(const TargetValues &values, int limit) const
{
    std::vector<int> rows;
    values.search->forEach(values.texts, [&](int row) {
        if (!m_shownOnly || m_table->isShown(row))
            rows.push_back(row);
        return int(rows.size()) < limit;
    });
    return rows;
}

BoundTarget::Hit BoundTarget::findEqual(const TargetValues &values) const
{
    if (values.search->onlyIndex()) {
        const std::vector<int> rows = equalRows(values, 2);
        return rows.empty() ? Hit() : Hit{rows.front(), rows.size() > 1};
    }
    const std::vector<int> rows = equalRows(values, MaxEqual);
    for (int row : rows) {
        if (values.search->hasSameRanges(values.texts, row))
            return {row, rows.size() > 1};
    }
    return rows.empty() ? Hit() : Hit{rows.front(), rows.size() > 1};
}

const PairJoin *BoundTarget::join() const
{
    if (!m_join && m_table && m_source.isValid()) {
        const auto build = [this] {
            return PairJoinBuilder(m_source, *this, m_ranges).build();
        };
        // What was changed in the source table is not in the signature.
        m_join = m_source.content().isPlain()
                     ? m_table->joins().get(m_source.data(), signature(), build)
                     : build();
        if (!m_join) // cancelled
            m_join =
                std::make_shared<PairJoin>(m_source.data()->rowCount(), m_table->data().rowCount());
    }
    return m_join.get();
}

std::string BoundTarget::signature() const
{
    QStringList parts{m_shownOnly ? QStringLiteral("shown") : QStringLiteral("all"),
                      m_ranges.join(u'\x1f')};
    for (const VarsetConditionI *condition : m_target.getConditions())
        parts.append(condition->getCondition());
    parts.append(QStringLiteral("\x1d"));
    for (const VarsetModifierI *modifier : m_target.getVarsetModifier())
        parts.append(modifierText(modifier));
    return parts.join(u'\x1e').toStdString();
}

const IdentityKey &BoundTarget::identity() const
{
    if (!m_identity)
        m_identity = std::make_unique<IdentityKey>(m_source, *this);
    return *m_identity;
}

std::vector<int> BoundTarget::plainColumns() const
{
    if (m_shownOnly && !m_table->isEverythingShown())
        return {};
    if (!m_table->exactSearch(m_variables)->onlyIndex())
        return {};
    std::vector<int> columns;
    const int stored = m_source.data()->columnCount();
    for (const Origin &origin : m_origins) {
        if (origin.kind != Origin::Column || origin.index >= stored)
            return {};
        columns.push_back(origin.index);
    }
    return columns;
}

} // namespace Mapper
