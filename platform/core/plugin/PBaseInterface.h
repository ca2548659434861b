#pragma once

#include <core/VelkCoreGlobal.h>

/// Root of the interfaces by which host and plug-ins know each other.
class VELKCORE_EXPORT PBaseInterface
{
public:
    virtual ~PBaseInterface();
};
