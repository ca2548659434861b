#include "PairJoin.h"

namespace Mapper {

PairJoin::PairJoin(int sourceRows, int targetRows)
    : m_hits(size_t(sourceRows), -1)
    , m_several(sourceRows, false)
    , m_claims(size_t(targetRows), 0)
    , m_claimsKnownTo(targetRows)
{
}

PairJoin::~PairJoin() = default;

} // namespace Mapper
