#include "SelectionFixture.h"

#include <selection/dlgSelect.h>
#include <selection/SelectWidget.h>

#include <core/config/PConfigInst.h>
#include <geomcore/index/DisplayIndexC.h>
#include <geomcore/index/IndexTreeFilterProxyModelC.h>
#include <geomcore/index/IndexTreeModelC.h>
#include <gui/application/PApplication.h>

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

class tst_dlgSelect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetLayout();
    void widgetSignals();
    void columnRoles_data();
    void columnRoles();
    void filter_data();
    void filter();
    void fileNameBox();
    void emptyTree();
    void openDirectoriesFollowTheDisk();
    void modelsUnderTester();

    void dialogLayout();
    void metaObject();
    void oneConnectionFindsNoSignal();
    void buttonFollowsTheSelection();
    void buttonSelects();
    void directoryIsNotSelected();
    void doubleClickDoesNothing();
    void keyboardAlone();
    void preselect();
    void preselectUnknown_data();
    void preselectUnknown();
    void overrideBox();
    void closeRejects();
    void placeIsNotKept();
    void ownAllocation();

private:
    static QPushButton *button(const QWidget &dialog)
    {
        return dialog.findChild<QPushButton *>("selectButton");
    }
};

namespace {

const QStringList paths{"cat10/m/a.prj", "cat10/m/b.prj", "cat10/z.prj", "cat9/x.prj", "empty/"};

QString pathOf(const PRefPtr<IndexTreeDisplayItemI> &item)
{
    return item ? item->data(DisplayIndexC(QVariant(35), QVariant(4))).toString() : QString("none");
}

} // namespace

void tst_dlgSelect::widgetLayout()
{
    const SelectionFixture fixture(paths);
    const SelectWidget widget(false, true, nullptr);
    auto *const layout = qobject_cast<QVBoxLayout *>(widget.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), widget.getFileNameBox());
    QCOMPARE(widget.getFileNameBox()->text(), QString("Dateinamen statt Beschreibungen anzeigen"));
    QVERIFY(widget.getFileNameBox()->isChecked());
    QTreeView *const tree = treeOf(widget);
    QCOMPARE(layout->itemAt(1)->widget(), tree);
    auto *const proxy = qobject_cast<IndexTreeFilterProxyModelC *>(tree->model());
    QVERIFY(proxy);
    QCOMPARE(proxy->parent(), tree);
    QVERIFY(proxy->fastChildDetection());
    QVERIFY(proxy->emptyChildDetection());
    QCOMPARE(proxy->sortColumn(), 0);
    QCOMPARE(proxy->sortOrder(), Qt::AscendingOrder);
    QVERIFY(qobject_cast<IndexTreeModelC *>(proxy->sourceModel()));
    QCOMPARE(proxy->sourceModel()->parent(), tree);
    QCOMPARE(proxy->columnCount(), 1);
    QCOMPARE(proxy->headerData(0, Qt::Horizontal).toString(), QString("Name"));
    QCOMPARE(topRows(tree), (QStringList{"cat10", "cat9", "empty"}));
}

void tst_dlgSelect::widgetSignals()
{
    const QMetaObject &meta = SelectWidget::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names += meta.method(i).methodSignature();
    QCOMPARE(names, (QStringList{"doubleClicked(QModelIndex)",
                                 "selectionChanged(QItemSelection,QItemSelection)",
                                 "onSwitchFilenameView()"}));
    const SelectionFixture fixture(paths);
    SelectWidget widget(false, true, nullptr);
    widget.resize(400, 400);
    widget.show();
    const QSignalSpy doubled(&widget, &SelectWidget::doubleClicked);
    const QSignalSpy selected(&widget, &SelectWidget::selectionChanged);
    clickRow(treeOf(widget), "cat10/z.prj", true);
    QCOMPARE(selected.size(), 1);
    QCOMPARE(doubled.size(), 1);
    QCOMPARE(doubled.first().first().toModelIndex().data().toString(), QString("z.prj"));
    QCOMPARE(pathOf(widget.selectedItem()), QString("cat10/z.prj"));
}

void tst_dlgSelect::columnRoles_data()
{
    QTest::addColumn<bool>("erpIcons");
    QTest::addColumn<bool>("unfiltered");
    QTest::newRow("all") << false << true;
    QTest::newRow("with marks") << true << true;
    QTest::newRow("filtered") << false << false;
}

