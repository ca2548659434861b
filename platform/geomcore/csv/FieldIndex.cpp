#include "FieldIndex.h"

namespace VKTab {

FieldIndex::FieldIndex(const QList<TableField> &fields)
    : m_fields(fields)
{
    m_byName.reserve(m_fields.size());
    for (int i = 0; i < m_fields.size(); ++i) {
        if (!m_byName.contains(m_fields.at(i).name))
            m_byName.insert(m_fields.at(i).name, i);
    }
}

int FieldIndex::indexOfVariable(QStringView name) const
{
    const int index = name.isEmpty() ? -1 : indexOf(name);
    return index >= 0 && m_fields.at(index).kind <= FieldKind::Computed ? index : -1;
}

} // namespace VKTab
