#include "PTranslateManager.h"

#include "TranslationCatalog.h"

#include <QCoreApplication>
#include <QMutex>

#include <map>

class PTranslateManagerPrivate
{
public:
    void loadModule(const QString &module);
    void unloadModule(const QString &module);
    void installAll();

    mutable QRecursiveMutex mutex;
    QString language = qEnvironmentVariable("TORMEVA_LANGUAGE");
    QStringList modules;
    std::map<QString, std::unique_ptr<TranslationCatalog>> catalogs;
};

void PTranslateManagerPrivate::loadModule(const QString &module)
{
    unloadModule(module);
    if (!QCoreApplication::instance())
        return;
    if (auto catalog = TranslationCatalog::load(module, language)) {
        QCoreApplication::installTranslator(&catalog->translator);
        catalogs[module] = std::move(catalog);
    }
}

void PTranslateManagerPrivate::unloadModule(const QString &module)
{
    const auto found = catalogs.find(module);
    if (found == catalogs.end())
        return;
    if (QCoreApplication::instance())
        QCoreApplication::removeTranslator(&found->second->translator);
    catalogs.erase(found);
}

void PTranslateManagerPrivate::installAll()
{
    for (const QString &module : std::as_const(modules))
        loadModule(module);
}

PTranslateManager::PTranslateManager()
    : d(std::make_unique<PTranslateManagerPrivate>())
{
}

PTranslateManager::~PTranslateManager() = default;

PTranslateManager &PTranslateManager::instance()
{
    // Never destroyed, as libraries may go late.
    static auto *const manager = new PTranslateManager;
    return *manager;
}

void PTranslateManager::registerModule(const char *module)
{
    PTranslateManagerPrivate &d = *instance().d;
    const QMutexLocker lock(&d.mutex);
    const QString name = QString::fromUtf8(module);
    if (d.modules.contains(name))
        return;
    d.modules.append(name);
    d.loadModule(name);
}

void PTranslateManager::registerLibraries()
{
    for (const char *library :
         {"VelkCore", "VelkGeomCore", "VelkGui", "VelkGeomCoreGui", "VelkRelease"})
        registerModule(library);
}

void PTranslateManager::unregisterModule(const char *module)
{
    PTranslateManagerPrivate &d = *instance().d;
    const QMutexLocker lock(&d.mutex);
    const QString name = QString::fromUtf8(module);
    d.modules.removeOne(name);
    d.unloadModule(name);
}

void PTranslateManager::setLanguage(const QString &language)
{
    const QMutexLocker lock(&d->mutex);
    d->language = language;
    d->installAll();
}

QString PTranslateManager::language() const
{
    const QMutexLocker lock(&d->mutex);
    return d->language;
}

QStringList PTranslateManager::modules() const
{
    const QMutexLocker lock(&d->mutex);
    return d->modules;
}

QStringList PTranslateManager::translatedModules() const
{
    const QMutexLocker lock(&d->mutex);
    QStringList names;
    for (const auto &[module, catalog] : d->catalogs)
        names.append(module);
    return names;
}

namespace {

/// An application has begun, maybe another one than before: catalogs that waited are loaded, and
/// the others are not known to it yet.
void loadCatalogsOfApplication()
{
    PTranslateManager &manager = PTranslateManager::instance();
    manager.setLanguage(manager.language());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(loadCatalogsOfApplication)
