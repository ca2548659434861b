#include "useLanguage.h"

#include "QtTexts.h"
#include <core/plugin/PTranslateManager.h>
#include <workbench/start/EditorLanguages.h>

#include <QApplication>
#include <QLocale>
#include <QWidget>

void useLanguage(const QString &language)
{
    const QLocale locale = EditorLanguages::localeOn(QLocale::system(), language);
    QLocale::setDefault(locale);
    // A window keeps the one that it was made with.
    for (QWidget *const window : QApplication::topLevelWidgets())
        window->setLocale(locale);
    QtTexts::setLanguage(language);
    PTranslateManager::instance().setLanguage(language);
}
