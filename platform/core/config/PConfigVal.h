#pragma once

#include <core/text/PString.h>

/// A configuration value: a text that is also asked for as yes/no or number.
class VELKCORE_EXPORT PConfigVal
{
public:
    PConfigVal() = default;
    explicit PConfigVal(const QString &text)
        : m_text(text)
    {
    }

    [[nodiscard]] const PString &GetString() const { return m_text; }
    /// "1", "true", "yes", "on" and "ja" are yes, "0", "false", "no", "off" and "nein" are no, in
    /// any case. Other texts give the default.
    [[nodiscard]] bool GetBool(bool defaultValue = false) const;
    /// Decimal number; other texts give the default.
    [[nodiscard]] int GetInt(int defaultValue = 0) const;

    void SetValue(const QString &text) { m_text = text; }
    void SetValue(bool value) { m_text = value ? "1" : "0"; }
    void SetValue(int value) { m_text = QString::number(value); }
    void SetValue(const char *utf8) { m_text = utf8; }

private:
    PString m_text;
};
