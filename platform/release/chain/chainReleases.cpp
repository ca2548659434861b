#include "chainReleases.h"

#include <QHash>
#include <QMap>

#include <algorithm>

namespace VelkRelease {

namespace {

using PRJMAPPING::CheckState;

/// Where a line of one mapping goes.
struct ChainLink
{
    const PrjMappingTargetC *target = nullptr; ///< null: it is not known
    int line = -1;                             ///< -1: none
    CheckState state = PRJMAPPING::ToCheck;
    bool hasText = false;
};

ChainLink linkOf(const PrjMappingTargetC &target, const LineTable::Iterator &entry)
{
    ChainLink link{&target, target.isNotFoundTarget() ? -1 : entry.targetLine(), entry.state(),
                   entry.extended() != nullptr};
    if (entry.conflict())
        link.state = PRJMAPPING::ToCheck;
    return link;
}

/// The first real target counts; nothing is sure where several hold the line.
ChainLink linkOf(const PrjMappingC &mapping, int line)
{
    ChainLink found;
    bool several = false;
    for (int index = 0; index < mapping.countTargets(); ++index) {
        const PrjMappingTargetC &target = mapping.targetAt(index);
        const LineTable::Iterator entry = target.lines().find(line);
        if (!entry)
            continue;
        several = several || found.target;
        if (!found.target || found.line < 0)
            found = linkOf(target, entry);
    }
    if (several)
        found.state = PRJMAPPING::ToCheck;
    return found;
}

/// Makes the mapping of one project.
class ProjectChain
{
public:
    ProjectChain(const QHash<QString, PrjMappingC> &second, ChainCounts *counts)
        : m_second(second)
        , m_counts(counts)
    {
    }

    [[nodiscard]] PrjMappingC chain(const PrjMappingC &first)
    {
        m_result = PrjMappingC();
        m_result.setSourcePath(first.getSourcePath());
        m_result.setSourceVersion(first.getSourceVersion());
        m_result.setTabVersion(first.getTabVersion());
        for (int index = 0; index < first.countTargets(); ++index) {
            const PrjMappingTargetC &target = first.targetAt(index);
            addTargetsOf(target);
            for (const LineTable::Iterator &entry : target.lines())
                addLine(target, entry);
        }
        m_result.updateMappingState();
        return m_result;
    }

private:
    /// A target that no line leads to is one all the same.
    void addTargetsOf(const PrjMappingTargetC &middle)
    {
        const PrjMappingC next = m_second.value(middle.getTargetPath());
        for (int index = 0; next.isValid() && index < next.countTargets(); ++index) {
            if (!next.targetAt(index).isNotFoundTarget())
                indexOf(next.targetAt(index));
        }
    }

    int indexOf(const PrjMappingTargetC &target)
    {
        for (int index = 0; index < m_result.countTargets(); ++index) {
            const PrjMappingTargetC &known = m_result.targetAt(index);
            if (known.getTargetPath() == target.getTargetPath() &&
                known.getTargetVersion() == target.getTargetVersion())
                return index;
        }
        PrjMappingTargetC added;
        added.setValid(target.isValid());
        added.setTargetPath(target.getTargetPath());
        added.setTargetVersion(target.getTargetVersion());
        added.setTabVersion(target.getTabVersion());
        const int notFound = m_result.getNotFoundTarget(); // stays last
        return notFound < 0 ? m_result.addTarget(added) : m_result.insertTarget(notFound, added);
    }

    void addLine(const PrjMappingTargetC &middle, const LineTable::Iterator &entry)
    {
        const ChainLink first = linkOf(middle, entry);
        ChainLink link = first;
        if (first.line >= 0) {
            link = linkOf(m_second.value(middle.getTargetPath()), first.line);
            m_counts->unknown += link.target ? 0 : 1;
            link.state = std::min(first.state, link.state);
            link.hasText = link.hasText || first.hasText;
        }
        // Borne states beyond the known ones say nothing.
        if (link.state > PRJMAPPING::Verified ||
            (link.line < 0 && link.state != PRJMAPPING::Verified))
            link.state = PRJMAPPING::ToCheck;
        if (link.hasText && link.state != PRJMAPPING::ToCheck)
            link.state = PRJMAPPING::ToCheck;
        m_counts->rangeTexts += link.hasText ? 1 : 0;
        store(entry.sourceLine(), link);
    }

    void store(int line, const ChainLink &link)
    {
        const int index = link.line < 0 ? m_result.ensureNotFoundTarget() : indexOf(*link.target);
        m_result.changeTarget(index, [&](PrjMappingTargetC &target) {
            target.addLineId(line, link.line, link.state, QString());
        });
        if (link.state == PRJMAPPING::Verified)
            ++m_counts->confirmed;
        else if (link.line < 0)
            ++m_counts->open;
        else if (link.state == PRJMAPPING::Mapped)
            ++m_counts->assigned;
        else
            ++m_counts->toCheck;
    }

    const QHash<QString, PrjMappingC> &m_second; ///< by source path
    ChainCounts *const m_counts;
    PrjMappingC m_result;
};

} // namespace

ReleaseMappingC chainReleases(const ReleaseMappingC &first, const ReleaseMappingC &second,
                              ChainCounts *counts)
{
    ChainCounts own;
    QHash<QString, PrjMappingC> middle;
    for (int i = second.countMappings() - 1; i >= 0; --i) // of several the first counts
        middle.insert(second.mappingAt(i).getSourcePath(), second.mappingAt(i));
    ProjectChain chain(middle, counts ? counts : &own);
    ReleaseMappingC result;
    result.setSourceDate(first.getSourceDate());
    result.setTargetDate(second.getTargetDate());
    for (int i = 0; i < first.countMappings(); ++i)
        result.appendMapping(chain.chain(first.mappingAt(i)));
    return result;
}

} // namespace VelkRelease
