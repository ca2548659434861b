#include "DocumentListItem.h"

DocumentListItem::DocumentListItem(std::shared_ptr<const DocumentListColumns> columns,
                                   const PLinkDbRecordC &record)
    : m_columns(std::move(columns))
    , m_record(record)
{
}

QVariant DocumentListItem::data(int column, int role) const
{
    QVariant own = QTreeWidgetItem::data(column, role);
    if (own.isValid())
        return own;
    if (role == Qt::UserRole && column == 0)
        return m_record.value(m_columns->key);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return own;
    const int place = m_columns->shown.value(column, -1);
    return place < 0 ? QVariant() : QVariant(m_record.value(place).toString());
}

QTreeWidgetItem *DocumentListItem::clone() const
{
    return new DocumentListItem(*this);
}
