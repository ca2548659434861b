#include <core/component/mzComServerC.h>
#include <core/component/proxyFactoryC.h>
#include <core/logging/StaticLogger.h>
#include <core/plugin/PLinkDbGuiI.h>
#include <core/plugin/PPluginRegistry.h>
#include <core/plugin/PTranslateManager.h>
#include <core/text/PString.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <gui/application/PApplication.h>
#include <gui/application/PApplicationPool.h>
#include <TestPaths.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMetaType>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QTest>

#include <dlfcn.h>

/// The plug-in as a host has it: loaded when it is wanted, unloaded without a trace.
class tst_PluginUnload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void loads();
    void unloadsCode();
    void pluginList();
    void resources();
    void resourcesTwice();
    void translations();
    void scriptClasses();
    void loggers();
    void objectOfThePlugin();
    void loadsOnceMore();
    void markerIsMadeBeforeTheTranslations();
    void catalogIsUsedAtOnce();
    void afterTheEditorWasUsed();

private:
    void load(const char *file = VELK_PLUGIN_FILE);
    void unload();
    [[nodiscard]] bool isLoaded() const;
    /// A function of the library; null if it has none.
    template<class Function>
    Function *function(const char *symbol) const
    {
        return reinterpret_cast<Function *>(dlsym(m_library, symbol));
    }

    void *m_library = nullptr;
    const char *m_file = VELK_PLUGIN_FILE;
};

namespace {

/// How often resources were registered and released.
int registrations = 0;
int releases = 0;

using ResourceFunction = bool (*)(int, const unsigned char *, const unsigned char *,
                                  const unsigned char *);

const QString form = QStringLiteral(":/forms/linkdbgui/ClassificationDialog.ui");
const QString bitmap = QStringLiteral(":/bitmaps/state_check.png");
const QString catalog = QStringLiteral(":/translations/VelkLinkDbGui_en.qm");

/// Of all types that Qt knows beyond its own.
QStringList namesOfCustomTypes()
{
    QStringList names;
    for (int id = QMetaType::User + 1; id < QMetaType::User + 1000; ++id) {
        if (QMetaType::isRegistered(id))
            names << QString::fromUtf8(QMetaType(id).name());
    }
    return names;
}

} // namespace

// Libraries that are loaded bind to these instead of to Qt's.
Q_DECL_EXPORT bool qRegisterResourceData(int version, const unsigned char *tree,
                                         const unsigned char *name, const unsigned char *data)
{
    ++registrations;
    return ResourceFunction(dlsym(RTLD_NEXT, "_Z21qRegisterResourceDataiPKhS0_S0_"))(version, tree,
                                                                                     name, data);
}

Q_DECL_EXPORT bool qUnregisterResourceData(int version, const unsigned char *tree,
                                           const unsigned char *name, const unsigned char *data)
{
    ++releases;
    return ResourceFunction(dlsym(RTLD_NEXT, "_Z23qUnregisterResourceDataiPKhS0_S0_"))(
        version, tree, name, data);
}