void tst_dlgSelect::columnRoles()
{
    QFETCH(bool, erpIcons);
    QFETCH(bool, unfiltered);
    const SelectionFixture fixture(paths);
    const SelectWidget widget(erpIcons, unfiltered, nullptr);
    const QModelIndex index = rowAt(treeOf(widget), "cat10/z.prj");
    QVERIFY(!index.data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(index.data(33).toString(), unfiltered ? QString() : QString("true"));
}

void tst_dlgSelect::filter_data()
{
    QTest::addColumn<bool>("unfiltered");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("text");
    QTest::newRow("filtered") << false << 33 << "true";
    QTest::newRow("unfiltered") << true << int(Qt::DisplayRole) << "";
}

void tst_dlgSelect::filter()
{
    QFETCH(bool, unfiltered);
    const SelectionFixture fixture(paths);
    const SelectWidget widget(false, unfiltered, nullptr);
    const auto *const proxy = qobject_cast<QSortFilterProxyModel *>(treeOf(widget)->model());
    QTEST(proxy->filterRole(), "role");
    QTEST(proxy->filterRegularExpression().pattern(), "text");
    QCOMPARE(proxy->filterKeyColumn(), 0);
    QVERIFY(rowAt(treeOf(widget), "cat10/m/b.prj").isValid());
}

void tst_dlgSelect::fileNameBox()
{
    const SelectionFixture fixture(paths);
    fixture.folder.add("cat9/b.prj", "Scheiben");
    fixture.folder.add("cat9/a.prj", "Schrauben");
    SelectWidget widget(false, true, nullptr);
    widget.resize(400, 400);
    widget.show();
    QTreeView *const tree = treeOf(widget);
    const auto rows = [&] {
        QStringList texts;
        const QModelIndex catalog = rowAt(tree, "cat9");
        tree->expand(catalog);
        for (int row = 0; row < tree->model()->rowCount(catalog); ++row)
            texts += tree->model()->index(row, 0, catalog).data().toString();
        return texts;
    };
    QCOMPARE(rows(), (QStringList{"a.prj", "b.prj", "x.prj"}));
    auto *const proxy = qobject_cast<QSortFilterProxyModel *>(tree->model());
    const auto click = [&] {
        QCheckBox *const box = widget.getFileNameBox();
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    };
    click();
    QCOMPARE(proxy->sortColumn(), -1);
    // The tree's own order, not the one of the texts.
    QCOMPARE(rows(), (QStringList{"Schrauben", "Scheiben", "x.prj"}));
    click();
    QCOMPARE(proxy->sortColumn(), 0);
    QCOMPARE(proxy->sortOrder(), Qt::AscendingOrder);
    QCOMPARE(rows(), (QStringList{"a.prj", "b.prj", "x.prj"}));
}

void tst_dlgSelect::emptyTree()
{
    const SelectionFixture fixture(QStringList{});
    SelectWidget widget(false, false, nullptr);
    QCOMPARE(treeOf(widget)->model()->rowCount(), 0);
    widget.getFileNameBox()->setChecked(false);
    widget.getFileNameBox()->setChecked(true);
    QVERIFY(!widget.selectedItem());
}

void tst_dlgSelect::openDirectoriesFollowTheDisk()
{
    const SelectionFixture fixture(paths);
    SelectWidget widget(false, false, nullptr);
    widget.show();
    QTreeView *const tree = treeOf(widget);
    clickRow(tree, "cat10/m/b.prj");
    fixture.folder.add("cat10/m/ab.prj", {});
    fixture.folder.add("cat8/y.prj", {});
    QVERIFY(QFile::remove(fixture.folder.root() + "/cat10/z.prj"));
    QTRY_COMPARE(rowsOf(*tree->model()),
                 QString("cat10(m(a.prj ab.prj b.prj)) cat8(y.prj) cat9(x.prj)"));
    QCOMPARE(pathOf(widget.selectedItem()), QString("cat10/m/b.prj"));
    QVERIFY(QDir(fixture.folder.root() + "/cat10").removeRecursively());
    QTRY_COMPARE(rowsOf(*tree->model()), QString("cat8(y.prj) cat9(x.prj)"));
    QVERIFY(!pathOf(widget.selectedItem()).startsWith("cat10"));
}

void tst_dlgSelect::modelsUnderTester()
{
    const SelectionFixture fixture(paths);
    SelectWidget widget(false, false, nullptr);
    const QAbstractItemModelTester tester(treeOf(widget)->model());
    widget.getFileNameBox()->setChecked(false);
    QVERIFY(rowAt(treeOf(widget), "cat10/m/a.prj").isValid());
    widget.getFileNameBox()->setChecked(true);
}

void tst_dlgSelect::dialogLayout()
{
    const SelectionFixture fixture(paths);
    const dlgSelect dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Projekt auswählen"));
    QCOMPARE(dialog.objectName(), QString());
    QCOMPARE(dialog.size(), QSize(450, 600));
    auto *const layout = qobject_cast<QVBoxLayout *>(dialog.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 3);
    auto *const row = qobject_cast<QHBoxLayout *>(layout->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->count(), 2);
    const QSpacerItem *const spacer = row->itemAt(0)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(9, 0));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    auto *const box = qobject_cast<QCheckBox *>(row->itemAt(1)->widget());
    QVERIFY(box);
    QCOMPARE(box->text(), QString("Bereits zugewiesene Zielprojekte überschreiben"));
    QVERIFY(qobject_cast<SelectWidget *>(layout->itemAt(1)->widget()));
    auto *const buttons = qobject_cast<QDialogButtonBox *>(layout->itemAt(2)->widget());
    QVERIFY(buttons);
    QCOMPARE(buttons->orientation(), Qt::Horizontal);
    QCOMPARE(buttons->buttons().size(), 2);
    QVERIFY(buttons->button(QDialogButtonBox::Close));
    QCOMPARE(button(dialog)->text(), QString("Auswählen"));
    QCOMPARE(buttons->buttonRole(button(dialog)), QDialogButtonBox::AcceptRole);
    QVERIFY(!button(dialog)->isEnabled());
}

