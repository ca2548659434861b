#pragma once

#include <core/plugin/PTranslateManager.h>

#include <QCoreApplication>
#include <QLocale>

/// For one source of a test: the texts of the libraries are German, with their plural forms and
/// digits.
inline void useGermanTexts()
{
    QLocale::setDefault(QLocale(QLocale::German));
    PTranslateManager::registerLibraries();
    PTranslateManager::instance().setLanguage(QStringLiteral("de"));
}
Q_COREAPP_STARTUP_FUNCTION(useGermanTexts)
