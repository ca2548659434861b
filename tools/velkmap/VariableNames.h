#pragma once

#include <QHash>
#include <QString>

namespace velkmap {

/// Numbers for the names of variables, given in order of first appearance.
class VariableNames
{
public:
    [[nodiscard]] int idOf(const QString &name)
    {
        const auto found = m_ids.constFind(name);
        return found != m_ids.cend() ? *found : *m_ids.insert(name, int(m_ids.size()));
    }

private:
    QHash<QString, int> m_ids;
};

} // namespace velkmap
