#include "mzComExceptionC.h"

mzComExceptionC::mzComExceptionC(mzComResult code, const PScriptException &script)
    : m_code(code)
    , m_script(script) // NOLINT(bugprone-throw-keyword-missing): a value, thrown by nobody
    , m_what(script.text().toUtf8())
{
}

mzComExceptionC::~mzComExceptionC() = default;

const char *mzComExceptionC::what() const noexcept
{
    return m_what.constData();
}
