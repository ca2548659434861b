#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <map>

class TableColumnOrder;
class TableGrid;
class VkTableModel;

/// Widths of a grid's columns: those that a user gave to them, from the application's configuration
/// by table and variable, else what captions and first lines need. Widths are kept as of zoom
/// factor 1.
class TableColumnWidths : public QObject
{
    Q_OBJECT

public:
    TableColumnWidths(TableGrid *grid, VkTableModel *model);
    /// Stores what is not stored yet.
    ~TableColumnWidths() override;

    /// Columns that the user hides.
    void setOrder(const TableColumnOrder *order);
    /// Reads the widths for the model's table.
    void load();
    /// Gives the columns their widths. Status columns that no line has a value in are hidden,
    /// and what the user hides. Columns keep what they have while a filter leaves no line.
    void apply();
    /// Shows status columns that came into use, and all columns of variables.
    void showUsedColumns();
    void setZoomFactor(double factor);
    /// Gives columns the widths that their contents need and forgets the user's.
    void fit(int column);
    void fitAll();

private:
    void onResized(int column, int oldSize, int newSize);
    void store();
    [[nodiscard]] int fittingWidth(int column);
    [[nodiscard]] int neededWidth(int column) const;

    TableGrid *m_grid;
    VkTableModel *m_model;
    QPointer<const TableColumnOrder> m_order; ///< The grid deletes both, in its own order.
    double m_zoom = 1;
    bool m_applying = false;
    bool m_changed = false;
    QString m_key; // of the loaded widths
    std::map<QString, int> m_widths;
    std::map<QString, int> m_fitted; ///< Of columns without a wish, as they were with lines.
};
