#include "LocatorModel.h"

void LocatorModel::setItems(const QList<LocatorItem> &items)
{
    beginResetModel();
    m_items = items;
    endResetModel();
}

int LocatorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_items.size());
}

int LocatorModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant LocatorModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const LocatorItem &item = m_items.at(index.row());
    if (role == Qt::AccessibleTextRole)
        return QStringList{item.title, item.detail}.join(QStringLiteral(", "));
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Title:
        return item.kind == LocatorItem::Line ? tr("Zeile %1").arg(item.title) : item.title;
    case Detail:
        return item.detail;
    default:
        break;
    }
    switch (item.kind) {
    case LocatorItem::Line:
        return tr("Zeile");
    case LocatorItem::Project:
        return tr("Projekt");
    case LocatorItem::Command:
        return tr("Befehl");
    case LocatorItem::Setting:
        return tr("Einstellung");
    }
    return {};
}

Qt::ItemFlags LocatorModel::flags(const QModelIndex &index) const
{
    if (index.isValid() && !m_items.at(index.row()).isEnabled)
        return Qt::ItemNeverHasChildren;
    return QAbstractTableModel::flags(index);
}
