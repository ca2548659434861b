#pragma once

#include <geomcore/mapper/LineCandidatesC.h>

#include <QAbstractTableModel>

/// The lines that a source line may have become, one a row with the key that takes it, and at last
/// how probable it is that it has none.
class CandidateModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Key, Probability, Line, Reason, ColumnCount };

    explicit CandidateModel(QObject *parent = nullptr);

    /// \a target, \a targetLine: where the line is assigned, in bold; -1: nowhere.
    void setCandidates(const LineCandidatesC &candidates, int target, int targetLine);
    /// Neither candidates nor the last row.
    void clear();
    [[nodiscard]] const LineCandidatesC &candidates() const { return m_candidates; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void retranslate();

private:
    [[nodiscard]] QString text(int row, int column) const;

    LineCandidatesC m_candidates;
    int m_target = -1;
    int m_targetLine = -1;
    bool m_isEmpty = true;
};
