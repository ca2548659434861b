// Columns of a table view that stay in sight while the others scroll.
#include "ViewTables.h"

#include <core/config/PConfigInst.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplication.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class tst_FrozenColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void noneUnlessWanted();
    void iconsAndTheFirstStay();
    void theirCellsAnswerTheMouse();
    void aCellIsNotLeftBelowThem();
    void captionsSortAndHaveTheirWidth();
    void chosenByTheMenuAndKept();
    void takenBackByTheMenu();
    void roomIsLeftForTheOthers();
    void filtersStayWithTheirColumns();

private:
    void openAnew(bool freezes = true, int width = 400);
    [[nodiscard]] QTableView *grid() const { return qobject_cast<QTableView *>(m_view->grid()); }
    [[nodiscard]] QHeaderView *captions() const
    {
        return grid()->findChild<QHeaderView *>("frozenHeader");
    }
    void scrollToTheEnd() const
    {
        QScrollBar *const bar = grid()->horizontalScrollBar();
        QVERIFY(bar->maximum() > 0);
        bar->setValue(bar->maximum());
    }
    [[nodiscard]] int firstColumn() const { return m_view->model()->statusColumnCount(); }
    void choose(int column, const char *row) const
    {
        grid()->selectionModel()->setCurrentIndex(m_view->model()->index(0, column),
                                                  QItemSelectionModel::NoUpdate);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                grid()->viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(grid()->viewport(), &event);
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        auto *const action = menu->findChild<QAction *>(QLatin1String(row));
        QVERIFY(action && action->isEnabled());
        action->trigger();
        menu->close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<PApplication> m_host;
    VKTab::ContentRef m_table;
    std::unique_ptr<VkTableView> m_view;
};

void tst_FrozenColumns::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_host = std::make_unique<PApplication>(
        PRefPtr<PConfig>(new PConfigInst(m_dir->filePath("app.cfg"), false)));
    m_table = TestTables::screws();
    openAnew();
}

void tst_FrozenColumns::cleanup()
{
    m_view.reset();
    m_host.reset();
}

void tst_FrozenColumns::openAnew(bool freezes, int width)
{
    m_view.reset();
    m_view = std::make_unique<VkTableView>();
    m_view->setFreezesFirst(freezes);
    m_view->resize(width, 300);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_view->setTable(m_table);
    for (int column = firstColumn(); column < m_view->model()->columnCount(); ++column)
        grid()->setColumnWidth(column, 140);
    QCoreApplication::processEvents();
}

void tst_FrozenColumns::noneUnlessWanted()
{
    openAnew(false);
    QCOMPARE(m_view->frozenWidth(), 0);
    scrollToTheEnd();
    QVERIFY(grid()->visualRect(m_view->model()->index(0, firstColumn())).right() < 0);
}

void tst_FrozenColumns::iconsAndTheFirstStay()
{
    QVERIFY(m_view->isFrozen(firstColumn()));
    QVERIFY(!m_view->isFrozen(firstColumn() + 1));
    const QRect before = grid()->visualRect(m_view->model()->index(1, firstColumn()));
    QCOMPARE(m_view->frozenWidth(), grid()->columnWidth(firstColumn()));
    const QRect area(0, 0, m_view->frozenWidth() - 2, grid()->viewport()->height());
    const QImage picture = grid()->viewport()->grab(area).toImage();
    scrollToTheEnd();
    QCOMPARE(grid()->visualRect(m_view->model()->index(1, firstColumn())), before);
    QCOMPARE(grid()->viewport()->grab(area).toImage(), picture);
    // Others are below it.
    QVERIFY(grid()->columnViewportPosition(firstColumn()) < 0);
    grid()->horizontalScrollBar()->setValue(0);
    QCOMPARE(grid()->viewport()->grab(area).toImage(), picture);
}

