#include "../support/SlotOrder.h"
#include "ViewFixture.h"

#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QToolTip>

using namespace VKTab;

/// The view as a user meets it: mouse, keys, menus.
class tst_VkTableView : public QObject, protected ViewFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeImage(); }
    void init() { makeView(); }
    void cleanup() { clear(); }

    void slotOrder();
    void emptyAndFilled();
    void titleShowsTheTable();
    void clickSelectsTheTablesLine();
    void keysSelectTheTablesLine();
    void keysSelectTheLineThatGotTheFocus_data();
    void keysSelectTheLineThatGotTheFocus();
    void tableSelectsTheViewsLine();
    void currentLineStaysInView();
    void selectionOfTheTableIsTakenOver();
    void listenersSeeTheViewsSelection();
    void extendedSelection();
    void backToOneLineIsAnnounced();
    void selectedLinesAreCounted();
    void selectedLinesAreInDisplayOrder();
    void hiddenLineStaysSelectedInItsTable();
    void filterKeepsSelectedLines();
    void listenerMayChooseAnotherLine();
    void inactiveViewStandsStill();

    void tableClicks();
    void keyboardIsAClickToo();
    void iconClicks();
    void iconByKeyboard();
    void lineFromElsewhereComesWithItsNeighbours();
    void unusedStatusColumnsAreHidden();
    void iconsOfSelectedLinesStayClear();
    void firstAndLastLineByKeyboard();
    void popupOfALine();
    void popupDeclined();
    void popupBelowTheLinesAndOfTheHeader();
    void statusToolTip();
    void cutTextHasAToolTip();
    void rangesAreReadFromTheirBegin();
};

void tst_VkTableView::slotOrder()
{
    QCOMPARE(slotOf(&VkTableViewBase::setActive), 2);
    QCOMPARE(slotOf(&VkTableViewBase::isViewOnlyMode), 3);
    QCOMPARE(slotOf(&VkTableViewBase::getTable), 4);
    QCOMPARE(slotOf(&VkTableViewBase::setTable), 5);
    QCOMPARE(slotOf(&VkTableViewBase::setHorizontalScrollPos), 6);
    QCOMPARE(slotOf(&VkTableViewBase::getHorizontalScrollPos), 7);
    QCOMPARE(slotOf(&VkTableViewBase::setVerticalScrollPos), 8);
    QCOMPARE(slotOf(&VkTableViewBase::getVerticalScrollPos), 9);
}

void tst_VkTableView::emptyAndFilled()
{
    QVERIFY(m_view->isViewOnlyMode());
    QVERIFY(m_view->getTable() == m_table);
    QVERIFY(m_view->getSelectedLines().isEmpty());
    m_view->setTable(ContentRef());
    QVERIFY(!m_view->getTable().isValid());
    QCOMPARE(m_view->model()->rowCount(), 0);
    m_view->setTable(m_table);
    QCOMPARE(m_view->model()->rowCount(), 4);
    QCOMPARE(grid()->verticalHeader()->sectionSize(0), grid()->verticalHeader()->sectionSize(3));
}

void tst_VkTableView::titleShowsTheTable()
{
    const QLabel *const title = part<QLabel>("tableTitle");
    QCOMPARE(title->text(), QString("DIN 931 – Sechskantschraube"));
    QVERIFY(m_view->isHeaderVisible() && title->isVisible());
    m_view->setHeaderVisible(false);
    QVERIFY(!title->isVisible());
    QVERIFY(grid()->horizontalHeader()->isVisible());
    m_view->setTable(ContentRef());
    m_view->setHeaderVisible(true);
    QVERIFY(!title->isVisible());
}

void tst_VkTableView::clickSelectsTheTablesLine()
{
    click(2, 3);
    QCOMPARE(m_table.getSelection(), LineId(3));
    QCOMPARE(selected(), QList<int>({3}));
    QVERIFY(grid()->selectionModel()->isRowSelected(2));
}

