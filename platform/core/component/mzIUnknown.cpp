#include "mzIUnknown.h"

const mzIIDS &mzIUnknown::iid()
{
    static const mzIIDS id("mzIUnknown");
    return id;
}
