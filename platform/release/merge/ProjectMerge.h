#pragma once

#include "matchThree.h"
#include "mergeOrder.h"
#include "MergeTypes.h"

#include <array>
#include <optional>
#include <vector>

namespace VelkRelease {

/// Merges what two sides made of one project's mapping. Base or ours may be not valid; theirs is
/// there.
class ProjectMerge
{
public:
    /// All of them live longer than this.
    ProjectMerge(const PrjMappingC &base, const PrjMappingC &ours, const PrjMappingC &theirs,
                 const MergeOptions &options);

    /// The merged mapping. Clashes, settled lines and changes are added to \a result, the changes
    /// under a release's date.
    [[nodiscard]] PrjMappingC run(const QString &sourceDate, MergeResult &result);

private:
    enum Side : quint8 { Base, Ours, Theirs };
    struct LineChange
    {
        int line;
        int slot; ///< of m_slots
        bool byOurs;
        bool stays; ///< the side has an entry
        PrjMappingTargetLineC after;
    };
    /// The changes of one line.
    struct LineGroup
    {
        const LineChange *begin;
        const LineChange *end;
        bool byOurs = false;
        bool byTheirs = false;
    };

    [[nodiscard]] const PrjMappingC &mapping(Side side) const { return *m_sides[side]; }
    [[nodiscard]] static int place(const ThreePlaces &slot, Side side);
    /// Null if the side does not have the target.
    [[nodiscard]] const PrjMappingTargetC *target(int slot, Side side) const;
    [[nodiscard]] const LineTable &lines(int slot, Side side) const;
    [[nodiscard]] LineStanding standing(int line, Side side) const;
    [[nodiscard]] QString pathOf(int slot) const;

    void mergeVersions();
    void mergeLines();
    void collectChanges(Side side, std::vector<LineChange> &changes) const;
    void mergeLine(const LineGroup &group);
    void takeOurs(const LineGroup &group);
    [[nodiscard]] bool settle(const LineGroup &group);
    [[nodiscard]] bool settleEntries(int line, bool &sameValues);
    void clashOf(const LineGroup &group);
    void mergeHead(int slot);
    void mergeRules(int slot, const PrjMappingTargetC *former, const PrjMappingTargetC &ours,
                    const PrjMappingTargetC &theirs);
    [[nodiscard]] bool isDropped(int slot) const;
    [[nodiscard]] bool movedTargets(const OrderInput &input) const;
    void tellKept(int slot);
    [[nodiscard]] PrjMappingC arranged();
    void markClashes(PrjMappingC &mapping) const;

    /// A change of a line by one side, as the change maps have them.
    [[nodiscard]] MappingChange lineChange(int line, Side side, int type) const;
    [[nodiscard]] MappingChange headChange(int slot, Side side, int type) const;
    void tellLocal(MappingChange change);
    void tellOnline(MappingChange change);
    void tell(MappingChangeMap &map, std::optional<MappingChangeMap::const_iterator> &last,
              MappingChange &change) const;
    void addClash(MergeClash::Kind kind, const QString &target = {}, bool removedByOurs = false);

    std::array<const PrjMappingC *, 3> m_sides;
    const MergeOptions &m_options;
    QPair<QString, QString> m_key;
    MergeResult *m_result = nullptr;
    /// The changes of this project that were told last; the next ones come before them.
    std::optional<MappingChangeMap::const_iterator> m_lastLocal;
    std::optional<MappingChangeMap::const_iterator> m_lastOnline;

    PrjMappingC m_merged; ///< without its targets until they are arranged
    std::vector<ThreePlaces> m_slots;
    std::vector<PrjMappingTargetC> m_targets; ///< merged, by slot
    std::vector<LineTable> m_lines;           ///< the same
    std::vector<int> m_clashing;              ///< lines, ascending
};

} // namespace VelkRelease
