#include "ConflictSides.h"

#include <core/text/PPathName.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/ColumnMapping.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/value/Var.h>
#include <release/merge/ClashGroups.h>

#include <algorithm>

using VelkRelease::LineEntry;
using VelkRelease::LineStanding;
using VelkRelease::LineWay;

namespace {

/// The entry that says where the line goes; several targets have it only by its value ranges.
const LineEntry *mainOf(const LineStanding &standing)
{
    const auto found = std::ranges::find_if(
        standing, [](const LineEntry &entry) { return !entry.target.isEmpty(); });
    if (found != standing.end())
        return &*found;
    return standing.isEmpty() ? nullptr : &standing.first();
}

QString rangesOf(const LineStanding &standing)
{
    QStringList texts;
    for (const LineEntry &entry : standing) {
        if (const QString text = entry.line.getExtended(); !text.isEmpty())
            texts += text;
    }
    return texts.join(u'\n').replace(u'\n', QStringLiteral("; "));
}

} // namespace

QString ConflictSides::stateText(const LineStanding &standing)
{
    switch (LineWay::of(standing).kind) {
    case LineWay::Assigned:
        return tr("automatisch zugeordnet");
    case LineWay::ToCheck:
        return tr("zu prüfen");
    case LineWay::Confirmed:
        return tr("bestätigt");
    case LineWay::Removed:
        return tr("ohne Ziel, offen");
    case LineWay::Expired:
        return tr("als ausgelaufen bestätigt");
    case LineWay::Unknown:
        break;
    }
    return tr("nicht bekannt");
}

QString ConflictSides::text(const LineStanding &standing)
{
    const LineEntry *const entry = mainOf(standing);
    if (!entry || entry->line.getTargetLineId() == -1)
        return stateText(standing);
    return tr("%1, Zeile %2, %3")
        .arg(entry->target, QString::number(entry->line.getTargetLineId()), stateText(standing));
}

VKTab::ContentRef ConflictSides::table(const QString &file)
{
    if (const VKTab::ContentRef *const known = m_tables.object(file))
        return *known;
    VKTab::ContentRef read{VKTab::Content()};
    (void)VKTab::readProjectTable(file, read, {.tells = false});
    m_tables.insert(file, new VKTab::ContentRef(read));
    return read;
}

ConflictSides::Values ConflictSides::valuesOf(const QString &root, const QString &path, int line)
{
    Values values;
    if (root.isEmpty() || path.isEmpty() || line < 0)
        return values;
    const VKTab::ContentRef content = table((PPathName(root) + PPathName(path)).native());
    const VKTab::LineId id(line);
    if (!content.isValid() || !content.getLineInfo(id).isValid())
        return values;
    values.designation =
        content.getLine(id, false).getValue(VKTab::LineI::NormDesignation).toString();
    const auto varset = createVarsetFromVKTable(content, id, {});
    for (const VKTab::Var &variable : content.getVarList()) {
        const QString name = variable.getName();
        if (const auto found = varset.constFind(name); found != varset.cend()) {
            values.names += name;
            values.texts.insert(name, found->getValue().toString());
        }
    }
    return values;
}

ConflictSides::Values ConflictSides::targetValues(const LineStanding &standing, const QString &root)
{
    const LineEntry *const entry = mainOf(standing);
    return entry ? valuesOf(root, entry->target, entry->line.getTargetLineId()) : Values();
}

QList<ConflictSides::Row> ConflictSides::rowsOf(const ConflictEntry &entry,
                                                const CatalogRoots &roots)
{
    const std::array<const LineStanding *, 3> standings{&entry.clash.base, &entry.clash.ours,
                                                        &entry.clash.theirs};
    std::array<Values, SideCount> values;
    values[Source] = valuesOf(roots.source, entry.line.project.path, entry.line.line);
    Row state{tr("Zustand"), {}};
    Row project{tr("Zielprojekt"), {}};
    Row line{tr("Zielzeile"), {}};
    Row ranges{tr("Wertebereiche"), {}};
    line.texts[Source] = values[Source].designation;
    for (int side = Base; side < SideCount; ++side) {
        const LineStanding &standing = *standings[size_t(side - Base)];
        const auto at = size_t(side);
        if (!entry.isKnown && side != Theirs)
            continue;
        values[at] = targetValues(standing, roots.target);
        state.texts[at] = stateText(standing);
        ranges.texts[at] = rangesOf(standing);
        const LineEntry *const target = mainOf(standing);
        if (!target || target->line.getTargetLineId() == -1)
            continue;
        project.texts[at] = target->target;
        line.texts[at] = QString::number(target->line.getTargetLineId());
        if (!values[at].designation.isEmpty())
            line.texts[at] += QStringLiteral("  ") + values[at].designation;
    }
    QList<Row> rows{state, project, line};
    if (std::ranges::any_of(ranges.texts, [](const QString &text) { return !text.isEmpty(); }))
        rows += ranges;
    QStringList names;
    for (const Values &side : {values[Theirs], values[Ours], values[Base], values[Source]}) {
        for (const QString &name : side.names) {
            if (!names.contains(name))
                names += name;
        }
    }
    for (const QString &name : std::as_const(names)) {
        Row row{name, {}};
        for (size_t side = 0; side < SideCount; ++side)
            row.texts[side] = values[side].texts.value(name);
        rows += row;
    }
    if (entry.isKnown)
        std::stable_partition(rows.begin(), rows.end(),
                              [](const Row &row) { return row.differs(); });
    return rows;
}
