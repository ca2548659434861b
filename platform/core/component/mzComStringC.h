#pragma once

#include <core/text/PString.h>
#include <core/VelkCoreGlobal.h>

/// Text of the component model. Turns into a PString by itself, and so into a QString.
class VELKCORE_EXPORT mzComStringC
{
public:
    mzComStringC() = default;
    mzComStringC(const QString &text)
        : m_text(text)
    {
    }
    mzComStringC(const char *utf8)
        : m_text(utf8)
    {
    }

    operator PString() const { return m_text; }
    [[nodiscard]] const PString &text() const { return m_text; }
    [[nodiscard]] bool isEmpty() const { return m_text.isEmpty(); }

    friend bool operator==(const mzComStringC &a, const mzComStringC &b)
    {
        return a.m_text == b.m_text;
    }

private:
    PString m_text;
};
