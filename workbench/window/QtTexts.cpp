#include "QtTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

bool QtTexts::setLanguage(const QString &language)
{
    return setLanguage(language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

bool QtTexts::setLanguage(const QString &language, const QString &directory)
{
    // A translator takes itself out of the application when it goes.
    static std::unique_ptr<QTranslator> current;
    current.reset();
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(directory + QStringLiteral("/qtbase_%1.qm").arg(language)))
        return false;
    QCoreApplication::installTranslator(translator.get());
    current = std::move(translator);
    return true;
}
