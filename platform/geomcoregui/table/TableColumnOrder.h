#pragma once

#include <QObject>
#include <QStringList>

class TableGrid;
class VkTableModel;

/// Which columns of a grid a user hides, in which order they stand and which stay in sight, kept in
/// the application's configuration by table. Columns are called by TableColumnNames.
class TableColumnOrder : public QObject
{
    Q_OBJECT

public:
    TableColumnOrder(TableGrid *grid, VkTableModel *model);
    ~TableColumnOrder() override;

    /// Reads the choices for the model's table.
    void load();
    /// Brings the columns into their order.
    void apply();

    [[nodiscard]] const QStringList &hidden() const { return m_hidden; }
    /// False for the last column of a variable that is shown: something has to be.
    [[nodiscard]] bool canHide(int column) const;
    void hide(int column);
    void showAll();
    /// One place to the left (-1) or right (1) among the columns that are shown.
    void move(int column, int step);
    [[nodiscard]] bool canMove(int column, int step) const;

    /// Without a choice of the user icons and the first column stay while others scroll.
    void setFreezesFirst(bool freezes);
    /// All up to this column stay.
    void freezeUpTo(int column);
    /// All columns scroll.
    void freezeNone();
    [[nodiscard]] bool hasFrozen() const;
    /// Tells the grid, after columns came, went or moved.
    void applyFrozen();

Q_SIGNALS:
    void hiddenChanged();

private:
    void onMoved();
    void store() const;
    [[nodiscard]] int neighbour(int column, int step) const;

    TableGrid *const m_grid;
    VkTableModel *const m_model;
    bool m_applying = false;
    QString m_key; ///< of the choices
    QStringList m_hidden;
    QStringList m_order; ///< empty: as the table has it
    bool m_freezesFirst = false;
    QString m_frozen; ///< the last one that stays; empty: no choice was made
};
