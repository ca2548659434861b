#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QStringList>

#include <memory>
#include <vector>

class PrjMappingC;
namespace Mapper {
class TargetTable;
}

namespace VelkRelease {

/// Looks whether the tables of all targets of a mapping can be read, below the catalog root of the
/// index tree, and keeps them open, so that an assignment does not read them again.
class VELKRELEASE_EXPORT TargetGuard
{
public:
    explicit TargetGuard(const PrjMappingC &mapping);

    /// Target paths of those that cannot be read, each once, in the mapping's order.
    [[nodiscard]] const QStringList &unreadable() const { return m_unreadable; }
    /// What is wrong with these: the first error of each that has one.
    [[nodiscard]] const QStringList &errors() const { return m_errors; }

private:
    std::vector<std::shared_ptr<const Mapper::TargetTable>> m_tables;
    QStringList m_unreadable;
    QStringList m_errors;
};

} // namespace VelkRelease
