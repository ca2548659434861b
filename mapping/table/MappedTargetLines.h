#pragma once

#include <geomcore/records/PrjMappingC.h>

#include <QList>

#include <unordered_map>

/// How many mapped lines of some targets lead to each target line. Follows a mapping by what
/// changed in it.
class MappedTargetLines
{
public:
    /// \a targets are the indexes of the targets that count. True if lines came or went that any
    /// mapped line leads to.
    bool update(const PrjMappingC &mapping, const QList<int> &targets);
    [[nodiscard]] bool contains(int targetLine) const { return m_counts.count(targetLine) > 0; }
    [[nodiscard]] int times(int targetLine) const;

private:
    void count(int targetLine, int difference);
    [[nodiscard]] bool countAll();

    PrjMappingC m_mapping;
    QList<int> m_targets;
    bool m_known = false;
    std::unordered_map<int, int> m_counts;
};
