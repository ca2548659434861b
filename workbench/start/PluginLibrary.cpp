#include "PluginLibrary.h"

#include <core/plugin/PLinkDbGuiI.h>
#include <core/plugin/PPluginRegistry.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMetaClassInfo>

namespace {

bool offersInterface(const QMetaObject &plugin)
{
    const int index = plugin.indexOfClassInfo("Interfaces");
    return index >= 0 &&
           QString::fromUtf8(plugin.classInfo(index).value()).split(',').contains("PLinkDbGuiI");
}

} // namespace

PluginLibrary::PluginLibrary() = default;
PluginLibrary::~PluginLibrary() = default;

bool PluginLibrary::load(const QString &path)
{
    m_library.setFileName(path);
    if (!m_library.load()) {
        m_error = m_library.errorString();
        return false;
    }
    const auto plugins = PPluginRegistry::instance().plugins();
    for (const QMetaObject *plugin : plugins) {
        if (!offersInterface(*plugin))
            continue;
        m_object = PPluginRegistry::create(*plugin);
        m_plugin = qobject_cast<PLinkDbGuiI *>(m_object.get());
        if (m_plugin)
            return true;
    }
    m_object.reset();
    m_error = m_library.fileName() + ": the library registers no plug-in \"PLinkDbGuiI\"";
    return false;
}

QString PluginLibrary::pathOf(const QString &name)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString built = QDir::cleanPath(programs.filePath("../lib/" + name));
    // Where they are installed they have a folder of their own.
    return QFile::exists(QFileInfo(built).path() + "/lib" + name + ".so")
               ? built
               : QDir::cleanPath(programs.filePath(VELK_MODULE_FOLDER "/" + name));
}
