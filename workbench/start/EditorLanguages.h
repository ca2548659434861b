#pragma once

#include <QLocale>
#include <QStringList>

/// Languages that the editor's own texts are there in: German, in which they are written, and those
/// with a catalog.
class EditorLanguages
{
public:
    /// Such as "de" and "en", as file names of catalogs have them.
    [[nodiscard]] static QStringList all();
    /// What a user starts with: the desktop's language, or English if there is no catalog for it.
    [[nodiscard]] static QString firstOn(const QLocale &desktop = QLocale::system());
    /// As the language calls itself.
    [[nodiscard]] static QString nameOf(const QString &language);
};
