#include "EditorFixture.h"

#include <mapping/project/ProjectMappingWidget.h>
#include <mapping/project/TableLineSelectionDialog.h>
#include <mapping/project/TargetMappingParamSet.h>
#include <mapping/table/TableMappingWidget.h>

#include <geomcoregui/table/VkTableView.h>
#include <gui/views/PButtonHeaderView.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

using PRJMAPPING::Mapped;
using PRJMAPPING::ToCheck;
using PRJMAPPING::Verified;

namespace {

/// A project widget with one panel and the table widget beside it, on "old/a.prj" and "new/a.prj".
struct Panel
{
    explicit Panel(bool withRelease = true, bool withTable = true)
    {
        catalog.write("old/a.prj", "D,k:n\nM8,5\nM9,6\nM10,7\n");
        catalog.write("new/a.prj", "D,k:n\nM8,5\nM9,66\n");
        mapping = mappingOf("old/a.prj", {"new/a.prj", ""});
        for (int line = 1; line <= 3; ++line)
            enter(mapping, 1, line, -1, ToCheck);
        if (withTable)
            project.setTableMappingWidget(&table);
        const VKTab::ContentRef source = catalog.read("old/a.prj");
        const CatalogMappingC releases = withRelease ? catalogOf(mapping) : CatalogMappingC();
        table.loadSourceTable(source, mapping, releases);
        project.loadSourceProject(mapping, source, releases);
        project.setAssignEnabled(true);
        project.resize(900, 400);
        project.show();
        QVERIFY(QTest::qWaitForWindowExposed(&project));
    }
    void selectSourceLine(int line) const
    {
        table.findChild<VkTableView *>("sourceView")
            ->getTable()
            .setSelection(VKTab::LineId(line), true);
    }
    [[nodiscard]] TargetMappingWidget *widget() const { return targetPanels(&project).value(0); }
    /// Clicks the assign button, a line of the dialog unless it is 0, then the button; true if the
    /// dialog came.
    bool assign(int line, QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok)
    {
        bool came = false;
        QTimer::singleShot(0, &project, [&] {
            auto *const dialog =
                qobject_cast<TableLineSelectionDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            came = true;
            answer(dialog, line, button);
        });
        QTest::mouseClick(widget()->assignButton, Qt::LeftButton);
        return came;
    }
    static void answer(TableLineSelectionDialog *dialog, int line,
                       QDialogButtonBox::StandardButton button)
    {
        if (line > 0)
            clickLine(dialog, line);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
        if (dialog->isVisible())
            dialog->reject();
    }
    static void clickLine(const QDialog *dialog, int line)
    {
        const auto *const view = dialog->findChild<VkTableView *>();
        auto *const grid = qobject_cast<QTableView *>(view->grid());
        const int column = grid->model()->columnCount() - 1;
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid->visualRect(grid->model()->index(line - 1, column)).center());
    }
    [[nodiscard]] QString announced() const
    {
        return updates.isEmpty() ? QString()
                                 : entriesOf(updates.last().first().value<PrjMappingC>());
    }

    TestCatalog catalog;
    LocalCatalogs local{catalog.root()};
    MessageCapture messages;
    PrjMappingC mapping;
    TableMappingWidget table{nullptr};
    ProjectMappingWidget project{nullptr};
    QSignalSpy updates{&project, SIGNAL(projectMappingUpdated(PrjMappingC))};
};

} // namespace

class tst_TargetMappingWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layout();
    void lists();
    void noConnectionWarns();
    void withoutCallback();

    void assignEqualLine();
    void assignOtherLine();
    void assignByKeyboard();
    void assignBesideAHiddenEqualLine();
    void assignWithoutCallback();
    void assignCancelled();
    void assignWithoutSourceLine();
    void assignWithoutRelease();
    void assignWithoutTableWidget();
    void assignWithoutTargetTable();
    void panelGoesWhileTheDialogIsOpen();

    void dialogLayout();
    void dialogFollowsTheClicks();
    void dialogNeedsALine();
};

