#include "../support/ControlCheck.h"
#include "../support/TestCatalog.h"

#include <formula/DlgFormulaEditor.h>
#include <linkdbgui/DocumentListDialogC.h>
#include <linkdbgui/NewRecordDialogC.h>

#include <mapping/project/TableLineSelectionDialog.h>
#include <mapping/table/dlgEditValueRangeMappings.h>
#include <mapping/table/dlgSelectValueRangeVars.h>
#include <selection/dlgSearchSelect.h>
#include <selection/dlgSelect.h>

#include <core/config/PConfigInst.h>
#include <core/plugin/PTranslateManager.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplication.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <functional>

using Maker = std::function<QDialog *()>;
Q_DECLARE_METATYPE(Maker)

/// What the dialogs of the table editor have in common.
class tst_EditorDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placeIsKept_data();
    void placeIsKept();
    void tableWithoutTopology();
    void aHitOfTheSearchCanBeTaken();
    void worksByKeyboardAndScreenReader_data();
    void worksByKeyboardAndScreenReader();
    void fitsInEveryLanguage_data() { worksByKeyboardAndScreenReader_data(); }
    void fitsInEveryLanguage();
};

void tst_EditorDialogs::placeIsKept_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("dlgSelectValueRangeVars") << Maker([] {
        return new dlgSelectValueRangeVars({"L", "T"}, nullptr);
    });
    QTest::newRow("dlgEditValueRangeMappings")
        << Maker([] { return new dlgEditValueRangeMappings("{L=1} -> 2", nullptr); });
    QTest::newRow("TableLineSelectionDialog")
        << Maker([] { return new TableLineSelectionDialog(VKTab::ContentRef(), nullptr); });
}

void tst_EditorDialogs::placeIsKept()
{
    QFETCH(Maker, make);
    const QTemporaryDir folder;
    const PApplication application(
        PRefPtr<PConfig>(new PConfigInst(folder.filePath("app.cfg"), false)));
    std::unique_ptr<QDialog> dialog(make());
    QCOMPARE(dialog->objectName(), QString(QTest::currentDataTag()));
    dialog->resize(531, 417); // kept as it is at the end, with all that is in it
    dialog.reset();
    dialog.reset(make());
    QCOMPARE(dialog->size(), QSize(531, 417));
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    QCOMPARE(dialog->size(), QSize(531, 417));
}

void tst_EditorDialogs::tableWithoutTopology()
{
    const TestCatalog catalog;
    catalog.write("new/a.prj", "k:n,T:n\n5,2\n",
                  [](auto &table) { table.fields[1].kind = VKTab::FieldKind::Topology; });
    const VKTab::ContentRef table = catalog.read("new/a.prj");
    const TableLineSelectionDialog dialog(table, nullptr);
    const auto *const view = dialog.findChild<VkTableView *>();
    QVERIFY(!view->isHeaderVisible());
    QVERIFY(view->model()->columnOf(table.getVar(u"k").getVarId()) >= 0);
    QCOMPARE(view->model()->columnOf(table.getVar(u"T").getVarId()), -1);
}

void tst_EditorDialogs::aHitOfTheSearchCanBeTaken()
{
    const TestCatalog catalog;
    catalog.write("new/a.prj", "k:n,T\n5,left\n6,right\n");
    TableLineSelectionDialog dialog(catalog.read("new/a.prj"), nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const auto *const ok = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    QVERIFY(!ok->isEnabled());
    auto *const view = dialog.findChild<VkTableView *>();
    QTest::keyClick(view->grid(), Qt::Key_F, Qt::ControlModifier);
    auto *const field = view->findChild<QWidget *>("findBar")->findChild<QLineEdit *>();
    QTest::keyClicks(field, "right");
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(ok->isEnabled());
    dialog.accept();
    QCOMPARE(dialog.selectedLine().value(0), 2);
}

void tst_EditorDialogs::worksByKeyboardAndScreenReader_data()
{
    QTest::addColumn<std::function<QWidget *()>>("make");
    const auto row = [](const char *name, const std::function<QWidget *()> &make) {
        QTest::newRow(name) << make;
    };
    row("dlgSelectValueRangeVars", [] { return new dlgSelectValueRangeVars({"L"}, nullptr); });
    row("dlgEditValueRangeMappings",
        [] { return new dlgEditValueRangeMappings("{L=1} -> 2", nullptr); });
    row("TableLineSelectionDialog", [] {
        const TestCatalog catalog;
        catalog.write("new/a.prj", "k:n,T:n\n5,2\n");
        return new TableLineSelectionDialog(catalog.read("new/a.prj"), nullptr);
    });
    row("DlgFormulaEditor", [] { return new DlgFormulaEditor({}, {}, QString(), nullptr); });
    row("dlgSearchSelect", [] { return new dlgSearchSelect(nullptr, false, false); });
    row("dlgSelect", [] { return new dlgSelect(nullptr); });
    row("DocumentListDialogC", [] { return new DocumentListDialogC(nullptr, {}); });
    row("NewRecordDialogC", [] {
        auto *const form = new NewRecordDialogC;
        form->setFields({"PATH", "CADSYSTEM", "PDMSYSTEM"});
        return form;
    });
}

void tst_EditorDialogs::worksByKeyboardAndScreenReader()
{
    QFETCH(std::function<QWidget *()>, make);
    const QTemporaryDir folder;
    const PApplication application(
        PRefPtr<PConfig>(new PConfigInst(folder.filePath("app.cfg"), false)));
    const std::unique_ptr<QWidget> dialog(make());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    const QStringList faults = ControlCheck::mnemonics(*dialog) + ControlCheck::access(*dialog);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
}

/// No text is cut on a screen of 1920 x 1200 at 200 %, title and frame left out.
void tst_EditorDialogs::fitsInEveryLanguage()
{
    QFETCH(std::function<QWidget *()>, make);
    PTranslateManager::registerLibraries();
    QStringList faults;
    int languages = 0;
    const QStringList catalogs = QDir(":/translations").entryList({"VelkLinkDbGui_*.qm"});
    for (const QString &catalog : catalogs) {
        const QString language = QFileInfo(catalog).baseName().section('_', 1);
        PTranslateManager::instance().setLanguage(language);
        ++languages;
        const QTemporaryDir folder; // sizes are kept from one dialog to the next
        const PApplication application(
            PRefPtr<PConfig>(new PConfigInst(folder.filePath("app.cfg"), false)));
        const std::unique_ptr<QWidget> dialog(make());
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        const QStringList found = ControlCheck::mnemonics(*dialog) +
                                  ControlCheck::cuts(dialog.get(), {950, 560}) +
                                  ControlCheck::title(*dialog, language);
        for (const QString &fault : found)
            faults += language + ": " + fault;
        ControlCheck::picture(dialog.get(), QTest::currentDataTag() + ('-' + language));
    }
    PTranslateManager::instance().setLanguage(QString());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    QCOMPARE(languages, 21);
}

QTEST_MAIN(tst_EditorDialogs)
#include "tst_EditorDialogs.moc"
