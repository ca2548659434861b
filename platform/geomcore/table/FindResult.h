#pragma once

#include <geomcore/value/LineId.h>

namespace VKTab {

/// A hit of a search.
class FindResult
{
public:
    FindResult() = default;
    explicit FindResult(const LineId &id)
        : m_id(id)
    {
    }

    /// Not valid if the line that was compared does not have the values.
    [[nodiscard]] LineId getLineId() const { return m_id; }

private:
    LineId m_id;
};

} // namespace VKTab
