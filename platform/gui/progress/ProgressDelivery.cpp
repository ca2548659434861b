#include "ProgressDelivery.h"

namespace {

thread_local int t_depth = 0;

} // namespace

ProgressDelivery::ProgressDelivery()
{
    ++t_depth;
}

ProgressDelivery::~ProgressDelivery()
{
    --t_depth;
}

bool ProgressDelivery::isUnderWay()
{
    return t_depth > 0;
}
