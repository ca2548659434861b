#include "SelectionFixture.h"

#include <selection/dlgSearchSelect.h>
#include <selection/SelectWidget.h>

#include <core/config/PConfigInst.h>
#include <core/config/PConfigVal.h>
#include <geomcore/index/DisplayIndexC.h>
#include <geomcore/search/CatalogSearchQuery.h>
#include <geomcore/search/IndexTreeVarSearchC.h>
#include <geomcore/search/RemoteSearchRequestDataC.h>
#include <geomcoregui/search/SearchWidget.h>
#include <geomcoregui/search/TileItemView.h>
#include <geomcoregui/search/TopSearchWidget.h>
#include <gui/application/PApplication.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

class tst_dlgSearchSelect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void layout();
    void metaObject();
    void connections();
    void searchIsMadeFromItsNames();
    void buttonOfTheSearch();
    void refusedItem();
    void doubleClickOnATile();
    void staysOpenWithoutTheFlag();
    void treeTab();
    void switchingTabs();
    void preselectWaitsForTheTree();
    void searchCatalog();
    void currentCatalog();
    void keyWord();
    void keyWordTwice();
    void clearResults();
    void showFileNames_data();
    void showFileNames();
    void placeIsKept();
    void searchesInTheCatalogs();
    void unreadableCatalogs();
    void closeRejects();

private:
    const QTemporaryDir cache;

    static QPushButton *button(const QWidget &dialog)
    {
        return dialog.findChild<QPushButton *>("selectButton");
    }
    static TileItemView *tiles(const QWidget &dialog) { return dialog.findChild<TileItemView *>(); }
    static TopSearchWidget *top(const QWidget &dialog)
    {
        return dialog.findChild<TopSearchWidget *>();
    }
    /// Shows hits as a search would.
    static void found(const QWidget &dialog, const QStringList &paths)
    {
        CatalogSearchResult result;
        result.state = CatalogSearchState::Found;
        for (const QString &path : paths) {
            CatalogSearchHit hit;
            hit.path = path;
            result.hits.append(hit);
        }
        tiles(dialog)->showResults(std::make_shared<const CatalogSearchResult>(result));
    }
    static void clickTile(const QWidget &dialog, int row, bool twice = false)
    {
        TileItemView *const view = tiles(dialog);
        const QPoint place = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
        if (twice)
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
    }
};

namespace {

const QStringList paths{"cat10/m/a.prj", "cat10/z.prj", "cat9/x.prj"};

QString pathOf(const PRefPtr<IndexTreeDisplayItemI> &item)
{
    return item ? item->data(DisplayIndexC(QVariant(35), QVariant(4))).toString() : QString("none");
}

PRefPtr<IndexTreeNodeC> node(const char *path)
{
    return IndexTreeC::instance()->findNodeByTreePath(path, "");
}

} // namespace

void tst_dlgSearchSelect::initTestCase()
{
    // The index of the catalogs belongs there.
    QVERIFY(cache.isValid());
    qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
}

void tst_dlgSearchSelect::layout()
{
    const SelectionFixture fixture(paths);
    const dlgSearchSelect dialog(nullptr, false, true);
    QCOMPARE(dialog.objectName(), QString("dlgSearchSelect"));
    QCOMPARE(dialog.windowTitle(), QString("Projekt suchen oder auswählen"));
    auto *const column = qobject_cast<QVBoxLayout *>(dialog.layout());
    QVERIFY(column);
    QCOMPARE(column->count(), 2);
    auto *const tabs = qobject_cast<QTabWidget *>(column->itemAt(0)->widget());
    QVERIFY(tabs);
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(tabs->tabText(0), QString("Suchen"));
    QCOMPARE(tabs->tabText(1), QString("Auswählen"));
    QVERIFY(qobject_cast<SearchWidget *>(tabs->widget(0)));
    QVERIFY(qobject_cast<SelectWidget *>(tabs->widget(1)));
    auto *const buttons = qobject_cast<QDialogButtonBox *>(column->itemAt(1)->widget());
    QVERIFY(buttons);
    QCOMPARE(buttons->orientation(), Qt::Horizontal);
    QCOMPARE(buttons->buttons().size(), 2);
    QVERIFY(buttons->button(QDialogButtonBox::Close));
    QCOMPARE(button(dialog)->text(), QString("Auswählen"));
    QCOMPARE(buttons->buttonRole(button(dialog)), QDialogButtonBox::AcceptRole);
    QVERIFY(!button(dialog)->isEnabled());
    QCOMPARE(pathOf(dialog.getSelectedItem()), QString("none"));
}

