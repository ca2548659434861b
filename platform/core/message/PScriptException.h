#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>

/// Error that a script ended with, as its engine reports it.
struct VELKCORE_EXPORT PScriptException
{
    QString message;
    QString file;
    int line = 0; ///< counted from 1; 0 if not known

    /// "file:line: message", without what is not known.
    [[nodiscard]] QString text() const;
};
