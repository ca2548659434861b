#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QToolButton;
QT_END_NAMESPACE

class TableGrid;
class VkTableModel;

/// Bar below a grid that finds texts in its cells: from the current cell on while typing, Enter or
/// F3 the next one, Shift the one before, Escape closes.
class TableFindBar : public QWidget
{
    Q_OBJECT

public:
    TableFindBar(TableGrid *grid, VkTableModel *model, QWidget *parent);
    ~TableFindBar() override;

    void open();
    void close();
    /// The text looked for last; opens the bar if there is none yet.
    void findAgain(bool backwards);
    /// In the language of the moment.
    void retranslate();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void onTextEdited(const QString &text);
    void go(const QModelIndex &from, bool backwards);
    void show(const QModelIndex &found, const QModelIndex &from, bool backwards);

    TableGrid *m_grid;
    VkTableModel *m_model;
    QLineEdit *m_edit;
    QToolButton *m_previous;
    QToolButton *m_next;
    QToolButton *m_close;
    QLabel *m_result;
};
