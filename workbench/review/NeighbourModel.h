#pragma once

#include <workbench/session/tasks/NeighbourWork.h>

#include <QAbstractTableModel>

/// Where neighbouring lines do not fit each other, a finding a row, with what would mend it.
class NeighbourModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { What, Mended, Project, ColumnCount };

    /// \a work must live as long.
    NeighbourModel(const NeighbourWork *work, QObject *parent);

    /// Shows what \a work has found by now. Rows that stay are not touched.
    void update();
    /// Null for a row out of range.
    [[nodiscard]] const NeighbourWork::Place *placeAt(int row) const;
    /// "Zeilen 40 bis 61 sind um 1 verschoben".
    [[nodiscard]] static QString text(const VelkRelease::NeighbourFinding &finding);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void retranslate();

private:
    /// At most \a most lines; -1: all.
    [[nodiscard]] static QString mendedText(const VelkRelease::NeighbourFinding &finding, int most);

    const NeighbourWork *const m_work;
    std::vector<NeighbourWork::Place> m_places;
    QStringList m_paths; ///< of the projects of m_places
};