void tst_dlgSearchSelect::metaObject()
{
    const QMetaObject &meta = dlgSearchSelect::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names += meta.method(i).methodSignature();
    QCOMPARE(names, (QStringList{"itemSelected(PRefPtr<IndexTreeDisplayItemI>)", "onDoubleClick()",
                                 "onSelectionChanged()"}));
}

void tst_dlgSearchSelect::connections()
{
    const SelectionFixture fixture(paths);
    const ConnectionWarnings warnings;
    dlgSearchSelect dialog(nullptr, false, true);
    QCOMPARE(warnings.texts(), QStringList());
    const auto gone = [&](QObject *sender, const char *signal, const char *slot) {
        return QObject::disconnect(sender, signal, &dialog, slot);
    };
    auto *const tree = dialog.findChild<SelectWidget *>();
    auto *const buttons = dialog.findChild<QDialogButtonBox *>();
    QVERIFY(gone(tiles(dialog), SIGNAL(doubleClicked(QModelIndex)), SLOT(onDoubleClick())));
    QVERIFY(gone(tiles(dialog)->selectionModel(),
                 SIGNAL(selectionChanged(QItemSelection, QItemSelection)),
                 SLOT(onSelectionChanged())));
    QVERIFY(gone(tree, SIGNAL(doubleClicked(QModelIndex)), SLOT(onDoubleClick())));
    QVERIFY(gone(tree, SIGNAL(selectionChanged(QItemSelection, QItemSelection)),
                 SLOT(onSelectionChanged())));
    QVERIFY(gone(buttons, SIGNAL(accepted()), SLOT(onDoubleClick())));
    QVERIFY(gone(buttons, SIGNAL(rejected()), SLOT(reject())));
    QVERIFY(gone(dialog.findChild<QTabWidget *>(), SIGNAL(currentChanged(int)),
                 SLOT(onSelectionChanged())));
}

void tst_dlgSearchSelect::searchIsMadeFromItsNames()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.show();
    QVERIFY(dialog.findChild<QLineEdit *>("searchWords")->isVisible());
    QVERIFY(dialog.findChild<QWidget *>("conditionAdd")->isVisible());
}

void tst_dlgSearchSelect::buttonOfTheSearch()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.show();
    found(dialog, {"cat10/z.prj"});
    QVERIFY(!button(dialog)->isEnabled());
    clickTile(dialog, 0);
    QVERIFY(button(dialog)->isEnabled());
    tiles(dialog)->clearSelection();
    QVERIFY(!button(dialog)->isEnabled());
}

/// Any item enables the button, also one that is then refused.
void tst_dlgSearchSelect::refusedItem()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setCloseAfterSelect(true);
    dialog.show();
    const QSignalSpy chosen(&dialog, &dlgSearchSelect::itemSelected);
    found(dialog, {"cat10/m"}); // a directory
    clickTile(dialog, 0);
    QVERIFY(button(dialog)->isEnabled());
    QTest::mouseClick(button(dialog), Qt::LeftButton);
    QCOMPARE(chosen.size(), 0);
    QVERIFY(dialog.isVisible());
    QCOMPARE(pathOf(dialog.getSelectedItem()), QString("cat10/m"));
    // Null is stored as well.
    tiles(dialog)->clearSelection();
    dialog.onDoubleClick();
    QCOMPARE(chosen.size(), 0);
    QCOMPARE(pathOf(dialog.getSelectedItem()), QString("none"));
}

void tst_dlgSearchSelect::doubleClickOnATile()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setCloseAfterSelect(true);
    QStringList chosen;
    connect(&dialog, &dlgSearchSelect::itemSelected, &dialog,
            [&](const PRefPtr<IndexTreeDisplayItemI> &item) { chosen += pathOf(item); });
    QTimer::singleShot(0, &dialog, [&] {
        found(dialog, {"cat9/x.prj", "cat10/z.prj"});
        clickTile(dialog, 1, true);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(chosen, QStringList{"cat10/z.prj"});
    QCOMPARE(pathOf(dialog.getSelectedItem()), QString("cat10/z.prj"));
}

void tst_dlgSearchSelect::staysOpenWithoutTheFlag()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.show();
    const QSignalSpy chosen(&dialog, &dlgSearchSelect::itemSelected);
    found(dialog, {"cat9/x.prj", "cat10/z.prj"});
    clickTile(dialog, 0);
    QTest::mouseClick(button(dialog), Qt::LeftButton);
    clickTile(dialog, 1);
    QTest::mouseClick(button(dialog), Qt::LeftButton);
    QCOMPARE(chosen.size(), 2);
    QVERIFY(dialog.isVisible());
    QCOMPARE(pathOf(dialog.getSelectedItem()), QString("cat10/z.prj"));
}

