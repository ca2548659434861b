#pragma once

#include <workbench/session/tasks/ConflictSides.h>

#include <QAbstractTableModel>

/// The sides of one conflict beside each other. A row whose sides differ has DifferenceModel's
/// outcome and marks, for its delegate.
class ConflictSidesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Behind the name the sides in the order of ConflictSides::Side.
    enum Column { Name, FirstSide, ColumnCount = FirstSide + ConflictSides::SideCount };

    explicit ConflictSidesModel(QObject *parent = nullptr);

    void setRows(const QList<ConflictSides::Row> &rows);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void retranslate();

private:
    QList<ConflictSides::Row> m_rows;
};
