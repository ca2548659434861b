#include "mzIComReference.h"

mzIComReference::~mzIComReference() = default;

const mzIIDS &mzIComReference::iid()
{
    static const mzIIDS id("mzIComReference");
    return id;
}
