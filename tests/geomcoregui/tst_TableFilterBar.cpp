#include "GridFixture.h"

#include <geomcoregui/table/TableFilterBar.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QToolButton>

#include <memory>

class tst_TableFilterBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void hiddenAtFirst();
    void anEditForEachVariable();
    void editsStandOverTheirColumns();
    void filtersAtOnce();
    void hidingEndsTheFilters();
    void clearButton();
    void filtersFromElsewhereAreShown();
    void columnsComeAndGo();
    void anotherTable();
    void keys();

private:
    [[nodiscard]] QLineEdit *edit(int column) const { return m_bar->editOf(column); }

    std::unique_ptr<GridFixture> m_grid;
    TableFilterBar *m_bar = nullptr;
};

void tst_TableFilterBar::init()
{
    m_grid = std::make_unique<GridFixture>();
    m_bar = new TableFilterBar(m_grid->grid, &m_grid->model, &m_grid->window);
    m_grid->layout.insertWidget(0, m_bar);
    m_grid->show();
}

void tst_TableFilterBar::hiddenAtFirst()
{
    QVERIFY(!m_bar->isVisible());
    QVERIFY(!edit(2)); // made when they are needed
    QCOMPARE(m_bar->sizeHint(), QSize(0, QLineEdit().sizeHint().height()));
}

void tst_TableFilterBar::anEditForEachVariable()
{
    m_bar->setShown(true);
    QVERIFY(!edit(0) && !edit(1)); // status columns
    QStringList names;
    for (int column = 2; column < 6; ++column) {
        QVERIFY(edit(column)->isVisible());
        QVERIFY(!edit(column)->toolTip().isEmpty());
        QVERIFY(!edit(column)->placeholderText().isEmpty());
        names += edit(column)->objectName();
    }
    QCOMPARE(names, QStringList({"filter_Dia", "filter_L", "filter_Note", "filter_Volume"}));
    QCOMPARE(edit(4)->accessibleName(), QString("Spaltenfilter Note"));
}

void tst_TableFilterBar::editsStandOverTheirColumns()
{
    m_bar->setShown(true);
    QHeaderView *const header = m_grid->grid->horizontalHeader();
    const auto stand = [&] {
        for (int column = 2; column < 6; ++column) {
            const int place = m_grid->grid->viewport()->mapTo(m_grid->grid, QPoint()).x() +
                              header->sectionViewportPosition(column);
            if (edit(column)->x() != place || edit(column)->width() != header->sectionSize(column))
                return false;
        }
        return true;
    };
    QVERIFY(stand());
    header->resizeSection(3, 250);
    QVERIFY(stand());
    header->moveSection(5, 2);
    QVERIFY(stand());
    header->resizeSection(2, 900);
    QTRY_VERIFY(m_grid->grid->horizontalScrollBar()->maximum() > 0);
    m_grid->grid->horizontalScrollBar()->setValue(1);
    QVERIFY(stand());
}

void tst_TableFilterBar::filtersAtOnce()
{
    m_bar->setShown(true);
    const int all = m_grid->model.rowCount();
    QTest::keyClicks(edit(4), "bl");
    QCOMPARE(m_grid->model.quickFilter(m_grid->model.variable(4).getVarId()), QString("bl"));
    QVERIFY(m_grid->model.rowCount() > 0 && m_grid->model.rowCount() < all);
    QTest::keyClick(edit(4), Qt::Key_Backspace);
    QTest::keyClick(edit(4), Qt::Key_Backspace);
    QCOMPARE(m_grid->model.rowCount(), all);
}

void tst_TableFilterBar::hidingEndsTheFilters()
{
    m_bar->setShown(true);
    edit(4)->setText("zz");
    QCOMPARE(m_grid->model.rowCount(), 0);
    m_bar->setShown(false);
    QVERIFY(m_grid->model.rowCount() > 0);
    m_bar->setShown(true);
    QCOMPARE(edit(4)->text(), QString());
}

void tst_TableFilterBar::clearButton()
{
    m_bar->setShown(true);
    edit(2)->setText("8");
    edit(4)->setText("zz");
    QTest::mouseClick(m_bar->findChild<QToolButton *>("filterClear"), Qt::LeftButton);
    QCOMPARE(edit(2)->text() + edit(4)->text(), QString());
    QVERIFY(m_grid->model.rowCount() > 0);
}

void tst_TableFilterBar::filtersFromElsewhereAreShown()
{
    m_grid->model.setQuickFilter(m_grid->model.variable(2).getVarId(), "=8");
    m_bar->setShown(true);
    QCOMPARE(edit(2)->text(), QString("=8"));
    m_grid->model.clearQuickFilters();
    QCOMPARE(edit(2)->text(), QString());
}

void tst_TableFilterBar::columnsComeAndGo()
{
    m_bar->setShown(true);
    const QLineEdit *const note = edit(4);
    m_grid->model.setShowHiddenVars(true);
    QVERIFY(m_grid->model.columnCount() > 6);
    for (int column = 2; column < m_grid->model.columnCount(); ++column)
        QVERIFY(edit(column) && edit(column)->isVisible());
    const QPointer<QLineEdit> last = edit(m_grid->model.columnCount() - 1);
    m_grid->model.setShowHiddenVars(false);
    QVERIFY(m_bar->isVisible());
    QTRY_VERIFY(m_bar->findChildren<QLineEdit *>().size() == 4);
    QCOMPARE(edit(m_grid->model.columnCount() - 2), note);
    QVERIFY(last.isNull() || last->objectName() == "filter_Volume");
}

void tst_TableFilterBar::anotherTable()
{
    m_bar->setShown(true);
    edit(4)->setText("bl");
    m_grid->model.setTable(ViewTables::large(3));
    QTRY_COMPARE(m_bar->findChildren<QLineEdit *>().size(), 3);
    QCOMPARE(edit(0)->objectName(), QString("filter_A"));
    QCOMPARE(edit(2)->text(), QString());
}

void tst_TableFilterBar::keys()
{
    m_grid->window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_grid->window));
    m_bar->setShown(true);
    edit(4)->setFocus();
    QTest::keyClicks(edit(4), "bl");
    QTest::keyClick(edit(4), Qt::Key_Escape);
    QCOMPARE(edit(4)->text(), QString());
    QVERIFY(edit(4)->hasFocus());
    QTest::keyClick(edit(4), Qt::Key_Escape);
    QVERIFY(m_grid->grid->hasFocus());
    edit(4)->setFocus();
    QTest::keyClicks(edit(4), "bl");
    QTest::keyClick(edit(4), Qt::Key_Down);
    QVERIFY(m_grid->grid->hasFocus());
    QCOMPARE(edit(4)->text(), QString("bl"));
}

QTEST_MAIN(tst_TableFilterBar)
#include "tst_TableFilterBar.moc"
