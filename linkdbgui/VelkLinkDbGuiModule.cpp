// All that the library does while it loads and, the other way round, while it is unloaded. The
// order of the static objects in this file is the order of the steps.

#include "LibraryMetaTypes.h"
#include "LinkDbGuiC.h"
#include "Loggers.h"
#include "prxDocumentListDialogC.h"
#include "prxLinkDbGuiC.h"

#include <core/component/proxyAutoRegisterT.h>
#include <core/plugin/PPluginRegistry.h>
#include <core/plugin/PTranslateManager.h>
#include <core/text/PString.h>
#include <mapping/project/ignoreMarker.h>

namespace {

constexpr const char *moduleName = "VelkLinkDbGui";

/// A logger record that is released with the library.
struct OwnedRecord
{
    explicit OwnedRecord(const char *category)
        : record(category)
    {
    }
    ~OwnedRecord() { StaticLogger::release(record); }
    Q_DISABLE_COPY_MOVE(OwnedRecord)

    StaticLoggerRecord record;
};

struct PluginRegistration
{
    PluginRegistration()
    {
        PPluginRegistry::instance().registerPlugin(LinkDbGuiC::staticMetaObject);
    }
    ~PluginRegistration()
    {
        PPluginRegistry::instance().unregisterPlugin(LinkDbGuiC::staticMetaObject);
    }
    Q_DISABLE_COPY_MOVE(PluginRegistration)
};

template<class T>
struct ScriptClassRegistration
{
    ScriptClassRegistration() { registrar.init(); }

    proxyAutoRegisterT<T> registrar{mzComServerStateEventC::ServerStarted |
                                    mzComServerStateEventC::ServerStopping};
};

struct Translations
{
    Translations() { PTranslateManager::registerModule(moduleName); }
    ~Translations() { PTranslateManager::unregisterModule(moduleName); }
    Q_DISABLE_COPY_MOVE(Translations)
};

// Does nothing now; comes first to go last.
const LibraryMetaTypes metaTypes;

// 1. Texts of the mapping editor, before there are translations.
const QString ignoreText =
    u'<' +
    PString::translate(QT_TRANSLATE_NOOP("VelkLinkDbGui", "Variable ignorieren"), moduleName) +
    u'>';

// 2. and 3. The logger records.
OwnedRecord plmDocuments("tormeva.libs.VelkGeomCoreGui.plmdocuments");
OwnedRecord linkDbGui("tormeva.libs.VelkLinkDbGui.LinkDbGui");

// 4. The plug-in and its script classes.
const PluginRegistration plugin;
const ScriptClassRegistration<prxLinkDbGuiC> linkDbGuiScriptClass;
const ScriptClassRegistration<prxDocumentListDialogC> documentListScriptClass;

} // namespace

// 5. The resource tree, which the generated source registers and releases by a static object of its
// own, then the translations in it.
#include <VelkLinkDbGuiResources.inc>

namespace {

const Translations translations;

// 6. The resource tree once more, without translations: each registration has its release.
struct SecondResources
{
    SecondResources() { qInitResources_VelkLinkDbGui(); }
    ~SecondResources() { qCleanupResources_VelkLinkDbGui(); }
    Q_DISABLE_COPY_MOVE(SecondResources)
};

const SecondResources secondResources;

} // namespace

const QString &ignoreMarker()
{
    return ignoreText;
}

StaticLoggerRecord &plmDocumentsLogger()
{
    return plmDocuments.record;
}

StaticLoggerRecord &linkDbGuiLogger()
{
    return linkDbGui.record;
}
