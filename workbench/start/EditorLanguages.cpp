#include "EditorLanguages.h"

QStringList EditorLanguages::all()
{
    return QStringLiteral(VELK_EDITOR_LANGUAGES).split(',');
}

QString EditorLanguages::firstOn(const QLocale &desktop)
{
    if (desktop.language() == QLocale::Chinese && desktop.script() == QLocale::TraditionalHanScript)
        return QStringLiteral("zh_CHT");
    // Both ways to write Norwegian are read by whoever reads one.
    const QString language = desktop.language() == QLocale::NorwegianNynorsk
                                 ? QStringLiteral("nb")
                                 : desktop.name().section('_', 0, 0);
    return all().contains(language) ? language : QStringLiteral("en");
}

QString EditorLanguages::nameOf(const QString &language)
{
    // Without the country that Qt puts to "American English" and "European Spanish".
    if (language == "en")
        return QStringLiteral("English");
    if (language == "es")
        return QStringLiteral("español");
    if (language == "pt")
        return QStringLiteral("português");
    return localeOf(language).nativeLanguageName();
}

QLocale EditorLanguages::localeOf(const QString &language)
{
    if (language == "pt")
        return {QLocale::Portuguese, QLocale::Portugal};
    if (language == "zh_CHT")
        return {QLocale::Chinese, QLocale::TraditionalHanScript, QLocale::Taiwan};
    return QLocale(language);
}

QLocale EditorLanguages::localeOn(const QLocale &desktop, const QString &language)
{
    const QLocale locale = localeOf(language);
    const bool isOfDesktop =
        locale.language() == desktop.language() && locale.script() == desktop.script();
    return isOfDesktop ? desktop : locale;
}
