#pragma once

#include "mzIUnknown.h"

#include <core/VelkCoreGlobal.h>

class mzComVariantC;

/// Something that holds a value of a script under a name: a variable or a property.
class VELKCORE_EXPORT mzIComReference : public mzIUnknown
{
public:
    /// Throws mzComExceptionC if there is no value to be had.
    [[nodiscard]] virtual mzComVariantC read() = 0;
    /// 0 on success.
    virtual int write(const mzComVariantC &value) = 0;

    [[nodiscard]] static const mzIIDS &iid();

protected:
    ~mzIComReference();
};