void tst_FrozenColumns::theirCellsAnswerTheMouse()
{
    scrollToTheEnd();
    const QModelIndex cell = m_view->model()->index(2, firstColumn());
    const QPoint place = grid()->visualRect(cell).center();
    QCOMPARE(grid()->indexAt(place), cell);
    const int scrolled = grid()->horizontalScrollBar()->value();
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(grid()->currentIndex(), cell);
    QCOMPARE(m_view->getSelectedLineCount(), 1);
    QCOMPARE(grid()->horizontalScrollBar()->value(), scrolled);
    // Behind them it is the others' turn.
    const QModelIndex other = grid()->indexAt({m_view->frozenWidth() + 3, place.y()});
    QVERIFY(other.isValid() && other.column() > firstColumn());
}

void tst_FrozenColumns::aCellIsNotLeftBelowThem()
{
    scrollToTheEnd();
    const QModelIndex cell = m_view->model()->index(0, firstColumn() + 1);
    grid()->scrollTo(cell);
    QVERIFY(grid()->visualRect(cell).left() >= m_view->frozenWidth());
    // A frozen one is in sight anyway.
    scrollToTheEnd();
    const int end = grid()->horizontalScrollBar()->value();
    grid()->scrollTo(m_view->model()->index(0, firstColumn()));
    QCOMPARE(grid()->horizontalScrollBar()->value(), end);
}

void tst_FrozenColumns::captionsSortAndHaveTheirWidth()
{
    QVERIFY(!captions() || !captions()->isVisible());
    scrollToTheEnd();
    QVERIFY(captions() && captions()->isVisible());
    QCOMPARE(captions()->width(), m_view->frozenWidth());
    QCOMPARE(captions()->geometry().topLeft(), grid()->horizontalHeader()->geometry().topLeft());
    const QPoint place(captions()->sectionViewportPosition(firstColumn()) + 20, 5);
    QTest::mouseClick(captions()->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(m_view->model()->sortColumn(), firstColumn());
    QCOMPARE(m_view->model()->sortOrder(), Qt::AscendingOrder);
    QTest::mouseClick(captions()->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(m_view->model()->sortOrder(), Qt::DescendingOrder);
    QTest::mouseClick(captions()->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(m_view->model()->sortColumn(), -1);
    captions()->resizeSection(firstColumn(), 70);
    QCOMPARE(grid()->columnWidth(firstColumn()), 70);
}

void tst_FrozenColumns::chosenByTheMenuAndKept()
{
    openAnew(true, 700);
    choose(firstColumn() + 1, "freezeColumns");
    QVERIFY(m_view->isFrozen(firstColumn() + 1));
    QVERIFY(!m_view->isFrozen(firstColumn() + 2));
    openAnew(true, 700);
    QVERIFY(m_view->isFrozen(firstColumn() + 1));
    QVERIFY(!m_view->isFrozen(firstColumn() + 2));
}

void tst_FrozenColumns::takenBackByTheMenu()
{
    choose(firstColumn(), "freezeNone");
    QCOMPARE(m_view->frozenWidth(), 0);
    openAnew();
    QCOMPARE(m_view->frozenWidth(), 0);
}

/// Where they would take more than half, the first of them stay.
void tst_FrozenColumns::roomIsLeftForTheOthers()
{
    openAnew(true, 700);
    choose(firstColumn() + 3, "freezeColumns");
    QVERIFY(m_view->frozenWidth() <= grid()->viewport()->width() / 2);
    QVERIFY(m_view->isFrozen(firstColumn()));
    QVERIFY(!m_view->isFrozen(firstColumn() + 3));
}

void tst_FrozenColumns::filtersStayWithTheirColumns()
{
    m_view->showFilterBar(true);
    QCoreApplication::processEvents();
    const auto *const bar = m_view->findChild<QWidget *>("filterBar");
    const QString name = m_view->model()->variable(firstColumn()).getName();
    const auto *const edit = bar->findChild<QWidget *>("filter_" + name);
    QVERIFY(edit);
    const QRect before = edit->geometry();
    scrollToTheEnd();
    QCOMPARE(edit->geometry(), before);
}

QTEST_MAIN(tst_FrozenColumns)
#include "tst_FrozenColumns.moc"
