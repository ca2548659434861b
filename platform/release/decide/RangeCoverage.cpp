#include "RangeCoverage.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/MidentClass.h>
#include <geomcore/value/ResolveRangeOptionsC.h>

#include <QHash>
#include <QMap>

namespace VelkRelease {

namespace {

/// How often each combination of these variables is given to a line.
struct NamedEntries
{
    QStringList names;
    QHash<QStringList, int> times;
    QHash<QStringList, QString> rows; ///< as written; those left at the end are strange
};

QList<NamedEntries> entriesOf(const PrjMappingC &mapping, int line)
{
    QMap<QStringList, NamedEntries> byNames;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (!mapping.targetAt(i).containsLine(line))
            continue;
        for (const auto &[text, targetLine] :
             mapping.targetAt(i).getMappedLine(line).getVarsetList()) {
            MidentClass values;
            if (!values.SplitVarValue(text))
                continue;
            QMap<QString, QString> sorted;
            for (int entry = 0; entry < values.CountVars(); ++entry)
                sorted.insert(values.GetVarName(entry), values.GetVarValue(entry));
            const QStringList names = sorted.keys();
            const QStringList key = sorted.values();
            NamedEntries &group = byNames[names];
            group.names = names;
            ++group.times[key];
            group.rows.insert(key, text);
        }
    }
    return byNames.values();
}

} // namespace

QStringList RangeCoverage::textsOf(int least, int most) const
{
    QStringList texts;
    for (const Value &value : values) {
        if (value.times >= least && value.times <= most)
            texts += value.text;
    }
    return texts;
}

RangeCoverage rangeCoverage(const VKTab::Content &sourceTable, const PrjMappingC &mapping, int line)
{
    RangeCoverage coverage;
    QList<NamedEntries> groups = entriesOf(mapping, line);
    for (const NamedEntries &group : std::as_const(groups)) {
        for (const QString &name : group.names) {
            if (!coverage.variables.contains(name))
                coverage.variables += name;
        }
    }
    VKTab::Line source = sourceTable.getLine(VKTab::LineId(line), true);
    if (coverage.variables.isEmpty() || !source.isValid())
        return coverage;
    const VKTab::ResolveRangeOptionsC options;
    VKTab::ValueRangeIterator combinations(sourceTable, source, options);
    combinations.setVariablesToResolve(coverage.variables);
    coverage.values.reserve(combinations.count());
    while (combinations.next()) {
        const auto varset = createVarsetFromVKTable(source, {});
        const auto valuesOf = [&](const QStringList &names) {
            QStringList values;
            for (const QString &name : names)
                values += varset.value(name).getValue().toString();
            return values;
        };
        RangeCoverage::Value value{valuesOf(coverage.variables).join(QStringLiteral("; ")), 0};
        for (NamedEntries &group : groups) {
            const QStringList key = valuesOf(group.names);
            if (const auto found = group.times.constFind(key); found != group.times.cend()) {
                value.times += *found;
                group.rows.remove(key);
            }
        }
        coverage.values += value;
    }
    for (const NamedEntries &group : std::as_const(groups))
        coverage.strange += group.rows.values();
    coverage.strange.sort();
    return coverage;
}

} // namespace VelkRelease
