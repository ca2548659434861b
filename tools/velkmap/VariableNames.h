#pragma once

#include <QHash>
#include <QMutex>
#include <QString>

namespace velkmap {

/// Numbers for the names of variables. Any thread.
class VariableNames
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

} // namespace velkmap
