#pragma once

#include <QHeaderView>

class TableGrid;

/// The captions of the columns of a grid that stay while others scroll, over the beginning of its
/// header; does what that one does with them.
class FrozenHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit FrozenHeader(TableGrid *grid);
    ~FrozenHeader() override;

    /// Shows these columns of the grid; none: nothing is to be seen.
    void place(const QList<int> &columns);

private:
    void sortBy(int column);

    TableGrid *const m_grid;
    bool m_isPlacing = false;
};
