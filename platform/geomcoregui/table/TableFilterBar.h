#pragma once

#include <QWidget>

#include <map>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QToolButton;
QT_END_NAMESPACE

class TableGrid;
class TableValueList;
class VkTableModel;

/// Row of edits above a grid, one for each column of a variable, that move with the columns. What
/// is written there filters at once; Escape in one empties it, Down goes into the grid, Alt+Down
/// shows the column's values.
class TableFilterBar : public QWidget
{
    Q_OBJECT

public:
    TableFilterBar(TableGrid *grid, VkTableModel *model, QWidget *parent);
    ~TableFilterBar() override;

    /// Hiding ends all filters.
    void setShown(bool shown);
    /// The edit of a column; null for a status column.
    [[nodiscard]] QLineEdit *editOf(int column) const;
    /// The values of a column with their numbers, to choose from; null for a status column. The bar
    /// is shown for it.
    TableValueList *showValues(int column);
    /// Brings the edits in line with the model's columns and filters.
    void takeColumns();
    void retranslate();
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void place();
    void warm(const QLineEdit *edit) const;
    [[nodiscard]] QLineEdit *makeEdit(int variable, const QString &name);

    TableGrid *m_grid;
    VkTableModel *m_model;
    QToolButton *m_clear;
    std::map<int, QLineEdit *> m_edits; // by variable; owned as children
};
