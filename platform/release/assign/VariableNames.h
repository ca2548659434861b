#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QHash>
#include <QMutex>
#include <QString>

namespace VelkRelease {

/// Numbers for the names of variables. Any thread.
class VELKRELEASE_EXPORT VariableNames
{
public:
    [[nodiscard]] int idOf(const QString &name)
    {
        const QMutexLocker lock(&m_mutex);
        const auto found = m_ids.constFind(name);
        return found != m_ids.cend() ? *found : *m_ids.insert(name, int(m_ids.size()));
    }

private:
    QMutex m_mutex;
    QHash<QString, int> m_ids;
};

} // namespace VelkRelease
