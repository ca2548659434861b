#include "SilentTableEditor.h"

#include <core/message/PScriptedMessageSink.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/Line.h>

#include <QDir>
#include <QMenu>
#include <QTest>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using VKTab::LineId;

namespace {

/// What line 1 shows.
QString shownValue(const VKTab::Content &table, QStringView name)
{
    return table.getLine(LineId(1), false).getValue(table.getVar(name), {}).toString();
}

constexpr const char *confirmText = "Zuordnung bestätigen";
constexpr const char *removeText = "Zuordnung dieser Zeile aufheben";
constexpr const char *removeVerifyText = "Zuordnung dieser Zeile aufheben und bestätigen";

} // namespace

class tst_TableMenus : public QObject, private SilentTableEditor
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QDir::setSearchPaths("bitmaps", {":/hostbitmaps"}); }
    void init() { begin(); }
    void cleanup() { end(); }

    void sourceMenu();
    void sourceMenuIcons();
    void sourceMenuWithAnotherTargetLine();
    void sourceMenuWithoutTarget();
    void sourceMenuOfSeveralLines();
    void sourceMenuRowsAct();
    void targetMenu();
    void menusBesideLines();
    void menusOfHeaders();

    void iconOfPassingLine();
    void iconOfFailingLine();
    void iconLeavesHiddenRangesAlone();
    void iconOfUnknownKey();

private:
    /// A line whose condition does not hold for 20, with columns hidden as wanted.
    void loadFailingLine(const TestCatalog::Edit &edit = {},
                         const QString &condition = "L .LT. 15");
};

void tst_TableMenus::sourceMenuIcons()
{
    f->load();
    f->select(2);
    QMenu *const menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    const QStringList icons = {":/bitmaps/confirm_mapping.png",
                               "bitmaps:indextree/state_deleted.png", ":/bitmaps/remove_verify.png",
                               ":/toolicons/actionFormatAlgorithm_16.png",
                               ":/toolicons/actionFormatRanges_16.png"};
    for (int i = 0; i < icons.size(); ++i) {
        const QImage image = QIcon(icons.at(i)).pixmap(16).toImage();
        QVERIFY(!image.isNull());
        QCOMPARE(menu->actions().at(i)->icon().pixmap(16).toImage(), image);
    }
    menu->close();
}

void tst_TableMenus::sourceMenu()
{
    f->load();
    f->select(2);
    QMenu *const menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    const QStringList texts = {
        confirmText, removeText, removeVerifyText,
        "Bedingung für die markierte Zeile generieren und in die Zwischenablage kopieren",
        "Aufgelöste Wertebereiche für diese Zeile zuordnen"};
    for (int i = 0; i < texts.size(); ++i) {
        QCOMPARE(menu->actions().at(i)->text(), texts.at(i));
        QVERIFY(menu->actions().at(i)->isEnabled());
        QCOMPARE(menu->actions().at(i)->parent(), menu);
    }
    menu->close();
}

void tst_TableMenus::sourceMenuWithAnotherTargetLine()
{
    f->load();
    f->select(2);
    f->click(f->target, 1);
    QMenu *const menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    QVERIFY(!menu->actions().at(0)->isEnabled());
    QVERIFY(menu->actions().at(1)->isEnabled());
    QVERIFY(!menu->actions().at(2)->isEnabled());
    menu->close();
}

void tst_TableMenus::sourceMenuWithoutTarget()
{
    f->catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nZZ,4711\n");
    f->load();
    f->select(3);
    QMenu *const menu = f->openMenu(f->source, 3);
    QVERIFY(menu);
    QVERIFY(menu->actions().at(0)->isEnabled());
    QVERIFY(!menu->actions().at(1)->isEnabled());
    QVERIFY(menu->actions().at(2)->isEnabled());
    menu->close();
}

void tst_TableMenus::sourceMenuOfSeveralLines()
{
    f->load();
    f->select(1);
    f->click(f->source, 2, Qt::ControlModifier);
    QVERIFY(!f->openMenu(f->source, 2));
}

void tst_TableMenus::sourceMenuRowsAct()
{
    f->load();
    f->select(2);
    QMenu *menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    TableEditorFixture::rowOf(menu, confirmText)->trigger();
    menu->close();
    QCOMPARE(entries(), QString("0:1>3/1 0:2>2/2"));
    menu = f->openMenu(f->source, 2);
    QVERIFY(menu);
    TableEditorFixture::rowOf(menu, removeText)->trigger();
    menu->close();
    QCOMPARE(entries(), QString("0:1>3/1 -:2>-1/1"));
    f->select(1);
    menu = f->openMenu(f->source, 1);
    QVERIFY(menu);
    TableEditorFixture::rowOf(menu, removeVerifyText)->trigger();
    menu->close();
    QCOMPARE(entries(), QString("-:1>-1/2 -:2>-1/1"));
}

