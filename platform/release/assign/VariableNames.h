#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>

namespace VelkRelease {

/// Numbers for the names of variables. Any thread.
class VELKRELEASE_EXPORT VariableNames
{
public:
    [[nodiscard]] int idOf(const QString &name)
    {
        const QMutexLocker lock(&m_mutex);
        const auto found = m_ids.constFind(name);
        if (found != m_ids.cend())
            return *found;
        m_names.append(name);
        return *m_ids.insert(name, int(m_names.size()) - 1);
    }
    [[nodiscard]] QString nameOf(int id) const
    {
        const QMutexLocker lock(&m_mutex);
        return m_names.value(id);
    }

private:
    mutable QMutex m_mutex;
    QHash<QString, int> m_ids;
    QStringList m_names;
};

} // namespace VelkRelease
