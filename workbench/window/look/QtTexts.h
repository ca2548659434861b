#pragma once

#include <QString>

/// Texts of Qt's own dialogs, such as those that choose files, from the catalogs of the Qt
/// installation. GUI thread.
class QtTexts
{
public:
    /// False if the installation has no catalog of that language; the texts are English then.
    static bool setLanguage(const QString &language);
    /// The same from another directory.
    static bool setLanguage(const QString &language, const QString &directory);
};
