#include "../support/SlotOrder.h"
#include "ViewTables.h"

#include <core/config/PConfigInst.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/SignalConnect.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplication.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <QWheelEvent>

using namespace VKTab;

/// The view as a user meets it: mouse, keys, menus.
class tst_VkTableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void slotOrder();
    void emptyAndFilled();
    void titleShowsTheTable();
    void clickSelectsTheTablesLine();
    void keysSelectTheTablesLine();
    void keysSelectTheLineThatGotTheFocus_data();
    void keysSelectTheLineThatGotTheFocus();
    void tableSelectsTheViewsLine();
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

    void headerClickSorts();
    void columnsKeepTheirWidths();
    void columnsFitTheirContents();
    void commandsRunOnce();
    void zoomByKeysAndWheel();
    void zoomIsLimited();
    void copiesATable();
    void findBar();
    void filterBar();
    void lettersAreLeftToShortcuts();
    void scrollPositions();
    void namesForAssistiveTools();
    void largeTable();

private:
    [[nodiscard]] QTableView *grid() const { return qobject_cast<QTableView *>(m_view->grid()); }
    [[nodiscard]] QPoint cellAt(int row, int column) const
    {
        return grid()->visualRect(m_view->model()->index(row, column)).center();
    }
    void click(int row, int column, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(grid()->viewport(), button, modifiers, cellAt(row, column));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(grid(), key, modifiers);
    }
    void contextMenu(const QPoint &position)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                                grid()->viewport()->mapToGlobal(position));
        QApplication::sendEvent(grid()->viewport(), &event);
    }
    [[nodiscard]] QList<int> selected() const
    {
        QList<int> result;
        for (const LineId &id : m_view->getSelectedLines())
            result.append(id.value(0));
        return result;
    }
    template<class Widget>
    [[nodiscard]] Widget *part(const char *name) const
    {
        return m_view->findChild<Widget *>(QString::fromLatin1(name));
    }

    QTemporaryDir m_dir;
    QString m_image;
    ContentRef m_table;
    std::unique_ptr<VkTableView> m_view;
};

void tst_VkTableView::initTestCase()
{
    m_image = m_dir.filePath("state.png");
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(m_image));
}

