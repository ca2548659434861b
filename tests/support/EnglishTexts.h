#pragma once

#include <core/plugin/PTranslateManager.h>

#include <QCoreApplication>
#include <QLocale>

/// For one source of a test: the texts of the libraries are English, as velkmap has them.
inline void useEnglishTexts()
{
    QLocale::setDefault(QLocale::c());
    PTranslateManager::registerLibraries();
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
}
Q_COREAPP_STARTUP_FUNCTION(useEnglishTexts)
