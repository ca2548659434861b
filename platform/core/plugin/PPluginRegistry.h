#pragma once

#include <core/VelkCoreGlobal.h>

#include <QList>
#include <QMetaObject>
#include <QMutex>
#include <QObject>

#include <memory>

/// Plug-in classes of the loaded libraries, known by their meta objects. Can be used while a
/// library loads, before there is an application. Any thread.
class VELKCORE_EXPORT PPluginRegistry
{
public:
    static PPluginRegistry &instance();

    /// Keeps the address; a library that goes takes its classes out first. Once is enough.
    void registerPlugin(const QMetaObject &plugin);
    void unregisterPlugin(const QMetaObject &plugin);
    /// In the order of registration.
    [[nodiscard]] QList<const QMetaObject *> plugins() const;
    /// A new object by invokable constructor 0, which takes no argument; null if the class has
    /// none.
    [[nodiscard]] static std::unique_ptr<QObject> create(const QMetaObject &plugin);

private:
    PPluginRegistry() = default;

    mutable QMutex m_mutex;
    QList<const QMetaObject *> m_plugins;
};
