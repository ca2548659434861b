#include "PLinkDbRecordC.h"

LinkDbColumns::LinkDbColumns(const QStringList &names)
{
    m_places.reserve(names.size());
    for (const QString &name : names)
        append(name);
}

int LinkDbColumns::indexOf(const QString &name) const
{
    return m_places.value(name.toUpper(), -1);
}

void LinkDbColumns::append(const QString &name)
{
    const QString key = name.toUpper();
    if (!m_places.contains(key))
        m_places.insert(key, int(m_names.size()));
    m_names.append(name);
}

PLinkDbRecordC::PLinkDbRecordC()
    : PLinkDbRecordC(std::make_shared<LinkDbColumns>())
{
}

PLinkDbRecordC::PLinkDbRecordC(std::shared_ptr<const LinkDbColumns> columns,
                               const QVariantList &values)
    : m_columns(std::move(columns))
    , m_values(values)
{
    m_values.resize(m_columns->count());
}

void PLinkDbRecordC::setValue(const QString &column, const QVariant &value)
{
    int index = indexOf(column);
    if (index < 0) {
        auto more = std::make_shared<LinkDbColumns>(*m_columns);
        more->append(column);
        m_columns = std::move(more);
        index = int(m_values.size());
        m_values.append(QVariant());
    }
    m_values[index] = value;
}