void tst_VkTableView::keysSelectTheTablesLine()
{
    click(0, 3);
    key(Qt::Key_Down);
    QCOMPARE(m_table.getSelection(), LineId(2));
    key(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(m_table.getSelection(), LineId(4));
}

void tst_VkTableView::keysSelectTheLineThatGotTheFocus_data()
{
    QTest::addColumn<Qt::Key>("pressed");
    QTest::addColumn<Qt::KeyboardModifier>("modifier");
    QTest::addColumn<QList<int>>("lines");
    QTest::newRow("home") << Qt::Key_Home << Qt::ControlModifier << QList<int>({1});
    QTest::newRow("up") << Qt::Key_Up << Qt::NoModifier << QList<int>({1});
    QTest::newRow("page up") << Qt::Key_PageUp << Qt::NoModifier << QList<int>({1});
    QTest::newRow("down") << Qt::Key_Down << Qt::NoModifier << QList<int>({2});
    QTest::newRow("moved without selecting") << Qt::Key_Up << Qt::ControlModifier << QList<int>();
}

void tst_VkTableView::keysSelectTheLineThatGotTheFocus()
{
    QFETCH(Qt::Key, pressed);
    QFETCH(Qt::KeyboardModifier, modifier);
    // As a grid does that gets the focus by Tab.
    grid()->selectionModel()->setCurrentIndex(grid()->model()->index(0, 3),
                                              QItemSelectionModel::NoUpdate);
    QVERIFY(selected().isEmpty());
    key(pressed, modifier);
    QTEST(selected(), "lines");
    QTEST(m_table.getSelection().isValid() ? QList<int>({m_table.getSelection().value(0)})
                                           : QList<int>(),
          "lines");
}

void tst_VkTableView::tableSelectsTheViewsLine()
{
    QVERIFY(m_table.setSelection(LineId(3), true));
    QCOMPARE(selected(), QList<int>({3}));
    QCOMPARE(grid()->currentIndex().row(), 2);
    m_table.setSelection(LineId(), true);
    QVERIFY(selected().isEmpty());
}

void tst_VkTableView::currentLineStaysInView()
{
    const auto isInView = [this] {
        return grid()->viewport()->rect().contains(
            QPoint(0, grid()->visualRect(grid()->currentIndex()).center().y()));
    };
    const int last = m_view->model()->rowCount() - 1;
    click(last, 3);
    QVERIFY(isInView());
    const int rows = grid()->viewport()->height() / grid()->rowHeight(0);
    m_view->resize(m_view->width(), m_view->height() - (rows - 2) * grid()->rowHeight(0));
    QVERIFY(grid()->verticalScrollBar()->maximum() > 0);
    QVERIFY(isInView());
    // What the user scrolled away from stays away.
    grid()->verticalScrollBar()->setValue(0);
    QVERIFY(!isInView());
    m_view->resize(m_view->width(), m_view->height() - 4);
    QCOMPARE(grid()->verticalScrollBar()->value(), 0);
}

void tst_VkTableView::selectionOfTheTableIsTakenOver()
{
    ContentRef other = TestTables::screws();
    other.setSelection(LineId(4), true);
    click(0, 3);
    m_view->setTable(other);
    QCOMPARE(selected(), QList<int>({4}));
    QCOMPARE(m_table.getSelection(), LineId(1)); // the former table keeps its own
    m_table.setSelection(LineId(2), true);       // and is not followed any more
    QCOMPARE(selected(), QList<int>({4}));
}

void tst_VkTableView::listenersSeeTheViewsSelection()
{
    QList<int> seen;
    const boost::signals2::scoped_connection connection =
        m_table.signalConnect().connectSignalLineSelected(
            [&](const Content &, const LineId &, bool on) {
                if (on)
                    seen = selected();
                return 0;
            },
            ConnectGroupUser);
    click(1, 3);
    QCOMPARE(seen, QList<int>({2}));
    m_table.setSelection(LineId(4), true);
    QCOMPARE(seen, QList<int>({4}));
}

void tst_VkTableView::extendedSelection()
{
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QCOMPARE(m_view->selectionMode(), QAbstractItemView::ExtendedSelection);
    click(0, 3);
    click(2, 3, Qt::ControlModifier);
    QCOMPARE(selected(), QList<int>({1, 3}));
    QCOMPARE(m_table.getSelection(), LineId(3));
    click(2, 3, Qt::ControlModifier);
    QCOMPARE(selected(), QList<int>({1}));
    QCOMPARE(m_table.getSelection(), LineId(1));
    key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(selected(), QList<int>({1, 2, 3, 4}));
}

void tst_VkTableView::backToOneLineIsAnnounced()
{
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QList<qsizetype> counts;
    const boost::signals2::scoped_connection connection =
        m_table.signalConnect().connectSignalLineSelected(
            [&](const Content &, const LineId &, bool on) {
                if (on)
                    counts.append(selected().size());
                return 0;
            },
            ConnectGroupUser);
    click(0, 3);
    QCOMPARE(counts.last(), 1);
    key(Qt::Key_A, Qt::ControlModifier); // the table's line stays the same
    QCOMPARE(counts.last(), 4);
    QCOMPARE(m_table.getSelection(), LineId(1));
    click(0, 3);
    QCOMPARE(counts.last(), 1);
}

void tst_VkTableView::selectedLinesAreCounted()
{
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    QCOMPARE(m_view->getSelectedLineCount(), 0);
    key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_view->getSelectedLineCount(), 4);
    m_table.setFilter(FilterByLineId({{1, TabFilterData()}, {2, TabFilterData()}}, true));
    m_table.invalidate(Content::InvalidateFilter, true);
    QCOMPARE(m_view->getSelectedLineCount(), int(selected().size()));
    m_table.setFilter(FilterByLineId(QHash<int, TabFilterData>(), true));
    m_table.invalidate(Content::InvalidateFilter, true);
    QCOMPARE(m_view->getSelectedLineCount(), int(selected().size()));
    key(Qt::Key_A, Qt::ControlModifier);
    click(0, 3, Qt::ControlModifier);
    QCOMPARE(m_view->getSelectedLineCount(), 3);
    m_view->setTable(ContentRef());
    QCOMPARE(m_view->getSelectedLineCount(), 0);
    m_view->setTable(m_table);
    QCOMPARE(m_view->getSelectedLineCount(), int(selected().size()));
}

