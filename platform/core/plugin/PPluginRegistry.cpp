#include "PPluginRegistry.h"

#include <QMetaMethod>

PPluginRegistry &PPluginRegistry::instance()
{
    // Made by the first library that registers, and never destroyed, as libraries may go late.
    static auto *const registry = new PPluginRegistry;
    return *registry;
}

void PPluginRegistry::registerPlugin(const QMetaObject &plugin)
{
    const QMutexLocker lock(&m_mutex);
    if (!m_plugins.contains(&plugin))
        m_plugins.append(&plugin);
}

void PPluginRegistry::unregisterPlugin(const QMetaObject &plugin)
{
    const QMutexLocker lock(&m_mutex);
    m_plugins.removeOne(&plugin);
}

QList<const QMetaObject *> PPluginRegistry::plugins() const
{
    const QMutexLocker lock(&m_mutex);
    return m_plugins;
}

std::unique_ptr<QObject> PPluginRegistry::create(const QMetaObject &plugin)
{
    if (plugin.constructorCount() == 0 || plugin.constructor(0).parameterCount() != 0)
        return nullptr;
    QObject *object = nullptr;
    void *arguments[] = {&object};
    plugin.static_metacall(QMetaObject::CreateInstance, 0, arguments);
    return std::unique_ptr<QObject>(object);
}
