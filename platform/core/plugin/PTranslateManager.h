#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>
#include <QStringList>

#include <memory>

class PTranslateManagerPrivate;

/// Translations of the loaded modules in one language of choice. A module's catalog is the file
/// ":/translations/MODULE_LANGUAGE.qm", found by that name alone: languages are file name parts
/// such as "de" or "zh_CHT", no locales. Where a catalog is missing the source text stays.
///
/// Modules may be registered before there is an application; their catalogs are used from the
/// moment both an application and a language are there. setLanguage() belongs to the GUI thread.
class VELKCORE_EXPORT PTranslateManager
{
public:
    static PTranslateManager &instance();

    static void registerModule(const char *module);
    /// The libraries of this platform; those of them that are not loaded have no catalog.
    static void registerLibraries();
    /// For a library that goes.
    static void unregisterModule(const char *module);

    /// "" means source texts. The value of TORMEVA_LANGUAGE before the first call. Windows get a
    /// language change event.
    void setLanguage(const QString &language);
    [[nodiscard]] QString language() const;
    [[nodiscard]] QStringList modules() const;
    /// Modules of which a catalog of the language is in use.
    [[nodiscard]] QStringList translatedModules() const;

    PTranslateManager(const PTranslateManager &) = delete;
    PTranslateManager &operator=(const PTranslateManager &) = delete;

private:
    PTranslateManager();
    ~PTranslateManager();

    std::unique_ptr<PTranslateManagerPrivate> d;
};
