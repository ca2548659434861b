#include "../support/GermanTexts.h"

// What a user chooses about the columns and rows of a table view, and that it comes back.
#include "ViewTables.h"

#include <core/config/PConfigInst.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplication.h>
#include <gui/views/ElidedLabel.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class tst_TableChoices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void valuesByKeyboard();
    void valuesWithoutTheChosenOnes();
    void missingValuesAreCountedToo();
    void rareValuesAreLeftOut();
    void hitsAreTold();
    void columnsAreHidden();
    void theLastColumnStays();
    void columnsAreMoved();
    void filtersComeBackWithTheTable();
    void filtersAreNotKeptUnlessWanted();

private:
    void openAnew(bool kept = true);
    void show(const VKTab::ContentRef &table) const { m_view->setTable(table); }
    [[nodiscard]] QTableView *grid() const { return qobject_cast<QTableView *>(m_view->grid()); }
    [[nodiscard]] QWidget *bar() const { return m_view->findChild<QWidget *>("filterBar"); }
    [[nodiscard]] QLineEdit *edit(const char *name) const
    {
        return bar()->findChild<QLineEdit *>(QStringLiteral("filter_") + QLatin1String(name));
    }
    /// The list of values, opened by the menu.
    [[nodiscard]] QWidget *values(const char *columnName) const
    {
        choose(menuRow(columnName, "values"));
        return bar()->findChild<QWidget *>("valueList");
    }
    [[nodiscard]] static QListWidget *listIn(const QWidget *popup)
    {
        return popup->findChild<QListWidget *>("values");
    }
    [[nodiscard]] QLabel *hits() const { return m_view->findChild<QLabel *>("filterHits"); }
    [[nodiscard]] int column(const char *name) const
    {
        return m_view->model()->columnOf(m_table.getVar(QString::fromLatin1(name)).getVarId());
    }
    /// Columns of variables as the user sees them.
    [[nodiscard]] QString shown() const
    {
        QStringList names;
        const QHeaderView *const header = grid()->horizontalHeader();
        for (int visual = 0; visual < header->count(); ++visual) {
            const int logical = header->logicalIndex(visual);
            if (!header->isSectionHidden(logical) &&
                logical >= m_view->model()->statusColumnCount())
                names += m_view->model()->variable(logical).getName();
        }
        return names.join(u' ');
    }
    /// A row of the menu that the keyboard opens in a column.
    [[nodiscard]] QAction *menuRow(const char *columnName, const char *row) const
    {
        grid()->selectionModel()->setCurrentIndex(m_view->model()->index(0, column(columnName)),
                                                  QItemSelectionModel::NoUpdate);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                grid()->viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(grid()->viewport(), &event);
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        return menu ? menu->findChild<QAction *>(QLatin1String(row)) : nullptr;
    }
    static void choose(QAction *row)
    {
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        row->trigger();
        if (menu)
            menu->close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<PApplication> m_host;
    VKTab::ContentRef m_table;
    std::unique_ptr<VkTableView> m_view;
};

void tst_TableChoices::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_host = std::make_unique<PApplication>(
        PRefPtr<PConfig>(new PConfigInst(m_dir->filePath("app.cfg"), false)));
    m_table = TestTables::screws();
    openAnew();
}

void tst_TableChoices::cleanup()
{
    m_view.reset();
    m_host.reset();
}

void tst_TableChoices::openAnew(bool kept)
{
    m_view.reset();
    m_view = std::make_unique<VkTableView>();
    m_view->setFiltersKept(kept);
    m_view->resize(700, 400);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    show(m_table);
}

void tst_TableChoices::valuesByKeyboard()
{
    m_view->showFilterBar(true);
    edit("Note")->setFocus();
    QTest::keyClick(edit("Note"), Qt::Key_Down, Qt::AltModifier);
    const QPointer<QWidget> popup = bar()->findChild<QWidget *>("valueList");
    QVERIFY(popup && popup->isVisible());
    QListWidget *const list = listIn(popup);
    QVERIFY(list->hasFocus());
    QCOMPARE(list->accessibleName(), QString("Werte der Spalte Note"));
    QCOMPARE(list->item(1)->text(), QString("blank  (2)"));
    QTest::keyClick(list, Qt::Key_B); // goes to it
    QTest::keyClick(list, Qt::Key_Space);
    QCOMPARE(edit("Note")->text(), QString("=blank"));
    QCOMPARE(m_view->model()->rowCount(), 2);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Space);
    QCOMPARE(m_view->model()->rowCount(), 3);
    QVERIFY2(edit("Note")->text().contains(" | ="), qPrintable(edit("Note")->text()));
    QTest::keyClick(popup, Qt::Key_Escape);
    QTRY_VERIFY(!popup);
    QCOMPARE(m_view->model()->rowCount(), 3);
    // What passes is ticked.
    const QListWidget *const again = listIn(values("Note"));
    QCOMPARE(again->item(1)->checkState(), Qt::Checked);
    QCOMPARE(again->item(0)->checkState(), Qt::Unchecked);
}

void tst_TableChoices::valuesWithoutTheChosenOnes()
{
    QVERIFY(!bar()->isVisible());
    const QWidget *const popup = values("Note");
    QVERIFY(bar()->isVisible());
    popup->findChild<QCheckBox *>("others")->setChecked(true);
    QCOMPARE(m_view->model()->rowCount(), 4); // nothing is left out yet
    listIn(popup)->item(1)->setCheckState(Qt::Checked);
    QCOMPARE(edit("Note")->text(), QString("!=blank"));
    QCOMPARE(m_view->model()->rowCount(), 2);
}

void tst_TableChoices::missingValuesAreCountedToo()
{
    const QListWidget *const list = listIn(values("L"));
    QCOMPARE(list->item(list->count() - 1)->text(), QString("(leer)  (1)"));
}

