#pragma once

#include <core/component/mzComStringC.h>
#include <core/component/mzIDispatchC.h>

/// Method of a script's object that is called with the values of a record.
struct ScriptCallback
{
    mzIDispatchC object;
    mzComStringC method;

    [[nodiscard]] bool isValid() const { return object.isValid(); }
};
