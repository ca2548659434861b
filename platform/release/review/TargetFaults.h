#pragma once

#include <geomcore/binding/BoundConditions.h>
#include <geomcore/binding/BoundModifiers.h>
#include <geomcore/records/PrjMappingTargetC.h>

#include <memory>
#include <vector>

namespace VKTab {
class LineView;
class TableData;
} // namespace VKTab
namespace Mapper {
class TargetTable;
}

namespace VelkRelease {

/// What keeps the lines of a table from being found in one target, whatever the lines there say.
/// One thread.
class TargetFaults
{
public:
    /// Both tables may be null.
    TargetFaults(const PrjMappingTargetC &target,
                 const std::shared_ptr<const VKTab::TableData> &source,
                 const std::shared_ptr<const Mapper::TargetTable> &table);

    [[nodiscard]] bool isReadable() const { return m_table != nullptr; }
    /// Whether the conditions hold. Those that read ranges are taken to hold for some combination.
    [[nodiscard]] bool takes(const VKTab::LineView &line) const;
    /// Nobody knows for which lines the target is.
    [[nodiscard]] bool hasFaultyCondition() const { return m_faultyCondition; }
    /// A variable mapping has a fault, or gives no value although all that it reads has one.
    [[nodiscard]] bool formulaFails(const VKTab::LineView &line);
    /// The line cannot be told from others in both tables.
    [[nodiscard]] bool lacksColumns(const VKTab::LineView &line) const;

private:
    void bindColumns();

    std::shared_ptr<const VKTab::TableData> m_source;
    std::shared_ptr<const Mapper::TargetTable> m_table;
    VKTab::BoundConditions m_conditions;
    VKTab::BoundModifiers m_modifiers;
    VKTab::BoundModifiers::Results m_results;
    bool m_faultyCondition = false;
    bool m_faultyFormula = false;
    bool m_readsRanges = false;
    bool m_lacksKeys = false;
    std::vector<bool> m_reaches; ///< by column of the source: some variable of the target is made
                                 ///< of it
};

} // namespace VelkRelease