void tst_PluginUnload::load(const char *file)
{
    m_file = file;
    m_library = dlopen(m_file, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(m_library, dlerror());
}

void tst_PluginUnload::unload()
{
    QVERIFY(m_library);
    QCOMPARE(dlclose(m_library), 0);
    m_library = nullptr;
}

bool tst_PluginUnload::isLoaded() const
{
    void *const library = dlopen(m_file, RTLD_NOW | RTLD_NOLOAD);
    if (library)
        dlclose(library);
    return library != nullptr;
}

/// A host has this library already, with the resources that are its own.
void tst_PluginUnload::initTestCase()
{
    QVERIFY2(dlopen(VELK_RELEASE_FILE, RTLD_NOW), dlerror());
}

void tst_PluginUnload::init()
{
    QVERIFY(!isLoaded());
    PTranslateManager::instance().setLanguage({});
}

void tst_PluginUnload::cleanup()
{
    mzComServerC::instance().stop();
    if (m_library)
        unload();
    QVERIFY(!isLoaded());
}

void tst_PluginUnload::loads()
{
    load();
    QVERIFY(isLoaded());
}

void tst_PluginUnload::unloadsCode()
{
    load();
    unload();
    QVERIFY(!isLoaded());
}

void tst_PluginUnload::pluginList()
{
    QVERIFY(PPluginRegistry::instance().plugins().isEmpty());
    load();
    const QList<const QMetaObject *> plugins = PPluginRegistry::instance().plugins();
    QCOMPARE(plugins.size(), 1);
    QCOMPARE(plugins.first()->className(), "LinkDbGuiC");
    unload();
    QVERIFY(PPluginRegistry::instance().plugins().isEmpty());
}

void tst_PluginUnload::resources()
{
    for (const QString &path : {form, bitmap, catalog})
        QVERIFY2(!QFile::exists(path), qPrintable(path));
    load();
    for (const QString &path : {form, bitmap, catalog})
        QVERIFY2(QFile::exists(path), qPrintable(path));
    unload();
    for (const QString &path : {form, bitmap, catalog})
        QVERIFY2(!QFile::exists(path), qPrintable(path));
    QVERIFY(QDir(QStringLiteral(":/bitmaps")).entryList().isEmpty());
    QVERIFY(QDir(QStringLiteral(":/forms")).entryList().isEmpty());
}

void tst_PluginUnload::resourcesTwice()
{
    registrations = releases = 0;
    load();
    QCOMPARE(registrations, 2);
    QCOMPARE(releases, 0);
    unload();
    QCOMPARE(registrations, 2);
    QCOMPARE(releases, 2);
}

void tst_PluginUnload::translations()
{
    load();
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    QCOMPARE(PString::translate("Konflikte", "VelkLinkDbGui"), QStringLiteral("Conflicts"));
    unload();
    QVERIFY(PTranslateManager::instance().modules().isEmpty());
    QVERIFY(PTranslateManager::instance().translatedModules().isEmpty());
    QCOMPARE(PString::translate("Konflikte", "VelkLinkDbGui"), QStringLiteral("Konflikte"));
}

void tst_PluginUnload::scriptClasses()
{
    mzComServerC::instance().start();
    const qsizetype members = mzComServerC::instance().members().size();
    const qsizetype classes = proxyFactoryC::instance().classes().size();
    load();
    QCOMPARE(mzComServerC::instance().members().size(), members + 2);
    QCOMPARE(proxyFactoryC::instance().classes().size(), classes + 2);
    unload();
    QCOMPARE(mzComServerC::instance().members().size(), members);
    QCOMPARE(proxyFactoryC::instance().classes().size(), classes);
}

/// A record that was in use is forgotten: setLevels() writes into all that are known.
void tst_PluginUnload::loggers()
{
    load(VELK_PARTS_FILE);
    auto *const logger = function<StaticLoggerRecord *()>("plmLoggerOfParts");
    QVERIFY(logger);
    StaticLoggerRecord &record = *logger();
    StaticLogger::init(record);
    StaticLogger::setLevels(QStringLiteral("*=5000"));
    QCOMPARE(record.level.load(), 5000);
    unload();
    StaticLogger::setLevels({});
    QVERIFY(!isLoaded());
}

void tst_PluginUnload::objectOfThePlugin()
{
    PApplication host({});
    load();
    auto object = PPluginRegistry::create(*PPluginRegistry::instance().plugins().first());
    auto *const plugin = qobject_cast<PLinkDbGuiI *>(object.get());
    QVERIFY(plugin);
    QCOMPARE(plugin->asQObject(), object.get());
    PApplicationPool pool;
    plugin->registerActions(pool);
    QVERIFY(!plugin->initLinkDb({}));
    host.setInitialized();
    object.reset();
    unload();
    // The actions are the pool's and outlive the plug-in.
    QCOMPARE(pool.actions().size(), 10);
    QCOMPARE(pool.actions().first()->text(), QStringLiteral("Login"));
    // The host here has no picture, so a later one gets its chance.
    QVERIFY(pool.actions().first()->icon().isNull());
}

void tst_PluginUnload::loadsOnceMore()
{
    for (int i = 0; i < 3; ++i) {
        load();
        QCOMPARE(PPluginRegistry::instance().plugins().size(), 1);
        QVERIFY(QFile::exists(form));
        unload();
        QVERIFY(!QFile::exists(form));
    }
}

void tst_PluginUnload::markerIsMadeBeforeTheTranslations()
{
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    load(VELK_PARTS_FILE);
    auto *const marker = function<const QString *()>("ignoreMarkerOfParts");
    QVERIFY(marker);
    QCOMPARE(PString::translate("Variable ignorieren", "VelkLinkDbGui"),
             QStringLiteral("Ignore variable"));
    QCOMPARE(*marker(), QStringLiteral("<Variable ignorieren>"));
}

/// The catalog lies in the resource tree, which therefore has to be there first.
void tst_PluginUnload::catalogIsUsedAtOnce()
{
    PTranslateManager::instance().setLanguage(QStringLiteral("en"));
    load();
    QCOMPARE(PTranslateManager::instance().translatedModules(),
             QStringList{QStringLiteral("VelkLinkDbGui")});
}

void tst_PluginUnload::afterTheEditorWasUsed()
{
    const QTemporaryDir data;
    QVERIFY(QFile::link(QStringLiteral(VELK_SOURCE_DIR "/examples/release-2"),
                        data.filePath(QStringLiteral("23d-libs"))));
    qputenv("TORMEVA_DATA", QFile::encodeName(data.path()));
    m_library = dlopen(VELK_PROBE_FILE, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(m_library, dlerror());
    auto *const useEditor = function<int(const QString &)>("useEditor");
    QVERIFY(useEditor);
    QCOMPARE_GT(useEditor(QStringLiteral(VELK_SOURCE_DIR "/examples/release-1")), 0);
    unload();
    QVERIFY(!isLoaded());
    QVERIFY(PPluginRegistry::instance().plugins().isEmpty());
    QVERIFY(!QFile::exists(form));
    QCOMPARE(namesOfCustomTypes().filter(QLatin1String("CatalogStructureNodeI")), QStringList());
    QPixmapCache::clear();
    QApplication::processEvents();
    qunsetenv("TORMEVA_DATA");
}

QTEST_MAIN(tst_PluginUnload)
#include "tst_PluginUnload.moc"