void tst_VkTableView::selectedLinesAreInDisplayOrder()
{
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    click(3, 3);
    click(0, 3, Qt::ControlModifier);
    click(1, 3, Qt::ControlModifier);
    QCOMPARE(selected(), QList<int>({1, 2, 4}));
    grid()->horizontalHeader()->setSortIndicator(2, Qt::DescendingOrder);
    QCOMPARE(selected(), QList<int>({4, 2, 1}));
}

void tst_VkTableView::hiddenLineStaysSelectedInItsTable()
{
    click(0, 3);
    m_table.setFilter(FilterByLineId({{2, TabFilterData()}}, true));
    m_table.invalidate(Content::InvalidateFilter, true);
    QVERIFY(selected().isEmpty());
    QCOMPARE(m_table.getSelection(), LineId(1));
    m_table.setFilter(FilterByLineId(QHash<int, TabFilterData>(), true));
    m_table.invalidate(Content::InvalidateFilter, true);
    QCOMPARE(selected(), QList<int>({1}));
}

void tst_VkTableView::filterKeepsSelectedLines()
{
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    click(1, 3);
    click(3, 3, Qt::ControlModifier);
    m_table.setFilter(FilterByLineId({{2, TabFilterData()}, {4, TabFilterData()}}, true));
    m_table.invalidate(Content::InvalidateFilter, true);
    QCOMPARE(selected(), QList<int>({2, 4}));
    QCOMPARE(grid()->currentIndex().row(), 1);
    QCOMPARE(m_table.getSelection(), LineId(4));
}

void tst_VkTableView::listenerMayChooseAnotherLine()
{
    const boost::signals2::scoped_connection connection =
        m_table.signalConnect().connectSignalLineSelected(
            [&](const Content &, const LineId &id, bool on) {
                if (on && id == LineId(2))
                    m_table.setSelection(LineId(4), true);
                return 0;
            },
            ConnectGroupUser);
    click(1, 3);
    QCOMPARE(m_table.getSelection(), LineId(4));
    QCOMPARE(selected(), QList<int>({4}));
}

void tst_VkTableView::inactiveViewStandsStill()
{
    m_view->setActive(false);
    m_table.setSelection(LineId(2), true);
    m_table.setFilter(FilterByLineId({{2, TabFilterData()}}, true));
    m_table.invalidate(Content::InvalidateFilter, true);
    QVERIFY(selected().isEmpty());
    QCOMPARE(m_view->model()->rowCount(), 4);
    m_view->setActive(true);
    QCOMPARE(m_view->model()->rowCount(), 1);
    QCOMPARE(selected(), QList<int>({2}));
}

void tst_VkTableView::tableClicks()
{
    QList<std::pair<int, int>> clicks;
    m_view->connectTableClicked([&](const Content &content, int line, int button) {
        clicks.append({line, button});
        return content == m_table ? 0 : -1;
    });
    click(1, 3);
    click(2, 3, {}, Qt::RightButton);
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                      QPoint(20, grid()->viewport()->height() - 5));
    QCOMPARE(clicks, (QList<std::pair<int, int>>({{2, 1}, {3, 0}, {-1, 1}})));
    clicks.clear(); // pressed here, released there: no click
    QTest::mousePress(grid()->viewport(), Qt::LeftButton, {}, cellAt(0, 3));
    QTest::mouseRelease(grid()->viewport(), Qt::LeftButton, {}, cellAt(2, 3));
    QVERIFY(clicks.isEmpty());
}

