#include "LostValues.h"

#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/mapper/TargetTable.h>
#include <geomcore/mapper/TargetTables.h>
#include <geomcore/records/LineTable.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/CanonicalNumber.h>

#include <algorithm>

namespace VelkRelease {

using Origin = VKTab::BoundModifiers::Origin;

namespace {

QByteArray keyOf(std::string_view text, bool isText, char decimalChar)
{
    if (!isText && VKTab::CanonicalNumber::mayBegin(text, decimalChar)) {
        if (const auto number = VKTab::CanonicalNumber::parse(text, decimalChar))
            return QByteArray::fromStdString(number->toText());
    }
    return {text.data(), qsizetype(text.size())};
}

} // namespace

LostValues::LostValues(const VKTab::ContentRef &table, const PrjMappingC &mapping)
    : m_table(table)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (!mapping.targetAt(i).getTargetPath().isEmpty())
            addTarget(mapping.targetAt(i));
    }
    addAssigned(mapping);
}

void LostValues::addTarget(const PrjMappingTargetC &target)
{
    const PPathName file =
        IndexTreeC::instance()->compatiblePathToResolvedPath(PPathName(target.getTargetPath()));
    const auto table = Mapper::TargetTables::instance().open(file.native());
    const auto source = m_table.getTableData();
    if (!table || !source)
        return;
    Target bound{{target.getVarsetModifier(), source.get()}, {}};
    for (int index = 0; index < int(table->variables().size()); ++index) {
        const Mapper::TargetVariable &variable = table->variables()[size_t(index)];
        const Origin origin = bound.modifiers.origin(variable.name);
        const bool isRange =
            variable.range || (origin.kind == Origin::Column &&
                               source->descriptor().fields.value(origin.index).isRange());
        if (isRange || (origin.kind != Origin::Column && origin.kind != Origin::Formula))
            continue;
        Variable lost{variable.name, variable.text, variable.decimalChar, origin, {}};
        for (int row = 0; row < table->data().rowCount(); ++row)
            lost.known.insert(
                keyOf(table->text(row, index, m_scratch), lost.isText, lost.decimalChar));
        bound.variables.push_back(std::move(lost));
    }
    m_targets.push_back(std::move(bound));
}

void LostValues::addAssigned(const PrjMappingC &mapping)
{
    std::vector<int> lines;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            if (entry.targetLine() != -1)
                lines.push_back(entry.sourceLine());
        }
    }
    for (const int line : lines) {
        const VKTab::LineView view(m_table, VKTab::LineId(line));
        if (!view.isValid())
            continue;
        for (Target &target : m_targets) {
            target.modifiers.evaluate(view, m_results);
            for (Variable &variable : target.variables)
                variable.known.insert(
                    keyOf(target.modifiers.text(variable.origin, view, m_results, m_scratch),
                          variable.isText, variable.decimalChar));
        }
    }
}

/// By any target.
bool LostValues::isKnown(const Variable &variable, const QByteArray &key) const
{
    return std::any_of(m_targets.begin(), m_targets.end(), [&](const Target &target) {
        return std::any_of(target.variables.begin(), target.variables.end(),
                           [&](const Variable &other) {
                               return other.name == variable.name && other.known.contains(key);
                           });
    });
}

std::vector<LostValue> LostValues::of(int line)
{
    std::vector<LostValue> lost;
    const VKTab::LineView view(m_table, VKTab::LineId(line));
    if (!view.isValid())
        return lost;
    for (const Target &target : m_targets) {
        target.modifiers.evaluate(view, m_results);
        for (const Variable &variable : target.variables) {
            const std::string_view text =
                target.modifiers.text(variable.origin, view, m_results, m_scratch);
            const bool again = std::ranges::any_of(
                lost, [&](const LostValue &other) { return other.variable == variable.name; });
            if (!text.empty() && !again &&
                !isKnown(variable, keyOf(text, variable.isText, variable.decimalChar)))
                lost.push_back(
                    {variable.name, QString::fromUtf8(text.data(), qsizetype(text.size()))});
        }
    }
    return lost;
}

} // namespace VelkRelease
