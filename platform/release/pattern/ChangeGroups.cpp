#include "ChangeGroups.h"

#include "CellParts.h"

#include <geomcore/mapper/NameRank.h>

#include <QSet>

#include <algorithm>

namespace VelkRelease {

namespace {

/// A list of so few lines needs no shortening.
constexpr int FewLines = 50;
/// So many lines with the same changes are worth a pattern of their own, in a long list.
constexpr int OwnLines = 5;
/// A change that so many lines have is nothing special in one of them.
constexpr int UsualLines = 2 * OwnLines;
/// So many projects whose names differ alike make a family.
constexpr int FamilyProjects = 2;

QString setName(const QList<ValueChange> &changes)
{
    QString name;
    for (const ValueChange &change : changes)
        name += change.lookUpName() + QChar(0x1e);
    return name;
}

ValueChange changeOf(const QString &variable, ValueChange::Kind kind)
{
    ValueChange change;
    change.variable = variable;
    change.kind = kind;
    return change;
}

/// The file's name without its ending, in small letters.
QString projectName(const QString &path)
{
    const QString file = path.mid(path.lastIndexOf(u'/') + 1);
    return file.left(file.lastIndexOf(u'.')).toLower();
}

/// How the name of the pair's target project differs; nothing if it is the same.
std::optional<ValueChange> projectChange(const OpenPair &pair, const PrjMappingC &mapping)
{
    if (pair.gone || pair.target < 0 || pair.target >= mapping.countTargets())
        return std::nullopt;
    const QString source = mapping.getSourcePath();
    const QString target = mapping.targetAt(pair.target).getTargetPath();
    if (Mapper::nameRank(source, target) != Mapper::NameRank::Other)
        return std::nullopt;
    ValueChange change = changeOf({}, ValueChange::Project);
    const std::vector<CellPart> parts = differingParts(projectName(source), projectName(target));
    if (parts.size() == 1) {
        change.before = parts.front().before;
        change.after = parts.front().after;
    }
    return change;
}

void addOnce(QList<ValueChange> &changes, const ValueChange &change)
{
    if (!changes.contains(change))
        changes.append(change);
}

} // namespace

void ChangeGroups::count(const std::vector<OpenPair> &pairs, const PrjMappingC &mapping)
{
    m_families.count(pairs);
    QSet<QString> names;
    for (const OpenPair &pair : pairs) {
        if (const auto change = projectChange(pair, mapping))
            names.insert(change->lookUpName());
    }
    for (const QString &name : std::as_const(names))
        ++m_projects[name];
}

void ChangeGroups::countTogether(const QList<ValueChange> &own, const OpenPair &pair)
{
    ++m_lines;
    ++m_sets[setName(own)];
    QList<ValueChange> all = own;
    for (const ValueChange &change : own)
        addOnce(all, m_families.plain(change, pair));
    for (const ValueChange &change : std::as_const(all))
        ++m_changes[change.lookUpName()];
}

void ChangeGroups::countShown(const QList<ValueChange> &own, const OpenPair &pair)
{
    ++m_groups[setName(groupFor(own, pair))];
}

QList<ValueChange> ChangeGroups::ownOf(const OpenPair &pair, const PrjMappingC &mapping) const
{
    QList<ValueChange> changes = m_families.changesOf(pair, mapping.getSourcePath());
    if (!changes.isEmpty() || !pair.comparable)
        return changes;
    if (const auto change = projectChange(pair, mapping)) {
        const bool isFamily = m_projects.value(change->lookUpName()) >= FamilyProjects;
        changes.append(isFamily ? *change : changeOf({}, ValueChange::Project));
    }
    return changes;
}

int ChangeGroups::leastLines() const
{
    return m_lines <= FewLines ? 1 : OwnLines;
}

int ChangeGroups::linesWith(const QList<ValueChange> &all) const
{
    return m_sets.value(setName(all));
}

int ChangeGroups::linesWith(const ValueChange &change) const
{
    return m_changes.value(change.lookUpName());
}

bool ChangeGroups::isUsual(const ValueChange &change) const
{
    return change.agreed || linesWith(change) >= UsualLines;
}

QList<ValueChange> ChangeGroups::shownFor(const QList<ValueChange> &own, const OpenPair &pair) const
{
    QList<ValueChange> group = groupFor(own, pair);
    return m_groups.value(setName(group)) <= linesWith(own) ? own : group;
}

QList<ValueChange> ChangeGroups::groupFor(const QList<ValueChange> &own, const OpenPair &pair) const
{
    const int least = leastLines();
    if (own.isEmpty() || own.front().kind == ValueChange::Project || linesWith(own) >= least ||
        least == 1)
        return own;
    QList<ValueChange> plain;
    for (const ValueChange &change : own)
        addOnce(plain, change.agreed || linesWith(change) >= least
                           ? change
                           : m_families.plain(change, pair));
    if (linesWith(plain) >= least)
        return plain;
    if (std::all_of(plain.cbegin(), plain.cend(),
                    [this](const ValueChange &change) { return isUsual(change); })) {
        const auto cause = std::max_element(plain.cbegin(), plain.cend(),
                                            [this](const ValueChange &a, const ValueChange &b) {
                                                return linesWith(a) < linesWith(b);
                                            });
        return {*cause, changeOf({}, ValueChange::Further)};
    }
    QList<ValueChange> columns;
    for (const ValueChange &change : own)
        addOnce(columns, changeOf(change.variable, ValueChange::Changed));
    return columns;
}

} // namespace VelkRelease
