#include "../support/TestCatalog.h"

#include <mapping/table/TablePane.h>

#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/views/ElidedCheckBox.h>

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

class tst_TablePane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names();
    void view();
    void buttons();
    void boxes();
    void texts();
    void narrowBox();
};

void tst_TablePane::names()
{
    const TablePane pane("left", nullptr);
    QCOMPARE(pane.view()->objectName(), QString("leftView"));
    QCOMPARE(pane.pathLabel()->objectName(), QString("leftPathLabel"));
    QCOMPARE(pane.designationLabel()->objectName(), QString("leftDesignationLabel"));
    QCOMPARE(pane.numberLabel()->objectName(), QString("leftNumberLabel"));
    QCOMPARE(pane.numberLabel()->accessibleName(), QString("Normnummer"));
    QVERIFY(pane.pathLabel()->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
}

void tst_TablePane::view()
{
    TestCatalog catalog;
    catalog.write("new/a.prj", "D,k:n,I:i,T:n\nM8,5,1,2\n",
                  [](auto &table) { table.fields[3].kind = VKTab::FieldKind::Topology; });
    const TablePane pane("left", nullptr);
    QVERIFY(!pane.view()->isHeaderVisible());
    const VKTab::ContentRef table = catalog.read("new/a.prj");
    pane.view()->setTable(table);
    const auto isShown = [&](QStringView name) {
        return pane.view()->model()->columnOf(table.getVar(name).getVarId()) >= 0;
    };
    QVERIFY(isShown(u"k"));
    QVERIFY(isShown(u"I"));
    QVERIFY(!isShown(u"T"));
}

void tst_TablePane::buttons()
{
    TablePane pane("left", nullptr);
    QPushButton *const first = pane.addButton("btnFirst", ":/bitmaps/line.png", "Does it (v)");
    QPushButton *const second = pane.addButton("btnSecond", ":/bitmaps/line.png", "Does more");
    QCOMPARE(first->objectName(), QString("btnFirst"));
    QCOMPARE(first->toolTip(), QString("Does it (v)"));
    QCOMPARE(first->accessibleName(), first->toolTip());
    pane.resize(600, 300);
    pane.show();
    QVERIFY(QTest::qWaitForWindowExposed(&pane));
    QVERIFY(first->x() > pane.numberLabel()->x());
    QVERIFY(second->x() > first->x());
    pane.view()->setFocus();
    QTest::mouseClick(first, Qt::LeftButton);
    QVERIFY(!first->hasFocus());
}

void tst_TablePane::boxes()
{
    TablePane pane("left", nullptr);
    const QCheckBox *const box = pane.addBox("chkBox", "Only these");
    QCOMPARE(box->objectName(), QString("chkBox"));
    QCOMPARE(box->text(), QString("Only these"));
    const auto *const layout = qobject_cast<QVBoxLayout *>(pane.layout());
    QCOMPARE(layout->indexOf(box), layout->count() - 1);
    QCOMPARE(layout->itemAt(layout->count() - 2)->widget(), pane.view());
}

void tst_TablePane::texts()
{
    TestCatalog catalog;
    catalog.write("new/a.prj", "k:n\n5\n", [](auto &table) { table.normNumber = "DIN 1"; });
    TablePane pane("left", nullptr);
    pane.showPath("cat/very/long/a.prj");
    pane.showNumberOf(catalog.read("new/a.prj"));
    QCOMPARE(pane.pathLabel()->text(), QString("cat/very/long/a.prj"));
    QCOMPARE(pane.pathLabel()->toolTip(), QString("cat/very/long/a.prj"));
    QCOMPARE(pane.numberLabel()->text(), QString("DIN 1"));
    pane.clearTexts();
    QCOMPARE(pane.pathLabel()->text() + pane.pathLabel()->toolTip() + pane.numberLabel()->text(),
             QString());
}

void tst_TablePane::narrowBox()
{
    TablePane pane("left", nullptr);
    auto *const box = qobject_cast<ElidedCheckBox *>(pane.addBox("chkBox", "Only these &lines"));
    QVERIFY(box);
    QVERIFY(box->minimumSizeHint().width() < box->sizeHint().width());
    box->resize(box->sizeHint());
    QCOMPARE(box->shownText(), QString("Only these &lines"));
    box->resize(box->minimumSizeHint());
    QVERIFY(box->shownText().endsWith(QChar(0x2026)));
    QCOMPARE(box->text(), QString("Only these &lines"));
    QCOMPARE(box->toolTip(), QString("Only these &lines"));
}

QTEST_MAIN(tst_TablePane)
#include "tst_TablePane.moc"
