#include "PLinkDbQueryCacheC.h"

PLinkDbQueryCacheC::PLinkDbQueryCacheC(const PRefPtr<PLinkDbQueryI> &query)
    : m_query(query)
{
}

bool PLinkDbQueryCacheC::isOnRow() const
{
    return m_query && m_row >= 0 && m_row < m_query->rowCount();
}

bool PLinkDbQueryCacheC::next()
{
    if (m_query && m_row < m_query->rowCount())
        ++m_row;
    return isOnRow();
}

PLinkDbRecordC PLinkDbQueryCacheC::record() const
{
    return isOnRow() ? PLinkDbRecordC(m_query->columns(), m_query->row(m_row)) : PLinkDbRecordC();
}

QVariant PLinkDbQueryCacheC::value(int column) const
{
    return isOnRow() ? m_query->row(m_row).value(column) : QVariant();
}
