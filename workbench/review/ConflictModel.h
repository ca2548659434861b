#pragma once

#include <workbench/session/tasks/ConflictList.h>

#include <QAbstractTableModel>

/// The lines in conflict, one a row, in the order of the list.
class ConflictModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Project, SourceLine, Ours, Theirs, Outcome, ColumnCount };

    /// \a list must live as long.
    explicit ConflictModel(ConflictList *list, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    /// Open rows are bold.
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void retranslate();

private:
    [[nodiscard]] QString text(const ConflictEntry &entry, int column) const;

    ConflictList *const m_list;
    int m_count = 0; ///< while the list is filled anew
};
