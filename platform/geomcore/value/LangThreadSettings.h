#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

namespace VKTab {

/// Guard on the stack for the way that this thread reads translated values. Guards nest; the end of
/// one brings back what held before it.
class VELKGEOMCORE_EXPORT LangThreadSettings
{
public:
    LangThreadSettings();
    LangThreadSettings(const LangThreadSettings &) = delete;
    LangThreadSettings &operator=(const LangThreadSettings &) = delete;
    ~LangThreadSettings();

    /// With true, values read on this thread come as they are stored.
    void disableTranslation(bool disable);
    /// Language of this thread, instead of the common one.
    void setLanguage(const QString &language);

    [[nodiscard]] static bool isTranslationDisabled();
    /// Language into which this thread translates; empty for none.
    [[nodiscard]] static QString language();
    /// Language of all threads that set none; at first the value of TORMEVA_LANGUAGE. Any thread.
    static void setCommonLanguage(const QString &language);

private:
    bool m_formerDisabled;
    QString m_formerLanguage;
    bool m_formerHasLanguage;
};

} // namespace VKTab
