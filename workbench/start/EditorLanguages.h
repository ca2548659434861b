#pragma once

#include <QLocale>
#include <QStringList>

/// Languages that the editor's own texts are there in: German, in which they are written, and those
/// with a catalog.
class EditorLanguages
{
public:
    /// Such as "de" and "zh_CHT", as file names of catalogs have them. German comes first.
    [[nodiscard]] static QStringList all();
    /// What a user starts with: the desktop's language, or English if there is no catalog for it.
    [[nodiscard]] static QString firstOn(const QLocale &desktop = QLocale::system());
    /// As the language calls itself.
    [[nodiscard]] static QString nameOf(const QString &language);
    /// How times and numbers are written in it. "pt" is European, "zh_CHT" traditional Chinese.
    [[nodiscard]] static QLocale localeOf(const QString &language);
    /// The desktop's if it is of the language, with its country, else the language's.
    [[nodiscard]] static QLocale localeOn(const QLocale &desktop, const QString &language);
};
