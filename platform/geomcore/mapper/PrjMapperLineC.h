#pragma once

#include "PrjLineHistoryC.h"

#include <geomcore/value/LineId.h>

/// What a mapper says about one source line, or a line put together by hand to have it checked.
class VELKGEOMCORE_EXPORT PrjMapperLineC : public PrjLineHistoryC
{
public:
    PrjMapperLineC();
    PrjMapperLineC(const PrjMapperLineC &);
    PrjMapperLineC(PrjMapperLineC &&) noexcept;
    PrjMapperLineC &operator=(const PrjMapperLineC &);
    PrjMapperLineC &operator=(PrjMapperLineC &&) noexcept;
    ~PrjMapperLineC() override;

    /// The target table's id of the line, where the two numbers of the record do not suffice. It
    /// counts only if its first component is getTargetLineId().
    void setLineId(const VKTab::LineId &lineId);
    [[nodiscard]] const VKTab::LineId &getLineId() const { return m_lineId; }

private:
    VKTab::LineId m_lineId;
};
