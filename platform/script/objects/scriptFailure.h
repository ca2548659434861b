#pragma once

#include <core/component/mzComExceptionC.h>
#include <core/component/mzComResult.h>

/// Ends the call of a script with an error of that text, which the script may catch.
[[noreturn]] inline void scriptFailure(const QString &text)
{
    throw mzComExceptionC(mzComFailed, {text, {}, 0});
}
