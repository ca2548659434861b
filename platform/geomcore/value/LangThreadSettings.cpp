#include "LangThreadSettings.h"

#include <QReadWriteLock>

namespace VKTab {

namespace {

struct ThreadState
{
    bool disabled = false;
    bool hasLanguage = false;
    QString language;
};

ThreadState &threadState()
{
    thread_local ThreadState state;
    return state;
}

struct CommonLanguage
{
    QReadWriteLock lock;
    QString name = qEnvironmentVariable("TORMEVA_LANGUAGE");
};

CommonLanguage &commonLanguage()
{
    static CommonLanguage language;
    return language;
}

} // namespace

LangThreadSettings::LangThreadSettings()
    : m_formerDisabled(threadState().disabled)
    , m_formerLanguage(threadState().language)
    , m_formerHasLanguage(threadState().hasLanguage)
{
}

LangThreadSettings::~LangThreadSettings()
{
    threadState() = {m_formerDisabled, m_formerHasLanguage, m_formerLanguage};
}

void LangThreadSettings::disableTranslation(bool disable)
{
    threadState().disabled = disable;
}

void LangThreadSettings::setLanguage(const QString &language)
{
    threadState().language = language;
    threadState().hasLanguage = true;
}

bool LangThreadSettings::isTranslationDisabled()
{
    return threadState().disabled;
}

QString LangThreadSettings::language()
{
    const ThreadState &state = threadState();
    if (state.disabled)
        return {};
    if (state.hasLanguage)
        return state.language;
    CommonLanguage &common = commonLanguage();
    const QReadLocker guard(&common.lock);
    return common.name;
}

void LangThreadSettings::setCommonLanguage(const QString &language)
{
    CommonLanguage &common = commonLanguage();
    const QWriteLocker guard(&common.lock);
    common.name = language;
}

} // namespace VKTab
