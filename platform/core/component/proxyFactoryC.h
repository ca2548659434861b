#pragma once

#include "proxyMemberDescListS.h"

#include <core/VelkCoreGlobal.h>

#include <QList>
#include <QString>

/// The script classes of the loaded libraries, by name and component id. One thread.
class VELKCORE_EXPORT proxyFactoryC
{
public:
    /// Can be used while a library loads.
    static proxyFactoryC &instance();

    /// Keeps the address; the same description once is enough.
    void registerClass(const proxyMemberDescListS *description);
    /// For a library that goes.
    void unregisterClass(const proxyMemberDescListS *description);
    /// In the order of registration.
    [[nodiscard]] QList<const proxyMemberDescListS *> classes() const { return m_classes; }
    /// Null if there is none.
    [[nodiscard]] const proxyMemberDescListS *findClass(const QString &className) const;
    [[nodiscard]] const proxyMemberDescListS *findComponent(const QString &componentId) const;

private:
    proxyFactoryC() = default;

    QList<const proxyMemberDescListS *> m_classes;
};
