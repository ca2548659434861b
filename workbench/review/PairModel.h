#pragma once

#include <workbench/session/tasks/ReviewWork.h>

#include <QAbstractTableModel>

/// Several lines of a project beside the lines that they are assigned to, one a row, with the
/// differences that they do not all have.
class PairModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { OldLine, NewLine, Differences, ColumnCount };

    explicit PairModel(QObject *parent = nullptr);

    void setPairs(const LinePairs &pairs);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void retranslate();

private:
    [[nodiscard]] QString text(int row, int column) const;

    LinePairs m_pairs;
};