void tst_dlgSearchSelect::treeTab()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setCloseAfterSelect(true);
    QTimer::singleShot(0, &dialog, [&] {
        dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
        clickRow(treeOf(dialog), "cat10");
        QVERIFY(!button(dialog)->isEnabled());
        clickRow(treeOf(dialog), "cat10/z.prj");
        QVERIFY(button(dialog)->isEnabled());
        clickRow(treeOf(dialog), "cat10/z.prj", true);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(pathOf(dialog.getSelectedItem()), QString("cat10/z.prj"));
}

void tst_dlgSearchSelect::switchingTabs()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.show();
    auto *const tabs = dialog.findChild<QTabWidget *>();
    found(dialog, {"cat10/z.prj"});
    clickTile(dialog, 0);
    QVERIFY(button(dialog)->isEnabled());
    tabs->setCurrentIndex(1);
    QVERIFY(!button(dialog)->isEnabled());
    tabs->setCurrentIndex(0);
    QVERIFY(button(dialog)->isEnabled());
}

void tst_dlgSearchSelect::preselectWaitsForTheTree()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.show();
    auto *const tree = dialog.findChild<SelectWidget *>();
    dialog.preselectCatalog("cat10");
    QCOMPARE(pathOf(tree->selectedItem()), QString("none"));
    found(dialog, {"cat9/x.prj"});
    clickTile(dialog, 0); // a change on the other tab
    QCOMPARE(pathOf(tree->selectedItem()), QString("none"));
    dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
    QCOMPARE(pathOf(tree->selectedItem()), QString("cat10"));
    // Once.
    clickRow(treeOf(dialog), "cat9");
    dialog.findChild<QTabWidget *>()->setCurrentIndex(0);
    dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
    QCOMPARE(pathOf(tree->selectedItem()), QString("cat9"));
}

void tst_dlgSearchSelect::searchCatalog()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setSearchCatalog(node("cat/cat10"));
    const auto request = top(dialog)->getRequestData();
    QCOMPARE(request->getNodeListType(), QString("_siFixedCat"));
    QCOMPARE(request->getNodeList().size(), 1);
    QCOMPARE(request->getNodeList().first()->catalogPath(), QString("cat10"));
    dialog.setCurrentCatalog(node("cat/cat9")); // the other is fixed
    QCOMPARE(top(dialog)->getRequestData()->getNodeList().first()->catalogPath(), QString("cat10"));
}

void tst_dlgSearchSelect::currentCatalog()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setCurrentCatalog(node("cat/cat9"));
    const auto request = top(dialog)->getRequestData();
    QCOMPARE(request->getNodeListType(), QString());
    QCOMPARE(request->getNodeList().first()->catalogPath(), QString("cat9"));
    dialog.setCurrentCatalog(nullptr);
    QCOMPARE(top(dialog)->getRequestData()->getNodeList().size(), 1);
}

void tst_dlgSearchSelect::keyWord()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setSearchKeyWord("din 931");
    const auto request = top(dialog)->getRequestData();
    const auto *const search = dynamic_cast<IndexTreeVarSearchC *>(
        request->getSearchClassByName(IndexTreeVarSearchC::searchName(), true).get());
    QVERIFY(search);
    QCOMPARE(search->getActivatedType(), 1);
    QCOMPARE(search->getUsedType(), 1);
    const auto condition = search->findFullTextCondition();
    QVERIFY(condition);
    QCOMPARE(condition->getVarName(), QString(" "));
    QCOMPARE(int(condition->getCmpOp()), 1);
    QCOMPARE(condition->getValLow(), QString("din 931"));
    QCOMPARE(condition->getValHigh(), QString());
    QCOMPARE(condition->getUnit(), QString());
    QCOMPARE(condition->getSearchType(), 3);
    QCOMPARE(dialog.findChild<QLineEdit *>("searchWords")->text(), QString("din 931"));
}

void tst_dlgSearchSelect::keyWordTwice()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setSearchKeyWord("din 931");
    dialog.setSearchKeyWord("iso 4014");
    const auto request = top(dialog)->getRequestData();
    const auto *const search = dynamic_cast<IndexTreeVarSearchC *>(
        request->getSearchClassByName(IndexTreeVarSearchC::searchName(), true).get());
    QVERIFY(search);
    QCOMPARE(search->getConditions().size(), 1);
    QCOMPARE(search->getConditions().first()->getValLow(), QString("iso 4014"));
    QCOMPARE(CatalogSearchQuery::fromRequest(*request).text, QString("iso 4014"));
}

