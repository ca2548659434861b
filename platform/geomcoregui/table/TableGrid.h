#pragma once

#include <geomcore/value/LineId.h>

#include <QSet>
#include <QTableView>

class FrozenHeader;
class TableDelegate;

/// The grid of a table view: rows of one height, whole lines selected, and what a mouse or a key
/// does to cells. Knows its model as a VkTableModel.
class TableGrid : public QTableView
{
    Q_OBJECT

public:
    explicit TableGrid(QWidget *parent);
    ~TableGrid() override;

    /// Cells that hold the text are marked; none for an empty text.
    void setMarkedText(const QString &text);
    /// Cells of a line that differ from something, by the numbers of their variables.
    void setMarkedCells(const VKTab::LineId &line, const QSet<int> &variables);
    /// These columns, in this order the first ones that are shown, stay where they are while the
    /// others scroll; none: all scroll. Where they would take more than half of the width only the
    /// first of them stay.
    void setFrozenColumns(const QList<int> &columns);
    /// Those that stay now.
    [[nodiscard]] QList<int> frozenColumns() const;
    [[nodiscard]] int frozenWidth() const;
    /// Where a column begins in the viewport, frozen or not.
    [[nodiscard]] int columnPlace(int column) const;

    [[nodiscard]] QModelIndex indexAt(const QPoint &position) const override;
    [[nodiscard]] QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    /// Letters belong to the shortcuts of the window; finding has its bar.
    void keyboardSearch(const QString &text) override;

Q_SIGNALS:
    /// A click on a cell or, with an index that is not valid, below the last line.
    void cellClicked(const QModelIndex &index, Qt::MouseButton button);
    /// The current line became another by keyboard.
    void lineEntered(const QModelIndex &index);
    /// A left click on an icon, or Space or Enter there.
    void iconActivated(const QModelIndex &index);
    /// The row that the menu is for, or -1.
    void menuRequested(int row, const QPoint &globalPosition);
    /// Steps of the wheel with Ctrl held; above 0 is larger.
    void zoomRequested(int steps);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    /// A current line that is in view stays so if the grid gets lower.
    void resizeEvent(QResizeEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    /// Ctrl+Home and Ctrl+End select the first and the last line, with Shift all lines up to there.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

private:
    [[nodiscard]] bool isIcon(const QModelIndex &index) const;
    [[nodiscard]] bool showStatusToolTip(const QPoint &position, const QPoint &globalPosition);
    /// The whole text of a cell that has no room for it.
    [[nodiscard]] bool showCutText(const QPoint &position, const QPoint &globalPosition);
    /// A key that leads to the first or last line found it current, yet not selected: so it is when
    /// the grid got the focus by Tab.
    [[nodiscard]] bool staysOnUnselectedLine(const QKeyEvent &event) const;
    void announceClick(const QModelIndex &index, const QMouseEvent &event);

    [[nodiscard]] bool isScrolled() const;
    void paintFrozen(QPainter &painter, const QRect &exposed);
    void paintFrozenCell(QPainter &painter, const QModelIndex &index, const QRect &place);

    TableDelegate *m_delegate;
    QList<int> m_frozen;
    FrozenHeader *m_frozenHeader = nullptr; ///< over the beginning of the header
    QPersistentModelIndex m_pressed;
    bool m_pressedBelow = false;
    int m_wheelRest = 0; // eighths of a degree that make no step yet
};
