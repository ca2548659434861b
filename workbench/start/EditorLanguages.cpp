#include "EditorLanguages.h"

QStringList EditorLanguages::all()
{
    return QStringLiteral(VELK_EDITOR_LANGUAGES).split(',');
}

QString EditorLanguages::firstOn(const QLocale &desktop)
{
    const QString language = desktop.name().section('_', 0, 0);
    return all().contains(language) ? language : QStringLiteral("en");
}

QString EditorLanguages::nameOf(const QString &language)
{
    // Without the country that Qt puts to "American English".
    if (language == "en")
        return QStringLiteral("English");
    return QLocale(language).nativeLanguageName();
}