void tst_VkTableView::init()
{
    m_table = TestTables::screws();
    m_table.setOptions(ViewTables::options(m_image));
    m_view = std::make_unique<VkTableView>();
    m_view->resize(700, 300);
    m_view->setTable(m_table);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void tst_VkTableView::cleanup()
{
    m_view.reset();
    m_table = ContentRef();
}

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

void tst_VkTableView::headerClickSorts()
{
    QHeaderView *const header = grid()->horizontalHeader();
    const QPoint place(header->sectionViewportPosition(2) + header->sectionSize(2) / 2,
                       header->height() / 2);
    const auto clickHeader = [&] {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    };
    clickHeader();
    QCOMPARE(m_view->model()->sortColumn(), 2);
    QCOMPARE(m_view->model()->sortOrder(), Qt::AscendingOrder);
    clickHeader();
    QCOMPARE(m_view->model()->lineId(0), LineId(4));
    clickHeader();
    QCOMPARE(m_view->model()->sortColumn(), -1);
    QCOMPARE(m_view->model()->lineId(0), LineId(1));
    // Another column in front: the indicator goes with its column.
    clickHeader();
    m_table.getOptions()->setStatusColumnsShown(false);
    m_table.invalidate(Content::InvalidateColumns, true);
    QCOMPARE(m_view->model()->sortColumn(), 0);
    QCOMPARE(header->sortIndicatorSection(), 0);
}

void tst_VkTableView::columnsKeepTheirWidths()
{
    const QTemporaryDir dir;
    const PApplication host(PRefPtr<PConfig>(new PConfigInst(dir.filePath("app.cfg"), false)));
    m_view->setTable(m_table);
    const int other = grid()->columnWidth(3);
    grid()->setColumnWidth(2, 133);
    m_table.invalidate(Content::InvalidateFilter, true);
    m_view->model()->setShowHiddenVars(true);
    QCOMPARE(grid()->columnWidth(2), 133);
    m_view.reset();

    VkTableView again;
    again.setTable(TestTables::screws()); // no status columns: the variable counts, not its place
    auto *const table = qobject_cast<QTableView *>(again.grid());
    QCOMPARE(table->columnWidth(0), 133);
    QCOMPARE(table->columnWidth(1), other);
    again.setTable(ViewTables::large(3));
    QVERIFY(table->columnWidth(0) != 133);
    again.setTable(m_table);
    again.setZoomFactor(2);
    QCOMPARE(table->columnWidth(2), 266);
}

void tst_VkTableView::columnsFitTheirContents()
{
    const QTemporaryDir dir;
    const PApplication host(PRefPtr<PConfig>(new PConfigInst(dir.filePath("app.cfg"), false)));
    m_view->setTable(m_table);
    QHeaderView *const header = grid()->horizontalHeader();
    const int dia = grid()->columnWidth(2);
    const int note = grid()->columnWidth(4);
    grid()->setColumnWidth(2, 203);
    grid()->setColumnWidth(4, 207);
    const QPoint edge(header->sectionViewportPosition(2) + 202, header->height() / 2);
    QTest::mouseMove(header->viewport(), edge);
    QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, edge);
    QCOMPARE(grid()->columnWidth(2), dia);
    QCOMPARE(grid()->columnWidth(4), 207);
    grid()->setColumnWidth(2, 203);
    contextMenu(cellAt(0, 2));
    QApplication::activePopupWidget()->findChild<QAction *>("fitColumns")->trigger();
    QApplication::activePopupWidget()->close();
    QCOMPARE(grid()->columnWidth(2), dia);
    QCOMPARE(grid()->columnWidth(4), note);
    m_view->setZoomFactor(2); // nothing is remembered that the user took back
    m_view->setZoomFactor(1);
    QCOMPARE(grid()->columnWidth(4), note);
}

// The system asks for a key as a shortcut first, and then sends it.
void tst_VkTableView::commandsRunOnce()
{
    const auto send = [this](QEvent::Type type, int code, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(type, code, modifiers);
        event.ignore();
        QApplication::sendEvent(grid(), &event);
        return event.isAccepted();
    };
    auto *const bar = part<QWidget>("filterBar");
    const Qt::KeyboardModifiers both = Qt::ControlModifier | Qt::ShiftModifier;
    QVERIFY(send(QEvent::ShortcutOverride, Qt::Key_F, both));
    QVERIFY(!bar->isVisible());
    QVERIFY(send(QEvent::KeyPress, Qt::Key_F, both));
    QVERIFY(bar->isVisible());
    QVERIFY(send(QEvent::ShortcutOverride, Qt::Key_Plus, Qt::ControlModifier));
    QCOMPARE(m_view->getZoomFactor(), 1.0);
    QVERIFY(!send(QEvent::ShortcutOverride, Qt::Key_V, Qt::NoModifier));
    QVERIFY(!send(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier));
}

