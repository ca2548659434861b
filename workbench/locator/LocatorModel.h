#pragma once

#include "LocatorItem.h"

#include <QAbstractTableModel>

/// The hits of the locator, one a row: title, where it is, and its kind in words.
class LocatorModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Title, Detail, KindName, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setItems(const QList<LocatorItem> &items);
    [[nodiscard]] const LocatorItem &itemAt(int row) const { return m_items.at(row); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    /// What cannot be done now is shown, but cannot be chosen.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QList<LocatorItem> m_items;
};