void tst_TargetMappingWidget::layout()
{
    const Panel panel;
    const auto *const outer = qobject_cast<QVBoxLayout *>(panel.widget()->layout());
    QCOMPARE(panel.widget()->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    QCOMPARE(outer->count(), 3);
    const auto *const title = qobject_cast<QLabel *>(outer->itemAt(0)->widget());
    QCOMPARE(title->text(), QStringLiteral("Zielprojekt"));
    QCOMPARE(title->objectName(), QStringLiteral("TitleBarLabel"));
    const auto *const row = qobject_cast<QHBoxLayout *>(outer->itemAt(1)->layout());
    QStringList items;
    for (int place = 0; place < row->count(); ++place) {
        const QWidget *const item = row->itemAt(place)->widget();
        if (!item)
            items.append(row->itemAt(place)->spacerItem()->expandingDirections() & Qt::Horizontal
                             ? QStringLiteral("<spacer>")
                             : QString());
        else if (const auto *const label = qobject_cast<const QLabel *>(item))
            items.append(label->text());
        else if (const auto *const button = qobject_cast<const QPushButton *>(item))
            items.append(button->toolTip());
        else if (const auto *const frame = qobject_cast<const QFrame *>(item))
            items.append(frame->frameShape() == QFrame::HLine &&
                                 frame->frameShadow() == QFrame::Sunken
                             ? QStringLiteral("<line>")
                             : QString());
    }
    QCOMPARE(items, QStringList({"Zielprojekt nach oben verschieben",
                                 "Zielprojekt nach unten verschieben", "Projektpfad:", "new/a.prj",
                                 "<spacer>", "Zielprojekt entfernen", "Projekt öffnen", "<line>",
                                 "Dieses Projekt der aktuell selektierten Zeile zuweisen"}));
    const QList<QPushButton *> buttons = panel.widget()->findChildren<QPushButton *>();
    for (const QPushButton *const button : buttons)
        QCOMPARE(button->accessibleName(), button->toolTip());
    QVERIFY(!panel.widget()->upButton->icon().isNull());
    QVERIFY(!panel.widget()->downButton->icon().isNull());
    QVERIFY(!panel.widget()->assignButton->icon().isNull());
}

void tst_TargetMappingWidget::lists()
{
    const Panel panel;
    const auto *const grid =
        qobject_cast<QGridLayout *>(panel.widget()->layout()->itemAt(2)->layout());
    QCOMPARE(grid->contentsMargins(), QMargins());
    const char *const names[] = {"conditionView", "variableView"};
    for (int column = 0; column < 2; ++column) {
        auto *const view = qobject_cast<QTableView *>(grid->itemAtPosition(1, column)->widget());
        QCOMPARE(view->objectName(), QLatin1String(names[column]));
        QCOMPARE(view->contextMenuPolicy(), Qt::CustomContextMenu);
        QVERIFY(view->verticalHeader()->isHidden());
        QVERIFY(qobject_cast<PButtonHeaderView *>(view->horizontalHeader()));
        QVERIFY(view->horizontalHeader()->stretchLastSection());
        QCOMPARE(view->horizontalHeader()->sectionResizeMode(0), QHeaderView::ResizeToContents);
        QVERIFY(view->horizontalHeader()->viewport()->hasMouseTracking());
        QVERIFY(view->viewport()->hasMouseTracking());
        QCOMPARE(view->model()->columnCount(), 2 + column);
        QCOMPARE(view->model()->headerData(0, Qt::Horizontal).toString(), QString());
    }
}

void tst_TargetMappingWidget::noConnectionWarns()
{
    const WarningCapture warnings;
    const Panel panel;
    QStringList found = warnings.list();
    found.removeAll("This plugin does not support propagateSizeHints()");
    QCOMPARE(found, QStringList());
}

void tst_TargetMappingWidget::withoutCallback()
{
    const Panel panel;
    TargetMappingParamSet params;
    params.projectMapping = mappingOf("old/a.prj", {"new/a.prj", "new/b.prj"});
    TargetMappingWidget widget(1, VKTab::ContentRef(), {}, &params, false, nullptr);
    const QList<QPushButton *> buttons = widget.findChildren<QPushButton *>();
    for (QPushButton *const button : buttons)
        button->click();
    // The records are exchanged all the same.
    QCOMPARE(targetPaths(params.projectMapping), QStringLiteral("new/b.prj new/a.prj"));
    TargetMappingWidget first(0, VKTab::ContentRef(), {}, &params, false, nullptr);
    QVERIFY(QMetaObject::invokeMethod(&first, "onMoveTargetDown"));
    QCOMPARE(targetPaths(params.projectMapping), QStringLiteral("new/a.prj new/b.prj"));
    // Nobody is told of lists that were stored, either.
    for (const char *slot : {"onDeleteVarMapping", "onDeleteConditionClicked"}) {
        const char *const list = slot[8] == 'V' ? "variableView" : "conditionView";
        auto *const model =
            qobject_cast<QStandardItemModel *>(widget.findChild<QTableView *>(list)->model());
        QVERIFY(model);
        model->appendRow({new QStandardItem, new QStandardItem("x"), new QStandardItem});
        const QModelIndex last = model->index(model->rowCount() - 1, 0);
        const int rows = model->rowCount();
        QVERIFY(QMetaObject::invokeMethod(&widget, slot, Q_ARG(QModelIndex, last), Q_ARG(int, 0)));
        QCOMPARE(model->rowCount(), rows - 1);
    }
}

void tst_TargetMappingWidget::assignEqualLine()
{
    Panel panel;
    panel.selectSourceLine(1);
    QVERIFY(panel.assign(1));
    QCOMPARE(panel.updates.count(), 1);
    // It passes the check and leaves the not-found target.
    QCOMPARE(panel.announced(), QStringLiteral("0:1>1/1 -:2>-1/0 -:3>-1/0"));
}

void tst_TargetMappingWidget::assignOtherLine()
{
    Panel panel;
    panel.selectSourceLine(3);
    QVERIFY(panel.assign(2));
    QCOMPARE(panel.announced(), QStringLiteral("0:3>2/0 -:1>-1/0 -:2>-1/0"));
}

void tst_TargetMappingWidget::assignByKeyboard()
{
    Panel panel;
    panel.selectSourceLine(3);
    QTimer::singleShot(0, &panel.project, [] {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QAbstractItemView *const grid = dialog->findChild<VkTableView *>()->grid();
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(dialog, Qt::Key_Return);
        if (dialog->isVisible())
            dialog->reject();
    });
    panel.widget()->assignButton->setFocus();
    QTest::keyClick(panel.widget()->assignButton, Qt::Key_Space);
    QCOMPARE(panel.updates.count(), 1);
    QVERIFY(panel.announced().startsWith("0:3>"));
    // From there one key confirms it.
    QVERIFY(panel.table.focusWidget() ==
            panel.table.findChild<VkTableView *>("sourceView")->grid());
}

/// What the project hides in its table counts for the check all the same.
void tst_TargetMappingWidget::assignBesideAHiddenEqualLine()
{
    Panel panel;
    panel.catalog.write("new/a.prj", "D,k:n,g:n\nM8,5,1\nM8,5,2\n",
                        [](VKTab::TableDescriptor &table) {
                            table.filterConditions.append({"PRJLINECOND", "g .EQ. 1", {}});
                        });
    panel.project.loadSourceProject(panel.mapping,
                                    panel.table.findChild<VkTableView *>("sourceView")->getTable(),
                                    catalogOf(panel.mapping));
    panel.project.setAssignEnabled(true);
    panel.selectSourceLine(1);
    QVERIFY(panel.assign(1));
    QCOMPARE(panel.announced(), QStringLiteral("0:1>1/0 -:2>-1/0 -:3>-1/0"));
}

void tst_TargetMappingWidget::assignWithoutCallback()
{
    Panel panel;
    panel.selectSourceLine(1);
    TargetMappingParamSet params;
    params.projectMapping = panel.mapping;
    params.catalogMapping = catalogOf(panel.mapping);
    params.tableMappingWidget = &panel.table;
    params.selectedSourceLine = [] {
        return VKTab::LineId(1);
    };
    const VKTab::ContentRef source = panel.table.findChild<VkTableView *>("sourceView")->getTable();
    TargetMappingWidget widget(0, source, {}, &params, false, nullptr);
    bool came = false;
    QTimer::singleShot(0, &widget, [&came] {
        auto *const dialog =
            qobject_cast<TableLineSelectionDialog *>(QApplication::activeModalWidget());
        came = dialog != nullptr;
        if (came)
            Panel::answer(dialog, 1, QDialogButtonBox::Ok);
    });
    QVERIFY(QMetaObject::invokeMethod(&widget, "onAssignTarget"));
    QVERIFY(came);
    // The line has left the not-found target.
    QCOMPARE(entriesOf(params.projectMapping), QStringLiteral("-:2>-1/0 -:3>-1/0"));
}

void tst_TargetMappingWidget::assignCancelled()
{
    Panel panel;
    panel.selectSourceLine(1);
    QVERIFY(panel.assign(1, QDialogButtonBox::Cancel));
    QCOMPARE(panel.updates.count(), 0);
}

void tst_TargetMappingWidget::assignWithoutSourceLine()
{
    Panel panel;
    QVERIFY(!panel.assign(1));
    QCOMPARE(panel.updates.count(), 0);
}

void tst_TargetMappingWidget::assignWithoutRelease()
{
    Panel panel(false);
    panel.selectSourceLine(1);
    panel.project.setAssignEnabled(true);
    QVERIFY(panel.assign(1));
    QCOMPARE(panel.updates.count(), 0);
}

void tst_TargetMappingWidget::assignWithoutTableWidget()
{
    Panel panel(true, false);
    panel.selectSourceLine(1);
    QVERIFY(!panel.assign(1));
}

void tst_TargetMappingWidget::assignWithoutTargetTable()
{
    Panel panel;
    QVERIFY(QFile::remove(panel.catalog.file("new/a.json")));
    panel.project.loadSourceProject(panel.mapping, panel.catalog.read("old/a.prj"),
                                    catalogOf(panel.mapping));
    panel.selectSourceLine(1);
    QVERIFY(!panel.assign(1));
    // The project is there, its table is not: the panel comes up all the same.
    QCOMPARE(panelPaths(&panel.project), QStringLiteral("new/a.prj"));
}

void tst_TargetMappingWidget::panelGoesWhileTheDialogIsOpen()
{
    Panel panel;
    panel.selectSourceLine(1);
    bool came = false;
    QTimer::singleShot(0, &panel.project, [&] {
        came = QApplication::activeModalWidget() != nullptr;
        panel.project.loadSourceProject(mappingOf("old/b.prj", {}), VKTab::ContentRef(),
                                        CatalogMappingC());
    });
    QTest::mouseClick(panel.widget()->assignButton, Qt::LeftButton);
    QVERIFY(came);
    QCOMPARE(panel.updates.count(), 0);
}

void tst_TargetMappingWidget::dialogLayout()
{
    const Panel panel;
    const TableLineSelectionDialog dialog(panel.catalog.read("new/a.prj"), nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("TableLineSelectionDialog"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Tabellenzeile auswählen"));
    const auto *const layout = qobject_cast<QVBoxLayout *>(dialog.layout());
    QCOMPARE(layout->count(), 2);
    const auto *const view = qobject_cast<VkTableView *>(layout->itemAt(0)->widget());
    QVERIFY(!view->isHeaderVisible());
    QVERIFY(view->getTable().isValid());
    const auto *const box = qobject_cast<QDialogButtonBox *>(layout->itemAt(1)->widget());
    QCOMPARE(box->orientation(), Qt::Horizontal);
    QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QVERIFY(!box->button(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(!dialog.selectedLine().isValid());
}

void tst_TargetMappingWidget::dialogFollowsTheClicks()
{
    const Panel panel;
    VKTab::ContentRef content = panel.catalog.read("new/a.prj");
    content.setSelection(VKTab::LineId(1), true);
    TableLineSelectionDialog dialog(content, nullptr);
    dialog.resize(500, 400);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPushButton *const ok =
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    // A selection that was there does not count for the button.
    QVERIFY(!ok->isEnabled());
    Panel::clickLine(&dialog, 2);
    QVERIFY(ok->isEnabled());
    QCOMPARE(dialog.selectedLine(), VKTab::LineId(2));
    QWidget *const grid = dialog.findChild<VkTableView *>()->grid();
    auto *const viewport = qobject_cast<QTableView *>(grid)->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, QPoint(20, viewport->height() - 5));
    QVERIFY(!ok->isEnabled());
    dialog.reject();
    // The selection is the table's own.
    QCOMPARE(content.getSelection(), dialog.selectedLine());
}

void tst_TargetMappingWidget::dialogNeedsALine()
{
    const Panel panel;
    VKTab::ContentRef content = panel.catalog.read("new/a.prj");
    TableLineSelectionDialog dialog(content, nullptr);
    dialog.show();
    dialog.accept();
    QVERIFY(dialog.isVisible());
    content.setSelection(VKTab::LineId(1), true);
    dialog.accept();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

QTEST_MAIN(tst_TargetMappingWidget)
#include "tst_TargetMappingWidget.moc"
