#pragma once

#include "BoundTarget.h"
#include "NameRank.h"
#include "SourceTable.h"

#include <geomcore/records/PrjMappingC.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace Mapper {

/// The targets of one mapping, each bound at the first need. One thread.
class TargetSet
{
public:
    /// Gives the table of a target path, null if it cannot be read.
    using Open = std::function<std::shared_ptr<const TargetTable>(const QString &targetPath)>;

    /// The source outlives this. \a shownOnly: lines that a target project hides do not count.
    TargetSet(const PrjMappingC &mapping, const QString &sourcePath, const SourceTable &source,
              Open open, bool shownOnly);
    ~TargetSet();

    [[nodiscard]] int count() const { return int(m_targets.size()); }
    /// Null for the not-found target and for an unknown index. \a mapping is the one given at
    /// construction, but for its lines.
    [[nodiscard]] const BoundTarget *at(int index, const PrjMappingC &mapping);
    /// What the name says; a project with a confirmed line counts as one of the same name at least.
    [[nodiscard]] NameRank rank(const BoundTarget &target) const
    {
        return m_targets[size_t(target.index())].rank;
    }
    /// Targets of the same project hold the same lines, also if its file was just written, so that
    /// it was read for each of them.
    [[nodiscard]] static bool haveSameProject(const BoundTarget &a, const BoundTarget &b);
    static constexpr int Nobody = -1;
    static constexpr int Several = -2;
    /// The source line for which a row of the target's table is confirmed, Nobody, or Several.
    /// Looks through the confirmed lines of the mapping at the first call.
    [[nodiscard]] int confirmedFor(const BoundTarget &target, int row, const PrjMappingC &mapping);
    /// To be called when a confirmed line has been entered or taken out.
    void forgetConfirmed();
    struct Plain;
    /// The targets without the rules that the program has proposed and that no confirmed line
    /// stands for yet; null if there are none.
    [[nodiscard]] Plain *withoutProposals(const PrjMappingC &mapping);
    /// Ranges of the source table that conditions of any target read.
    [[nodiscard]] const QStringList &ranges() const { return m_ranges; }
    [[nodiscard]] const QString &sourcePath() const { return m_sourcePath; }
    [[nodiscard]] const SourceTable &source() const { return m_source; }

private:
    struct Slot
    {
        bool bound = false;
        std::unique_ptr<const BoundTarget> target;
        NameRank rank = NameRank::Other;
    };

    void bind(Slot &slot, int index, const PrjMappingTargetC &target);
    [[nodiscard]] std::vector<int> confirmedLines(const BoundTarget &target,
                                                  const PrjMappingC &mapping);

    const SourceTable &m_source;
    const Open m_open;
    const bool m_shownOnly;
    const QString m_sourcePath;
    QStringList m_ranges;
    std::vector<Slot> m_targets;
    /// By index of the target: source lines by row; empty if none is confirmed.
    std::map<int, std::vector<int>> m_confirmed;
    std::optional<std::unique_ptr<Plain>> m_plain; ///< none: not looked at yet
};

struct TargetSet::Plain
{
    PrjMappingC mapping;
    TargetSet targets;
};

} // namespace Mapper
