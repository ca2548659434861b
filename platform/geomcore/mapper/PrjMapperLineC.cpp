#include "PrjMapperLineC.h"

PrjMapperLineC::PrjMapperLineC() = default;
PrjMapperLineC::PrjMapperLineC(const PrjMapperLineC &) = default;
PrjMapperLineC::PrjMapperLineC(PrjMapperLineC &&) noexcept = default;
PrjMapperLineC &PrjMapperLineC::operator=(const PrjMapperLineC &) = default;
PrjMapperLineC &PrjMapperLineC::operator=(PrjMapperLineC &&) noexcept = default;
PrjMapperLineC::~PrjMapperLineC() = default;

void PrjMapperLineC::setLineId(const VKTab::LineId &lineId)
{
    m_lineId = lineId;
}