void tst_TableChoices::rareValuesAreLeftOut()
{
    m_table = ViewTables::large(1005);
    show(m_table);
    const QListWidget *const list = listIn(values("C"));
    QCOMPARE(list->count(), 1001);
    QCOMPARE(list->item(1000)->text(), QString("und 5 seltenere Werte"));
    openAnew();
    QCOMPARE(listIn(values("B"))->count(), 10);
}

void tst_TableChoices::hitsAreTold()
{
    QVERIFY(hits()->isHidden());
    m_view->showFilterBar(true);
    const int narrow = m_view->minimumSizeHint().width();
    edit("Note")->setText("=blank");
    QVERIFY(!hits()->isHidden());
    QCOMPARE(hits()->text(), QString("2 von 4 Zeilen"));
    edit("Note")->setText("zzz");
    QCOMPARE(hits()->text(), QString("Keine Zeile passt zu den Spaltenfiltern"));
    // It makes nothing wider.
    QCOMPARE(m_view->minimumSizeHint().width(), narrow);
    QCOMPARE(hits()->toolTip(), hits()->text());
    // Cut with dots, not in the middle of a letter.
    const auto *const label = static_cast<const ElidedLabel *>(hits());
    m_view->resize(700, m_view->height());
    QTRY_COMPARE(label->shownText(), label->text());
    m_view->resize(120, m_view->height());
    QTRY_VERIFY2(label->shownText().endsWith(u'…'), qPrintable(label->shownText()));
    QLabel cut(label->shownText(), hits()->parentWidget());
    cut.resize(label->size());
    QCOMPARE(hits()->grab().toImage(), cut.grab().toImage());
    m_view->showFilterBar(false);
    QVERIFY(hits()->isHidden());
}

void tst_TableChoices::columnsAreHidden()
{
    QCOMPARE(shown(), QString("Dia L Note Volume"));
    choose(menuRow("L", "hideColumn"));
    QCOMPARE(shown(), QString("Dia Note Volume"));
    // Of this table alone, and for the next time.
    const VKTab::ContentRef own = m_table;
    show(ViewTables::large(3));
    QCOMPARE(shown(), QString("A B C"));
    show(own);
    QCOMPARE(shown(), QString("Dia Note Volume"));
    openAnew();
    QCOMPARE(shown(), QString("Dia Note Volume"));
    m_view->setZoomFactor(1.5);
    QCOMPARE(shown(), QString("Dia Note Volume"));
    choose(menuRow("Dia", "showColumns"));
    QCOMPARE(shown(), QString("Dia L Note Volume"));
    QAction *const row = menuRow("Dia", "showColumns");
    QVERIFY(!row->isEnabled());
    QApplication::activePopupWidget()->close();
}

void tst_TableChoices::theLastColumnStays()
{
    for (const char *const name : {"L", "Note", "Volume"})
        choose(menuRow(name, "hideColumn"));
    QCOMPARE(shown(), QString("Dia"));
    QVERIFY(!menuRow("Dia", "hideColumn")->isEnabled());
    QApplication::activePopupWidget()->close();
}

void tst_TableChoices::columnsAreMoved()
{
    choose(menuRow("L", "hideColumn"));
    choose(menuRow("Note", "columnLeft")); // over the hidden one
    QCOMPARE(shown(), QString("Note Dia Volume"));
    choose(menuRow("Dia", "columnRight"));
    QCOMPARE(shown(), QString("Note Volume Dia"));
    QVERIFY(!menuRow("Dia", "columnRight")->isEnabled());
    QApplication::activePopupWidget()->close();
    const VKTab::ContentRef own = m_table;
    show(ViewTables::large(3));
    QCOMPARE(shown(), QString("A B C"));
    show(own);
    QCOMPARE(shown(), QString("Note Volume Dia"));
    openAnew();
    QCOMPARE(shown(), QString("Note Volume Dia"));
}

void tst_TableChoices::filtersComeBackWithTheTable()
{
    m_view->showFilterBar(true);
    edit("Note")->setText("=blank | !a;b:c");
    grid()->horizontalHeader()->setSortIndicator(column("Dia"), Qt::DescendingOrder);
    m_view->showFilterBar(true);
    const VKTab::ContentRef own = m_table;
    show(ViewTables::large(3));
    QVERIFY(!m_view->model()->hasQuickFilter());
    QCOMPARE(m_view->model()->sortColumn(), -1);
    QCOMPARE(m_view->model()->rowCount(), 3);
    show(own);
    QCOMPARE(edit("Note")->text(), QString("=blank | !a;b:c"));
    QCOMPARE(m_view->model()->sortColumn(), column("Dia"));
    QCOMPARE(m_view->model()->sortOrder(), Qt::DescendingOrder);
    openAnew();
    QVERIFY(bar()->isVisible()); // a filter is seen
    QCOMPARE(edit("Note")->text(), QString("=blank | !a;b:c"));
    QCOMPARE(m_view->model()->sortColumn(), column("Dia"));
    m_view->showFilterBar(false);
    grid()->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    openAnew();
    QVERIFY(!m_view->model()->hasQuickFilter());
    QCOMPARE(m_view->model()->sortColumn(), -1);
}

void tst_TableChoices::filtersAreNotKeptUnlessWanted()
{
    openAnew(false);
    m_view->showFilterBar(true);
    edit("Note")->setText("=blank");
    openAnew(false);
    QVERIFY(!m_view->model()->hasQuickFilter());
    openAnew();
    QVERIFY(!m_view->model()->hasQuickFilter());
}

QTEST_MAIN(tst_TableChoices)
#include "tst_TableChoices.moc"