void tst_VkTableView::keyboardIsAClickToo()
{
    QList<std::pair<int, int>> clicks;
    m_view->connectTableClicked([&](const Content &, int line, int button) {
        clicks.append({line, button});
        return 0;
    });
    grid()->setFocus();
    key(Qt::Key_Home, Qt::ControlModifier);
    key(Qt::Key_Down);
    QCOMPARE(clicks.last(), std::pair(2, 0));
}

void tst_VkTableView::iconClicks()
{
    QStringList clicks;
    m_view->connectIconClicked([&](const Content &content, int row, const QString &name) {
        clicks.append(QString("%1 %2 %3").arg(content == m_table).arg(row).arg(name));
        return 0;
    });
    ViewTables::setState(m_table, 3, "M");
    ViewTables::setState(m_table, 3, "VR", "Range");
    click(2, 0);
    click(2, 1);
    click(1, 0); // no icon there
    click(2, 3); // no status column
    click(2, 0, {}, Qt::RightButton);
    QCOMPARE(clicks, QStringList({"1 3 State", "1 3 Range"}));
    clicks.clear(); // the row is that of the line mapping, however it is sorted
    m_view->model()->sort(2, Qt::DescendingOrder);
    click(1, 0);
    QCOMPARE(clicks, QStringList({"1 3 State"}));
}

void tst_VkTableView::iconByKeyboard()
{
    int clicks = 0;
    m_view->connectIconClicked([&](const Content &, int row, const QString &) {
        clicks += row;
        return 0;
    });
    ViewTables::setState(m_table, 2, "M");
    grid()->setCurrentIndex(m_view->model()->index(1, 0));
    key(Qt::Key_Space);
    QCOMPARE(clicks, 2);
    key(Qt::Key_Return);
    QCOMPARE(clicks, 4);
    grid()->setCurrentIndex(m_view->model()->index(1, 1));
    key(Qt::Key_Space);
    QCOMPARE(clicks, 4);
}

void tst_VkTableView::popupOfALine()
{
    QList<int> numbers;
    m_view->connectPopupShow([&](const Content &content, QMenu *menu, int area, int row) {
        numbers = {int(content == m_table), int(menu->actions().size()), area, row};
        menu->addAction("own row");
        return 0;
    });
    contextMenu(cellAt(2, 3));
    QCOMPARE(numbers, QList<int>({1, 0, 0, 3}));
    auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(menu->actions().first()->text(), QString("own row"));
    QVERIFY(menu->findChild<QAction *>("find"));
    menu->close();
    m_view->model()->sort(2, Qt::DescendingOrder);
    contextMenu(cellAt(0, 3));
    QCOMPARE(numbers.at(3), 4);
    QApplication::activePopupWidget()->close();
}

