#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/PrjMappingC.h>

namespace VelkRelease {

/// A mapping whose lines are decided on, one after the other and as many as wanted. A decision
/// holds in every target that knows the line.
class VELKRELEASE_EXPORT LineEdits
{
public:
    /// Where a line stands.
    struct Standing
    {
        bool known = false;      ///< some target has an entry of it
        bool assigned = false;   ///< some entry has a target line
        bool conflicted = false; ///< some entry is in conflict
        bool verified = false;   ///< some entry is confirmed
        bool settled = false;    ///< all entries are confirmed
        bool hasText = false;    ///< some entry with a target line has a value range text
    };

    explicit LineEdits(const PrjMappingC &mapping);

    [[nodiscard]] Standing standing(int line) const;

    /// Enters the line in one target, with a target line, in place of a former entry there; it is
    /// no longer without target.
    void assign(int line, int target, int targetLine, PRJMAPPING::CheckState state);
    /// State confirmed; target lines and texts stay, a conflict is accepted.
    void confirm(int line);
    /// The line has no target line any more and is to be decided on again.
    void remove(int line);
    /// It has none, and that is confirmed.
    void expire(int line);
    /// The entries stay as they are, without their conflict.
    void acceptConflict(int line);

    /// The mapping with all decisions, its state not updated.
    [[nodiscard]] PrjMappingC mapping() const;

private:
    void moveToNotFound(int line, PRJMAPPING::CheckState state);

    PrjMappingC m_mapping;
    QList<PrjMappingTargetC> m_targets;
    int m_notFound;
};

} // namespace VelkRelease
