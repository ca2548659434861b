#include "mzIDispatch.h"

mzIDispatch::~mzIDispatch() = default;

const mzIIDS &mzIDispatch::iid()
{
    static const mzIIDS id("mzIDispatch");
    return id;
}
