#include "mzIUnknown.h"

mzIUnknown::~mzIUnknown() = default;

const mzIIDS &mzIUnknown::iid()
{
    static const mzIIDS id("mzIUnknown");
    return id;
}
