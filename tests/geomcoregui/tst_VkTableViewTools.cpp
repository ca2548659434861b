#include "ViewFixture.h"

#include <core/config/PConfigInst.h>
#include <geomcore/table/SignalConnect.h>
#include <gui/application/PApplication.h>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QToolButton>
#include <QWheelEvent>

using namespace VKTab;

/// What the view offers beside selecting: order, widths, zoom, clipboard, finding and filtering.
class tst_VkTableViewTools : public QObject, protected ViewFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeImage(); }
    void init() { makeView(); }
    void cleanup() { clear(); }

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
};

void tst_VkTableViewTools::headerClickSorts()
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

void tst_VkTableViewTools::columnsKeepTheirWidths()
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

void tst_VkTableViewTools::columnsFitTheirContents()
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
void tst_VkTableViewTools::commandsRunOnce()
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

void tst_VkTableViewTools::zoomByKeysAndWheel()
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

void tst_VkTableViewTools::zoomIsLimited()
{
    m_view->setZoomFactor(100);
    QCOMPARE(m_view->getZoomFactor(), VkTableView::MaxZoomFactor);
    m_view->setZoomFactor(0);
    QCOMPARE(m_view->getZoomFactor(), VkTableView::MinZoomFactor);
    m_view->setZoomFactor(2);
    QCOMPARE(grid()->iconSize(), QSize(32, 32));
    QVERIFY(grid()->rowHeight(0) >= 32);
}

void tst_VkTableViewTools::copiesATable()
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

void tst_VkTableViewTools::findBar()
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

void tst_VkTableViewTools::filterBar()
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

void tst_VkTableViewTools::lettersAreLeftToShortcuts()
{
    click(0, 4);
    key(Qt::Key_G); // "galvanised" stands in the next line
    QCOMPARE(grid()->currentIndex().row(), 0);
}

void tst_VkTableViewTools::scrollPositions()
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

void tst_VkTableViewTools::namesForAssistiveTools()
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

void tst_VkTableViewTools::largeTable()
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

QTEST_MAIN(tst_VkTableViewTools)
#include "tst_VkTableViewTools.moc"
