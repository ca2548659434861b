#include "GoneFamilies.h"

#include <geomcore/records/LineTable.h>

#include <array>

namespace VelkRelease {

namespace {

/// "a/b" of "a/b/c.prj"; empty above the catalogs.
QString folderOf(const QString &path)
{
    return path.left(std::max(qsizetype(0), path.lastIndexOf(u'/')));
}

QString plainPath(const QString &path)
{
    return QString(path).replace(u'\\', u'/');
}

bool hasNoTargetLine(const PrjMappingC &mapping)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            if (entry.targetLine() != -1 || entry.conflict())
                return false;
        }
    }
    return true;
}

QString lookUpName(const LostValue &lost)
{
    return lost.variable + QChar(0x1f) + lost.value;
}

} // namespace

QString GoneGroup::text(const Words &words) const
{
    switch (kind) {
    case Folder:
        return words.folder.arg(place);
    case Project:
        return words.project.arg(place);
    case Table:
        return words.table.arg(place);
    case Value:
        return words.value.arg(variable, value);
    case Unlike:
        break;
    }
    return words.unlike.arg(place);
}

QString GoneGroup::key() const
{
    static constexpr std::array keys{"folder", "project", "table", "value", "unlike"};
    return QString::fromLatin1(keys[size_t(kind)]);
}

GoneFamilies::GoneFamilies(const ReleaseMappingC &release)
{
    QHash<QString, int> all; // projects below a folder
    QHash<QString, int> gone;
    for (int i = 0; i < release.countMappings(); ++i) {
        const PrjMappingC mapping = release.mappingAt(i);
        const QString path = plainPath(mapping.getSourcePath());
        const bool isGone = hasNoTargetLine(mapping);
        if (isGone)
            m_projects.insert(path);
        for (QString folder = folderOf(path); !folder.isEmpty(); folder = folderOf(folder)) {
            ++all[folder];
            gone[folder] += isGone ? 1 : 0;
        }
    }
    for (const QString &path : std::as_const(m_projects)) {
        const QString own = folderOf(path);
        for (QString folder = own; !folder.isEmpty(); folder = folderOf(folder)) {
            if (all[folder] > 1 && gone[folder] == all[folder])
                m_folders[own] = folder;
        }
    }
}

void GoneFamilies::count(const std::vector<OpenPair> &pairs, const PrjMappingC &mapping)
{
    for (const OpenPair &pair : pairs) {
        if (!pair.gone || wholeOf(pair, mapping))
            continue;
        for (const LostValue &lost : pair.gone->lost)
            ++m_supports[lookUpName(lost)];
    }
}

void GoneFamilies::choose(const std::vector<OpenPair> &pairs, const PrjMappingC &mapping)
{
    for (const OpenPair &pair : pairs) {
        const bool counts = pair.gone && !wholeOf(pair, mapping);
        if (const LostValue *const lost = counts ? mostLost(pair) : nullptr)
            ++m_chosen[lookUpName(*lost)];
    }
}

/// The value that most lines lost; of two alike the first variable counts. Null if it is one
/// line's.
const LostValue *GoneFamilies::mostLost(const OpenPair &pair) const
{
    const LostValue *most = nullptr;
    int lines = 1;
    for (const LostValue &lost : pair.gone->lost) {
        const int supports = m_supports.value(lookUpName(lost));
        if (supports > lines) {
            most = &lost;
            lines = supports;
        }
    }
    return most;
}

/// What holds whatever the line says.
std::optional<GoneGroup> GoneFamilies::wholeOf(const OpenPair &pair,
                                               const PrjMappingC &mapping) const
{
    const QString path = plainPath(mapping.getSourcePath());
    if (pair.gone->isTableGone)
        return GoneGroup{GoneGroup::Table, mapping.targetAt(pair.target).getTargetPath(), {}, {}};
    if (const auto whole = m_folders.constFind(folderOf(path)); whole != m_folders.cend())
        return GoneGroup{GoneGroup::Folder, *whole, {}, {}};
    if (m_projects.contains(path))
        return GoneGroup{GoneGroup::Project, path, {}, {}};
    return std::nullopt;
}

GoneGroup GoneFamilies::groupOf(const OpenPair &pair, const PrjMappingC &mapping) const
{
    if (const std::optional<GoneGroup> whole = wholeOf(pair, mapping))
        return *whole;
    if (const LostValue *const lost = mostLost(pair); lost && m_chosen.value(lookUpName(*lost)) > 1)
        return {GoneGroup::Value, {}, lost->variable, lost->value};
    return {GoneGroup::Unlike, folderOf(plainPath(mapping.getSourcePath())), {}, {}};
}

} // namespace VelkRelease