void tst_dlgSearchSelect::clearResults()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.show();
    found(dialog, {"cat10/z.prj"});
    clickTile(dialog, 0);
    dialog.clearSearchResults();
    QCOMPARE(tiles(dialog)->model()->rowCount(), 0);
    QVERIFY(!button(dialog)->isEnabled());
}

void tst_dlgSearchSelect::showFileNames_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<QString>("kept");
    QTest::newRow("none stored") << "" << true << "1";
    QTest::newRow("shown") << "1" << true << "1";
    QTest::newRow("not shown") << "0" << false << "0";
}

void tst_dlgSearchSelect::showFileNames()
{
    QFETCH(QString, stored);
    QFETCH(bool, checked);
    const SelectionFixture fixture(paths);
    fixture.folder.add("cat9/a.prj", "Schrauben");
    const QTemporaryDir folder;
    const PRefPtr<PConfig> config(new PConfigInst(folder.filePath("app.cfg"), false));
    if (!stored.isEmpty())
        config->SetValue("ShowFileNames", "CatalogMapping", stored);
    const PApplication application(config);
    {
        dlgSearchSelect dialog(nullptr, false, true);
        dialog.show();
        dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
        auto *const tree = dialog.findChild<SelectWidget *>();
        QCOMPARE(tree->getFileNameBox()->isChecked(), checked);
        QVERIFY(rowAt(treeOf(dialog), checked ? "cat9/a.prj" : "cat9/Schrauben").isValid());
    }
    const auto kept = [&] {
        return config->getItemValue("ShowFileNames", "CatalogMapping", "none").GetString();
    };
    QTEST(QString(kept()), "kept");
    {
        dlgSearchSelect dialog(nullptr, false, true);
        dialog.findChild<SelectWidget *>()->getFileNameBox()->toggle();
    }
    QCOMPARE(QString(kept()), QString(checked ? "0" : "1"));
}

void tst_dlgSearchSelect::placeIsKept()
{
    const SelectionFixture fixture(paths);
    const QTemporaryDir folder;
    const PApplication application(
        PRefPtr<PConfig>(new PConfigInst(folder.filePath("app.cfg"), false)));
    auto dialog = std::make_unique<dlgSearchSelect>(nullptr, false, true);
    dialog->resize(701, 655);
    dialog.reset();
    QCOMPARE(dlgSearchSelect(nullptr, false, true).size(), QSize(701, 655));
}

/// With the index itself.
void tst_dlgSearchSelect::searchesInTheCatalogs()
{
    const SelectionFixture fixture(paths);
    fixture.folder.add("cat9/screws.prj", "Schrauben");
    fixture.folder.add("cat10/screws.prj", "Schrauben");
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setCloseAfterSelect(true);
    dialog.setSearchCatalog(node("cat/cat9"));
    QTimer::singleShot(0, &dialog, [&] {
        auto close = qScopeGuard([&] { dialog.reject(); });
        auto *const words = dialog.findChild<QLineEdit *>("searchWords");
        QTest::keyClicks(words, "schrau");
        QTRY_COMPARE_WITH_TIMEOUT(tiles(dialog)->model()->rowCount(), 1, 20000);
        QTest::keyClick(words, Qt::Key_Down);
        QTest::keyClick(tiles(dialog), Qt::Key_Return);
        if (!dialog.isVisible())
            close.dismiss();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(pathOf(dialog.getSelectedItem()), QString("cat9/screws.prj"));
}

void tst_dlgSearchSelect::unreadableCatalogs()
{
    const SelectionFixture fixture(paths);
    IndexTreeC::instance()->setCatalogRoot(PPathName(fixture.folder.root() + "/none"));
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.show();
    auto *const words = dialog.findChild<QLineEdit *>("searchWords");
    QTest::keyClicks(words, "screw");
    QTest::keyClick(words, Qt::Key_Return);
    const auto *const status = dialog.findChild<QLabel *>("searchStatus");
    QTRY_COMPARE(status->text(), QString("Der Suchindex konnte nicht aufgebaut werden: Das "
                                         "Verzeichnis der Kataloge kann nicht gelesen werden."));
    QVERIFY(dialog.findChild<QPushButton *>("searchAgain")->isVisible());
}

void tst_dlgSearchSelect::closeRejects()
{
    const SelectionFixture fixture(paths);
    dlgSearchSelect dialog(nullptr, false, true);
    QTimer::singleShot(0, &dialog, [&] {
        auto *const buttons = dialog.findChild<QDialogButtonBox *>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Close), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

QTEST_MAIN(tst_dlgSearchSelect)
#include "tst_dlgSearchSelect.moc"