void tst_VkTableView::popupDeclined()
{
    int asked = 0;
    const auto ask = [&](int answer) {
        return [&asked, answer](const Content &, QMenu *, int, int) {
            ++asked;
            return answer;
        };
    };
    m_view->connectPopupShow(ask(-1));
    m_view->connectPopupShow(ask(0));
    contextMenu(cellAt(1, 3));
    QCOMPARE(asked, 2);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_VkTableView::popupBelowTheLinesAndOfTheHeader()
{
    QList<int> numbers;
    m_view->connectPopupShow([&](const Content &, QMenu *, int area, int row) {
        numbers = {area, row};
        return 0;
    });
    contextMenu(QPoint(20, grid()->viewport()->height() - 5));
    QCOMPARE(numbers, QList<int>({0, 0}));
    QApplication::activePopupWidget()->close();
    Q_EMIT grid()->horizontalHeader()->customContextMenuRequested(
        QPoint(grid()->horizontalHeader()->sectionViewportPosition(2) + 3, 3));
    QCOMPARE(numbers, QList<int>({1, 0}));
    auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    menu->findChild<QAction *>("sortDescending")->trigger();
    QCOMPARE(m_view->model()->lineId(0), LineId(4));
    menu->close();
    QTest::qWait(0);
    contextMenu(cellAt(0, 2));
    QApplication::activePopupWidget()->findChild<QAction *>("unsorted")->trigger();
    QCOMPARE(m_view->model()->lineId(0), LineId(1));
    QApplication::activePopupWidget()->close();
}

void tst_VkTableView::lineFromElsewhereComesWithItsNeighbours()
{
    m_view->setTable(ViewTables::large(1000));
    const auto middleOf = [&](int row) {
        return grid()->visualRect(m_view->model()->index(row, 0)).center().y();
    };
    m_view->getTable().setSelection(LineId(500), true);
    const int height = grid()->viewport()->height();
    QVERIFY(std::abs(middleOf(499) - height / 2) <=
            grid()->visualRect(m_view->model()->index(499, 0)).height());
    // One that is in view stays where it is.
    const int before = m_view->getVerticalScrollPos();
    m_view->getTable().setSelection(LineId(502), true);
    QCOMPARE(m_view->getVerticalScrollPos(), before);
}

void tst_VkTableView::unusedStatusColumnsAreHidden()
{
    auto *const table = qobject_cast<QTableView *>(grid());
    QVERIFY(table->isColumnHidden(0) && table->isColumnHidden(1));
    ViewTables::setState(m_table, 3, "VR", "Range");
    QVERIFY(table->isColumnHidden(0) && !table->isColumnHidden(1));
    ViewTables::setState(m_table, 3, "", "Range"); // it may come back, so the column stays
    QVERIFY(!table->isColumnHidden(1));
    QVERIFY(table->columnWidth(1) < 2 * grid()->iconSize().width());
    m_view->setTable(TestTables::screws()); // columns of variables are never hidden
    for (int column = 0; column < m_view->model()->columnCount(); ++column)
        QVERIFY(!table->isColumnHidden(column));
    m_view->setTable(m_table);
    QVERIFY(table->isColumnHidden(0) && !table->isColumnHidden(1));
}

void tst_VkTableView::iconsOfSelectedLinesStayClear()
{
    ViewTables::setState(m_table, 2, "M");
    const auto iconColour = [&](int row) {
        QTest::qWait(0);
        return grid()->viewport()->grab().toImage().pixelColor(cellAt(row, 0));
    };
    const QColor plain = iconColour(1);
    QCOMPARE(plain, QColor(Qt::red));
    m_table.setSelection(LineId(2), true);
    QCOMPARE(iconColour(1), plain);
}

void tst_VkTableView::firstAndLastLineByKeyboard()
{
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    click(1, 3);
    grid()->setFocus();
    key(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(selected(), QList<int>({4}));
    QCOMPARE(m_table.getSelection(), LineId(4));
    key(Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(selected(), QList<int>({1}));
    key(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(selected().size(), 4);
}

void tst_VkTableView::statusToolTip()
{
    int asked = 0;
    QList<int> numbers;
    m_table.setOptions(ViewTables::options(m_image, &asked, &numbers));
    m_table.invalidate(Content::InvalidateColumns, true);
    ViewTables::setState(m_table, 2, "C");
    asked = 0;
    QHelpEvent event(QEvent::ToolTip, cellAt(1, 0), grid()->viewport()->mapToGlobal(cellAt(1, 0)));
    QApplication::sendEvent(grid()->viewport(), &event);
    QCOMPARE(asked, 1);
    QCOMPARE(numbers, QList<int>({2, 2, 0}));
    QCOMPARE(QToolTip::text(), QString("asked for line 2"));
    QToolTip::hideText();
}

void tst_VkTableView::cutTextHasAToolTip()
{
    const auto toolTipAt = [&](int row, int column) {
        QToolTip::hideText();
        const QPoint place = cellAt(row, column);
        QHelpEvent event(QEvent::ToolTip, place, grid()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(grid()->viewport(), &event);
        return QToolTip::text();
    };
    const int note = m_view->model()->columnOf(m_table.getVar(u"Note").getVarId());
    QCOMPARE(toolTipAt(1, note), QString());
    qobject_cast<QTableView *>(grid())->setColumnWidth(note, 30);
    QCOMPARE(toolTipAt(1, note), QString("<p>galvanised</p>"));
    QCOMPARE(toolTipAt(3, note), QString("<p>a\u00a0\"b\"</p>"));
    QToolTip::hideText();
}

void tst_VkTableView::rangesAreReadFromTheirBegin()
{
    const auto alignment = [&](QStringView name) {
        const VkTableModel *const model = m_view->model();
        const int column = model->columnOf(m_table.getVar(name).getVarId());
        const QVariant caption = model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        const QVariant cell = model->index(0, column).data(Qt::TextAlignmentRole);
        return caption == cell ? Qt::Alignment(cell.toInt()) & Qt::AlignHorizontal_Mask
                               : Qt::Alignment();
    };
    QCOMPARE(alignment(u"Dia"), Qt::AlignRight);
    QCOMPARE(alignment(u"L"), Qt::AlignLeft);
    QCOMPARE(alignment(u"Note"), Qt::AlignLeft);
}

QTEST_MAIN(tst_VkTableView)
#include "tst_VkTableView.moc"
