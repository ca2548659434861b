#pragma once

#include <QLabel>

QT_BEGIN_NAMESPACE
class QAbstractItemView;
QT_END_NAMESPACE

class VkTableModel;

/// Over a grid while a filter leaves no line of its table: why it is empty and what to do. Clicks
/// go through to the grid.
class EmptyTableLabel : public QLabel
{
    Q_OBJECT

public:
    EmptyTableLabel(QAbstractItemView *grid, const VkTableModel *model);

    /// Plain text; nothing is shown for an empty one.
    void tell(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();
    void place();

    const QAbstractItemView *m_grid;
    const VkTableModel *m_model;
};
