#include "QtTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace {

/// What Qt's catalogs of the language are called, the best one first.
QStringList namesOf(const QString &language)
{
    if (language == "pt")
        return {"pt_PT", "pt_BR"};
    if (language == "zh")
        return {"zh_CN"};
    if (language == "zh_CHT")
        return {"zh_TW"};
    return {language};
}

} // namespace

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
    const QStringList names = namesOf(language);
    if (!std::any_of(names.cbegin(), names.cend(), [&](const QString &name) {
            return translator->load(directory + QStringLiteral("/qtbase_%1.qm").arg(name));
        }))
        return false;
    QCoreApplication::installTranslator(translator.get());
    current = std::move(translator);
    return true;
}
