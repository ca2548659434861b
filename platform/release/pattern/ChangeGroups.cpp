#include "ChangeGroups.h"

#include "CellParts.h"

#include <geomcore/mapper/NameRank.h>

#include <QSet>

#include <algorithm>
#include <limits>

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
    const Shown shown = groupFor(own, pair);
    if (!shown.isUsual) {
        ++m_groups[setName(shown.changes)];
        return;
    }
    ++m_usualLines;
    for (const ValueChange &change : kinds(shown.changes, pair)) {
        if (m_usual[change.lookUpName()]++ == 0)
            m_mixture.append(change);
    }
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

/// Blanks and capitals are nothing that a line has to be looked at for.
bool ChangeGroups::isUsual(const ValueChange &change) const
{
    return change.agreed || change.kind == ValueChange::Notation || linesWith(change) >= UsualLines;
}

bool ChangeGroups::areUsual(const QList<ValueChange> &changes) const
{
    return std::all_of(changes.cbegin(), changes.cend(),
                       [this](const ValueChange &change) { return isUsual(change); });
}

ChangeGroups::Shown ChangeGroups::shownFor(const QList<ValueChange> &own,
                                           const OpenPair &pair) const
{
    const Shown group = groupFor(own, pair);
    if (!group.isUsual)
        return m_groups.value(setName(group.changes)) <= linesWith(own) ? Shown{own} : group;
    const QList<ValueChange> all = kinds(group.changes, pair);
    const bool isInMixture =
        std::all_of(all.cbegin(), all.cend(), [this](const ValueChange &change) {
            return m_usual.contains(change.lookUpName());
        });
    return m_usualLines <= linesWith(own) || !isInMixture ? Shown{own} : group;
}

QList<ValueChange> ChangeGroups::mixture() const
{
    QList<ValueChange> changes = m_mixture;
    std::stable_sort(changes.begin(), changes.end(),
                     [this](const ValueChange &a, const ValueChange &b) {
                         return m_usual.value(a.lookUpName()) > m_usual.value(b.lookUpName());
                     });
    changes.append(changeOf({}, ValueChange::AnyOf));
    return changes;
}

/// Without the names of families that fewer lines have.
QList<ValueChange> ChangeGroups::named(const QList<ValueChange> &own, const OpenPair &pair,
                                       int least) const
{
    QList<ValueChange> changes;
    for (const ValueChange &change : own)
        addOnce(changes, change.agreed || linesWith(change) >= least
                             ? change
                             : m_families.plain(change, pair));
    return changes;
}

/// Without the names of all families but agreed ones.
QList<ValueChange> ChangeGroups::kinds(const QList<ValueChange> &changes,
                                       const OpenPair &pair) const
{
    return named(changes, pair, std::numeric_limits<int>::max());
}

ChangeGroups::Shown ChangeGroups::groupFor(const QList<ValueChange> &own,
                                           const OpenPair &pair) const
{
    const int least = leastLines();
    if (own.isEmpty() || own.front().kind == ValueChange::Project || linesWith(own) >= least ||
        least == 1)
        return {own};
    const QList<ValueChange> some = named(own, pair, least);
    if (linesWith(some) >= least)
        return {some};
    const QList<ValueChange> none = kinds(own, pair);
    if (linesWith(none) >= least)
        return {none};
    for (const QList<ValueChange> &changes : {some, none}) {
        if (areUsual(changes))
            return {changes, true};
    }
    QList<ValueChange> columns;
    for (const ValueChange &change : own)
        addOnce(columns, changeOf(change.variable, ValueChange::Changed));
    return {columns};
}

} // namespace VelkRelease
