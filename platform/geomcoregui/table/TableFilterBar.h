#pragma once

#include <QWidget>

#include <map>

QT_BEGIN_NAMESPACE
class QLineEdit;
class QToolButton;
QT_END_NAMESPACE

class TableGrid;
class VkTableModel;

/// Row of edits above a grid, one for each column of a variable, that move with the columns. What
/// is written there filters at once; Escape in one empties it, Down goes into the grid.
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
    void retranslate();
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void takeColumns();
    void place();
    void warm(const QLineEdit *edit) const;
    [[nodiscard]] QLineEdit *makeEdit(int variable, const QString &name);

    TableGrid *m_grid;
    VkTableModel *m_model;
    QToolButton *m_clear;
    std::map<int, QLineEdit *> m_edits; // by variable; owned as children
};
