#pragma once

#include "LineIdSet.h"

#include <geomcore/records/PrjMappingC.h>

#include <memory>

namespace Mapper {

/// A mapper's working mapping and the lines that it was asked to propose something for. Mapper
/// lines hold a reference to the mapping as it was at their look-up: whoever changes it while
/// somebody else holds it gets a copy of his own.
class WorkingMapping
{
public:
    WorkingMapping();

    void set(const PrjMappingC &mapping);
    [[nodiscard]] const PrjMappingC &mapping() const { return *m_mapping; }
    [[nodiscard]] std::shared_ptr<const PrjMappingC> shared() const { return m_mapping; }

    /// The line is to be worked out afresh: at the first call its entries that are not confirmed
    /// go.
    void note(int lineId);
    /// Enters a line with a target line. \a holder is a reference of its own that need not keep the
    /// former state. True if a confirmed line came, changed or went.
    bool enter(int lineId, int targetIndex, int targetLine, PRJMAPPING::CheckState state,
               const std::shared_ptr<const PrjMappingC> &holder);
    /// Enters every noted line that no target holds in the not-found target, and refreshes the
    /// state.
    void enterNotFound();

private:
    [[nodiscard]] PrjMappingC &edit(const std::shared_ptr<const PrjMappingC> &holder = {});
    /// True if a confirmed one went.
    bool takeOut(int lineId, int exceptTarget, bool alsoVerified,
                 const std::shared_ptr<const PrjMappingC> &holder);
    [[nodiscard]] std::vector<int> linesWithoutTarget() const;

    std::shared_ptr<PrjMappingC> m_mapping;
    LineIdSet m_noted;
    LineIdSet m_entered;
};

} // namespace Mapper
