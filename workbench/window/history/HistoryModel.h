#pragma once

#include <release/history/DecisionHistory.h>

#include <QAbstractTableModel>

/// Decisions as a table, the newest first.
class HistoryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        Time,
        Author,
        Project,
        Line,
        Former,
        Next,
        Action,
        Reason,
        ColumnCount,
    };
    using Decision = VelkRelease::DecisionHistory::Decision;

    explicit HistoryModel(QObject *parent = nullptr);

    /// In the order of time.
    void setDecisions(const QList<Decision> &decisions);
    [[nodiscard]] const Decision &at(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] static QString text(const Decision &decision, int column);

    QList<Decision> m_decisions;
};