void tst_dlgSelect::metaObject()
{
    const QMetaObject &meta = dlgSelect::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names += meta.method(i).methodSignature();
    QCOMPARE(names, (QStringList{"itemSelected(PRefPtr<IndexTreeDisplayItemI>)",
                                 "onSelectionChanged()", "onDoubleClick()"}));
}

void tst_dlgSelect::oneConnectionFindsNoSignal()
{
    const SelectionFixture fixture(paths);
    const ConnectionWarnings warnings;
    dlgSelect dialog(nullptr);
    QCOMPARE(warnings.texts(),
             QStringList{"QObject::connect: No such signal SelectWidget::doubleClicked()"});
    const auto gone = [&](QObject *sender, const char *signal, const char *slot) {
        return QObject::disconnect(sender, signal, &dialog, slot);
    };
    auto *const widget = dialog.findChild<SelectWidget *>();
    auto *const buttons = dialog.findChild<QDialogButtonBox *>();
    QVERIFY(gone(widget, SIGNAL(selectionChanged(QItemSelection, QItemSelection)),
                 SLOT(onSelectionChanged())));
    QVERIFY(gone(buttons, SIGNAL(accepted()), SLOT(onDoubleClick())));
    QVERIFY(gone(buttons, SIGNAL(rejected()), SLOT(reject())));
    QVERIFY(!gone(widget, SIGNAL(doubleClicked(QModelIndex)), SLOT(onDoubleClick())));
}

void tst_dlgSelect::buttonFollowsTheSelection()
{
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    dialog.show();
    QTreeView *const tree = treeOf(dialog);
    QVERIFY(!button(dialog)->isEnabled());
    clickRow(tree, "cat10");
    QVERIFY(!button(dialog)->isEnabled());
    clickRow(tree, "cat10/z.prj");
    QVERIFY(button(dialog)->isEnabled());
    clickRow(tree, "cat10/m");
    QVERIFY(!button(dialog)->isEnabled());
    clickRow(tree, "cat10/m/a.prj");
    tree->clearSelection();
    QVERIFY(!button(dialog)->isEnabled());
}

