#pragma once

#include "mzComResult.h"
#include "mzIIDS.h"

#include <core/VelkCoreGlobal.h>

#include <QtGlobal>

class mzComPtrC;

/// Base of all interfaces of the component model. Each interface has this base once, so that a
/// pointer to it stands for every interface of an object. The order of the virtual operations is
/// part of the model.
///
/// An object starts without references and goes with the last one. The count may be changed on any
/// thread; everything else is for the object's own.
class VELKCORE_EXPORT mzIUnknown
{
public:
    mzIUnknown(const mzIUnknown &) = delete;
    mzIUnknown &operator=(const mzIUnknown &) = delete;

    /// Another number than 0 and an empty pointer if the object does not have the interface.
    virtual int queryInterface(const mzIIDS &id, mzComPtrC &result) = 0;
    /// Gives the new count.
    virtual int addRef() const = 0;
    virtual int release() const = 0;

    [[nodiscard]] static const mzIIDS &iid();

protected:
    mzIUnknown() = default;
    ~mzIUnknown() = default;
};
