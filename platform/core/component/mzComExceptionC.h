#pragma once

#include "mzComResult.h"

#include <core/message/PScriptException.h>
#include <core/VelkCoreGlobal.h>

#include <QByteArray>

#include <exception>

/// Script error of the component model itself, thrown below mzIDispatch::invokeByName(), which
/// hands it to the script.
class VELKCORE_EXPORT mzComExceptionC : public std::exception
{
public:
    mzComExceptionC(mzComResult code, const PScriptException &script);
    ~mzComExceptionC() override;

    [[nodiscard]] mzComResult code() const { return m_code; }
    [[nodiscard]] const PScriptException &script() const { return m_script; }
    [[nodiscard]] const char *what() const noexcept override;

private:
    mzComResult m_code;
    PScriptException m_script;
    QByteArray m_what;
};