void tst_TableMenus::targetMenu()
{
    f->load();
    f->select(2);
    QMenu *const menu = f->openMenu(f->target, 2);
    QVERIFY(menu);
    QCOMPARE(menu->actions().at(0)->text(),
             QString("Nur Zeilen anzeigen, die mehrfach zugeordnet sind"));
    QCOMPARE(menu->actions().at(1)->text(),
             QString("Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile zugeordnet sind"));
    QVERIFY(menu->actions().at(0)->icon().isNull());
    QVERIFY(menu->actions().at(1)->icon().isNull());
    QVERIFY(menu->actions().at(2)->isSeparator());
    menu->close();
}

void tst_TableMenus::menusBesideLines()
{
    f->load();
    f->select(2);
    for (VkTableView *const view : {f->source, f->target}) {
        QMenu *const menu = f->openMenu(view, 99);
        QVERIFY(menu);
        QCOMPARE(menu->actions().first()->objectName(), QString("copy"));
        menu->close();
    }
}

void tst_TableMenus::menusOfHeaders()
{
    // A view may be asked for the menu of a header while a row is known.
    struct Asking : VkTableView
    {
        using VkTableView::askPopupShow;
    };
    f->load();
    f->select(2);
    for (VkTableView *const view : {f->source, f->target}) {
        QMenu menu;
        QVERIFY((view->*(&Asking::askPopupShow))(&menu, VkTableViewBase::PopupHeader, 2));
        QVERIFY(menu.isEmpty());
        QVERIFY((view->*(&Asking::askPopupShow))(&menu, VkTableViewBase::PopupCells, 2));
        QVERIFY(!menu.isEmpty());
    }
}

void tst_TableMenus::iconOfPassingLine()
{
    f->catalog.write("old/a.prj", "D,k:r\nM8,5;6\nM9,6\nM10,7\n");
    enter(f->mapping, 0, 1, 3, ToCheck);
    f->catalog.write("new/a.prj", "D,k:r\nM10,7\nM9,66\nM8,5;6\n");
    f->load();
    f->clickIcon(f->source, 1, "CatalogMapper");
    QVERIFY(f->sourceTable().isPlain());
    QCOMPARE(f->published.size(), 0);
}

void tst_TableMenus::loadFailingLine(const TestCatalog::Edit &edit, const QString &condition)
{
    f->catalog.write("old/a.prj", "D,E,L:r,H:r\nM8,x,10;20,1;2\nM9,x,10,1\n", edit);
    f->catalog.write("new/a.prj", "D,E,L:r,H:r\nM8,x,10;20,1;2\nM9,x,10,1\n");
    f->mapping = mappingOf("old/a.prj", {"new/a.prj"});
    addCondition(f->mapping, 0, condition);
    enter(f->mapping, 0, 1, 1, ToCheck);
    f->load();
}

void tst_TableMenus::iconOfFailingLine()
{
    loadFailingLine(); // the condition reads L; with 20 it does not hold
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("10;20"));
    f->clickIcon(f->source, 1, "CatalogMapper");
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("20"));
    QCOMPARE(f->published.size(), 0);
}

void tst_TableMenus::iconLeavesHiddenRangesAlone()
{
    loadFailingLine([](auto &table) { table.fields[3].hidden = true; }, "L .LT. 15 .AND. H .LT. 5");
    f->clickIcon(f->source, 1, "CatalogMapper");
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("20"));
    QCOMPARE(shownValue(f->sourceTable(), u"H"), QString("1;2"));
}

void tst_TableMenus::iconOfUnknownKey()
{
    loadFailingLine();
    f->sourceTable().getModifyLayer()->setLineKeyValue(1, "TargetMapping", "C");
    QCoreApplication::processEvents(); // the column comes into view
    f->clickIcon(f->source, 1, "TargetMapping");
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("10;20"));
    f->clickIcon(f->source, 1, "CatalogMapper");
    QCOMPARE(shownValue(f->sourceTable(), u"L"), QString("20"));
}

QTEST_MAIN(tst_TableMenus)
#include "tst_TableMenus.moc"