void tst_dlgSelect::buttonSelects()
{
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    QStringList chosen;
    connect(&dialog, &dlgSelect::itemSelected, &dialog,
            [&](const PRefPtr<IndexTreeDisplayItemI> &item) { chosen += pathOf(item); });
    QTimer::singleShot(0, &dialog, [&] {
        clickRow(treeOf(dialog), "cat10/m/b.prj");
        QTest::mouseClick(button(dialog), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(chosen, QStringList{"cat10/m/b.prj"});
}

void tst_dlgSelect::directoryIsNotSelected()
{
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    dialog.show();
    const QSignalSpy chosen(&dialog, &dlgSelect::itemSelected);
    dialog.onDoubleClick(); // nothing is selected
    clickRow(treeOf(dialog), "cat10");
    dialog.onDoubleClick();
    QCOMPARE(chosen.size(), 0);
    QVERIFY(dialog.isVisible());
}

void tst_dlgSelect::doubleClickDoesNothing()
{
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    dialog.show();
    const QSignalSpy chosen(&dialog, &dlgSelect::itemSelected);
    clickRow(treeOf(dialog), "cat10/z.prj", true);
    QCOMPARE(chosen.size(), 0);
    QVERIFY(dialog.isVisible());
    QVERIFY(button(dialog)->isEnabled());
}

void tst_dlgSelect::keyboardAlone()
{
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    const QSignalSpy chosen(&dialog, &dlgSelect::itemSelected);
    QTimer::singleShot(0, &dialog, [&] {
        QTreeView *const tree = treeOf(dialog);
        tree->setFocus();
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down})
            QTest::keyClick(tree, key);
        if (!button(dialog)->isEnabled())
            QTest::keyClick(tree, Qt::Key_Down);
        QTest::keyClick(tree, Qt::Key_Return); // goes to the button
        if (dialog.isVisible())
            dialog.reject();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(chosen.size(), 1);
}

void tst_dlgSelect::preselect()
{
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    dialog.show();
    auto *const widget = dialog.findChild<SelectWidget *>();
    const QSignalSpy changed(widget, &SelectWidget::selectionChanged);
    dialog.preselectCatalog("cat10");
    QCOMPARE(pathOf(widget->selectedItem()), QString("cat10"));
    QCOMPARE(changed.size(), 1); // the second pass selects the same
    QVERIFY(!button(dialog)->isEnabled());
    // Done once.
    clickRow(treeOf(dialog), "cat9");
    QCOMPARE(pathOf(widget->selectedItem()), QString("cat9"));
    QString name("empty");
    widget->preselect(name);
    QVERIFY(name.isEmpty());
}

void tst_dlgSelect::preselectUnknown_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << "cat11";
    QTest::newRow("empty") << "";
}

void tst_dlgSelect::preselectUnknown()
{
    QFETCH(QString, name);
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    dialog.show();
    clickRow(treeOf(dialog), "cat9/x.prj");
    dialog.preselectCatalog(name);
    // Neither selects nor clears anything.
    QCOMPARE(pathOf(dialog.findChild<SelectWidget *>()->selectedItem()), QString("cat9/x.prj"));
    QVERIFY(button(dialog)->isEnabled());
    clickRow(treeOf(dialog), "cat10");
    QCOMPARE(pathOf(dialog.findChild<SelectWidget *>()->selectedItem()), QString("cat10"));
}

void tst_dlgSelect::overrideBox()
{
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    dialog.show();
    QVERIFY(!dialog.overrideAlreadyMappedProjects());
    auto *const box = dialog.findChild<QCheckBox *>("overrideBox");
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QVERIFY(dialog.overrideAlreadyMappedProjects());
}

void tst_dlgSelect::closeRejects()
{
    const SelectionFixture fixture(paths);
    dlgSelect dialog(nullptr);
    QTimer::singleShot(0, &dialog, [&] {
        auto *const buttons = dialog.findChild<QDialogButtonBox *>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Close), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_dlgSelect::placeIsNotKept()
{
    const SelectionFixture fixture(paths);
    const QTemporaryDir folder;
    const PRefPtr<PConfig> config(new PConfigInst(folder.filePath("app.cfg"), false));
    const PApplication application(config);
    {
        dlgSelect dialog(nullptr);
        dialog.resize(800, 700);
    }
    const dlgSelect dialog(nullptr);
    QCOMPARE(dialog.size(), QSize(450, 600));
    QCOMPARE(config->sections().size(), 0);
}

void tst_dlgSelect::ownAllocation()
{
    const SelectionFixture fixture(paths);
    std::unique_ptr<QDialog> dialog(new dlgSelect(nullptr));
    dialog.reset();
    QCOMPARE(dlgSelect::trUtf8("text"), QString("text"));
}

QTEST_MAIN(tst_dlgSelect)
#include "tst_dlgSelect.moc"