void tst_VkTableView::zoomByKeysAndWheel()
{
    QCOMPARE(m_view->getZoomFactor(), 1.0);
    const int height = grid()->rowHeight(0);
    const int width = grid()->columnWidth(4);
    key(Qt::Key_Plus, Qt::ControlModifier);
    key(Qt::Key_Plus, Qt::ControlModifier);
    key(Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(m_view->getZoomFactor() > 1.3);
    QVERIFY(grid()->rowHeight(0) > height);
    QVERIFY(grid()->columnWidth(4) > width);
    key(Qt::Key_Minus, Qt::ControlModifier);
    QVERIFY(qFuzzyCompare(m_view->getZoomFactor(), 1.21));
    key(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(m_view->getZoomFactor(), 1.0);
    QCOMPARE(grid()->rowHeight(0), height);
    const QPointF place = cellAt(1, 3);
    QWheelEvent wheel(place, grid()->viewport()->mapToGlobal(place), {}, QPoint(0, 120), {},
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(grid()->viewport(), &wheel);
    QVERIFY(qFuzzyCompare(m_view->getZoomFactor(), 1.1));
}

void tst_VkTableView::zoomIsLimited()
{
    m_view->setZoomFactor(100);
    QCOMPARE(m_view->getZoomFactor(), VkTableView::MaxZoomFactor);
    m_view->setZoomFactor(0);
    QCOMPARE(m_view->getZoomFactor(), VkTableView::MinZoomFactor);
    m_view->setZoomFactor(2);
    QCOMPARE(grid()->iconSize(), QSize(32, 32));
    QVERIFY(grid()->rowHeight(0) >= 32);
}

void tst_VkTableView::copiesATable()
{
    QGuiApplication::clipboard()->setText("before");
    m_view->copySelection();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("before"));
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    click(0, 3);
    click(3, 3, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->text(), QString("Dia\tL\tNote\tVolume\n"
                                   "8\t10;12;16\tblank\t16\n"
                                   "16\t\t\"a \"\"b\"\"\"\t32\n"));
    QVERIFY(data->html().contains("<td align=\"right\">8</td>"));
    QVERIFY(data->html().contains("<td>a &quot;b&quot;</td>"));
    QCOMPARE(data->html().count("<tr>"), 3);
    grid()->horizontalHeader()->moveSection(4, 2); // as the columns stand
    m_view->copySelection();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith("Note\tDia\tL\tVolume\n"));
}

void tst_VkTableView::findBar()
{
    auto *const bar = part<QWidget>("findBar");
    auto *const edit = part<QLineEdit>("findEdit");
    const auto *const result = part<QLabel>("findResult");
    QVERIFY(!bar->isVisible());
    key(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(bar->isVisible());
    QTest::keyClicks(edit, "blank");
    QCOMPARE(grid()->currentIndex().row(), 0);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(grid()->currentIndex().row(), 2);
    QCOMPARE(m_table.getSelection(), LineId(3));
    QCOMPARE(result->text(), QString());
    QTest::keyClick(edit, Qt::Key_F3);
    QCOMPARE(grid()->currentIndex().row(), 0);
    QCOMPARE(result->text(), QString("Am Anfang der Tabelle fortgesetzt"));
    QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(grid()->currentIndex().row(), 2);
    QCOMPARE(result->text(), QString("Am Ende der Tabelle fortgesetzt"));
    QTest::mouseClick(part<QToolButton>("findPrevious"), Qt::LeftButton);
    QCOMPARE(grid()->currentIndex().row(), 0);
    QTest::keyClicks(edit, "zz");
    QCOMPARE(result->text(), QString("Nicht gefunden"));
    QCOMPARE(grid()->currentIndex().row(), 0);
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(!bar->isVisible());
    edit->setText("blank");
    key(Qt::Key_F3);
    QCOMPARE(grid()->currentIndex().row(), 2);
    key(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(grid()->currentIndex().row(), 0);
}

void tst_VkTableView::filterBar()
{
    auto *const bar = part<QWidget>("filterBar");
    QVERIFY(!bar->isVisible());
    key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(bar->isVisible());
    auto *const edit = part<QLineEdit>("filter_Note");
    QVERIFY(edit && edit->isVisible());
    QVERIFY(!part<QLineEdit>("filter_Weight")); // hidden variable
    QCOMPARE(edit->mapTo(m_view.get(), QPoint()).x(),
             grid()->viewport()->mapTo(m_view.get(), QPoint()).x() +
                 grid()->columnViewportPosition(4));
    QCOMPARE(edit->width(), grid()->columnWidth(4));
    QTest::keyClicks(edit, "blank");
    QCOMPARE(m_view->model()->rowCount(), 2);
    QCOMPARE(edit->text(), QString("blank"));
    grid()->setColumnWidth(4, 150);
    QCOMPARE(edit->width(), 150);
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(m_view->model()->rowCount(), 4);
    QTest::keyClicks(edit, "galv");
    QTest::mouseClick(part<QToolButton>("filterClear"), Qt::LeftButton);
    QCOMPARE(m_view->model()->rowCount(), 4);
    QCOMPARE(edit->text(), QString());
    QTest::keyClicks(edit, "galv");
    key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!bar->isVisible());
    QCOMPARE(m_view->model()->rowCount(), 4);
    m_view->showFilterBar(true);
    QCOMPARE(edit->text(), QString());
    m_view->setTable(ViewTables::large(3));
    QVERIFY(part<QLineEdit>("filter_A")->isVisible());
}

void tst_VkTableView::lettersAreLeftToShortcuts()
{
    click(0, 4);
    key(Qt::Key_G); // "galvanised" stands in the next line
    QCOMPARE(grid()->currentIndex().row(), 0);
}

void tst_VkTableView::scrollPositions()
{
    m_view->setTable(ViewTables::large(1000));
    m_view->setVerticalScrollPos(500);
    QCOMPARE(m_view->getVerticalScrollPos(), 500);
    m_view->setVerticalScrollPos(1 << 30);
    QCOMPARE(m_view->getVerticalScrollPos(), grid()->verticalScrollBar()->maximum());
    m_view->setVerticalScrollPos(0);
    grid()->setColumnWidth(0, 2000);
    QTest::qWait(0);
    m_view->setHorizontalScrollPos(300);
    QCOMPARE(m_view->getHorizontalScrollPos(), 300);
    m_view->getTable().setSelection(LineId(900), true); // a line comes into view, columns stay
    QCOMPARE(m_view->getHorizontalScrollPos(), 300);
    QVERIFY(m_view->getVerticalScrollPos() > 0);
    // A filter keeps what is in view, another table begins at its begin.
    m_view->setVerticalScrollPos(400);
    m_view->getTable().setSelection(LineId(), true);
    m_view->model()->setQuickFilter(m_view->model()->variable(0).getVarId(), ">1");
    QCOMPARE(m_view->model()->rowCount(), 999);
    QCOMPARE(m_view->getHorizontalScrollPos(), 300);
    QCOMPARE(m_view->getVerticalScrollPos(), 400);
    m_view->setTable(ViewTables::large(1000));
    QCOMPARE(m_view->getVerticalScrollPos(), 0);
}

void tst_VkTableView::namesForAssistiveTools()
{
    QCOMPARE(grid()->accessibleName(), QString("Tabelle DIN 931 Sechskantschraube"));
    const auto buttons = m_view->findChildren<QToolButton *>();
    QVERIFY(buttons.size() >= 4);
    for (const QToolButton *const button : buttons) {
        if (!button->objectName().startsWith("qt_") && button->parentWidget() != nullptr &&
            !qobject_cast<QLineEdit *>(button->parentWidget()))
            QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(button->objectName()));
    }
    QCOMPARE(part<QLineEdit>("findEdit")->accessibleName(), QString("In der Tabelle suchen"));
    m_view->showFilterBar(true);
    QCOMPARE(part<QLineEdit>("filter_Dia")->accessibleName(), QString("Spaltenfilter Dia"));
}

void tst_VkTableView::largeTable()
{
    ContentRef table = ViewTables::large(100000);
    table.setOptions(ViewTables::options(m_image));
    m_view->setTable(table);
    table.setSelection(LineId(1), true);
    int announced = 0;
    const boost::signals2::scoped_connection connection =
        table.signalConnect().connectSignalLineSelected(
            [&](const Content &, const LineId &, bool) { return ++announced; }, ConnectGroupUser);
    key(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(table.getSelection(), LineId(100000));
    QCOMPARE(announced, 2); // one line lost the selection, one got it
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    key(Qt::Key_A, Qt::ControlModifier);
    QVERIFY(announced <= 5);
    QCOMPARE(m_view->getSelectedLines().size(), 100000);
    QSignalSpy changed(m_view->model(), &QAbstractItemModel::dataChanged);
    for (const LineId &id : m_view->getSelectedLines())
        ViewTables::setState(table, id.value(0), "M");
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(grid()->selectionModel()->selection().size(), 1);
}

QTEST_MAIN(tst_VkTableView)
#include "tst_VkTableView.moc"
