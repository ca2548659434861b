#include "EveryWindow.h"

#include "ModalScript.h"
#include "WindowFixture.h"

#include <formula/DlgFormulaEditor.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <selection/dlgSearchSelect.h>
#include <workbench/locator/LocatorDialog.h>
#include <workbench/locator/LocatorSearch.h>
#include <workbench/script/ScriptEditor.h>
#include <workbench/session/MappingDocument.h>
#include <workbench/session/RecoveryOffer.h>
#include <workbench/window/CatalogRootsDialog.h>
#include <workbench/window/DocumentDesk.h>
#include <workbench/window/EditorArea.h>
#include <workbench/window/HelpWindow.h>
#include <workbench/window/HistoryDialog.h>
#include <workbench/window/ImportDialog.h>
#include <workbench/window/LegendDialog.h>
#include <workbench/window/LineCommands.h>
#include <workbench/window/LinkDbLoginDialog.h>
#include <workbench/window/LinkListDialog.h>
#include <workbench/window/LinkProofDialog.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/NewMappingDialog.h>
#include <workbench/window/PartView.h>
#include <workbench/window/Question.h>
#include <workbench/window/ReasonDialog.h>
#include <workbench/window/RecoveryDialog.h>
#include <workbench/window/ReplacementsDialog.h>
#include <workbench/window/RepositoryLoginDialog.h>
#include <workbench/window/ReviewCommands.h>
#include <workbench/window/SettingsDialog.h>
#include <workbench/window/StepListDialog.h>
#include <workbench/window/WorkbenchSettings.h>

#include <QAction>
#include <QDockWidget>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

using Show = EveryWindow::Show;

/// Of a dialog that a command opens.
Show byCommand(const char *action)
{
    return [action](WindowFixture &fixture, const std::function<void(QWidget *)> &look) {
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        ModalScript script;
        script.then([&](QWidget *dialog) {
            look(dialog);
            dialog->close();
        });
        fixture.action(action)->trigger();
        QVERIFY2(script.isDone(), action);
    };
}

Show byHand(const std::function<QWidget *(WindowFixture &)> &make)
{
    return [make](WindowFixture &fixture, const std::function<void(QWidget *)> &look) {
        const std::unique_ptr<QWidget> window(make(fixture));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        look(window.get());
    };
}

RecoveryOffer fullOffer()
{
    RecoveryOffer offer;
    offer.saved.available = offer.recovered.available = offer.further.available = true;
    offer.laterChanges = 18;
    offer.damage = "damage";
    return offer;
}

} // namespace

void EveryWindow::addRows()
{
    QTest::addColumn<Show>("show");
    QTest::newRow("start page") << Show(
        [](WindowFixture &fixture, const auto &look) { look(fixture.window.get()); });
    QTest::newRow("main window") << Show([](WindowFixture &fixture, const auto &look) {
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        const auto docks = fixture.window->findChildren<QDockWidget *>();
        for (QDockWidget *const dock : docks)
            dock->show();
        QApplication::processEvents();
        look(fixture.window.get());
    });
    QTest::newRow("review") << Show([](WindowFixture &fixture, const auto &look) {
        fixture.open(fixture.mappingFile());
        QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
        fixture.action("reviewPatterns")->trigger();
        fixture.action("reviewDifferences")->trigger();
        const ReviewWork *const work = fixture.window->review()->work();
        QVERIFY(QTest::qWaitFor([work] { return work->hasPatterns(); }, 20'000));
        QApplication::processEvents();
        look(fixture.window.get());
    });
    for (const char *const command : {"settings", "helpKeys", "goLine", "linesConfirm", "assignAll",
                                      "helpAbout", "reviewReplacements", "fileNew", "fileRoots"})
        QTest::newRow(command) << byCommand(command);
    QTest::newRow("history") << byHand([](WindowFixture &fixture) {
        fixture.open(fixture.mappingFile());
        return new HistoryDialog(fixture.window->desk()->document()->mappingFile(),
                                 {{din933, {}, {}}, 3}, nullptr);
    });
    QTest::newRow("reason") << byHand([](WindowFixture &) {
        return new ReasonDialog({"3  M8 x 40", "4  M8 x 45"}, "as before", nullptr);
    });
    QTest::newRow("import") << byHand([](WindowFixture &fixture) {
        return new ImportDialog(fixture.settings->store(), nullptr);
    });
    QTest::newRow("script") << byHand(
        [](WindowFixture &fixture) -> QWidget * { return new ScriptEditor(fixture.window.get()); });
    QTest::newRow("links") << byHand(
        [](WindowFixture &) { return new LinkListDialog(PLinkDbC::instance(), nullptr); });
    QTest::newRow("proof") << byHand(
        [](WindowFixture &) { return new LinkProofDialog(VelkRelease::LinkProof(), nullptr); });
    QTest::newRow("database login") << byHand([](WindowFixture &) {
        return new LinkDbLoginDialog("postgresql://db.example/links", "anna", true, nullptr);
    });
    QTest::newRow("formula") << byHand([](WindowFixture &) {
        auto *const dialog = new DlgFormulaEditor({}, {}, QString(), nullptr);
        dialog->setFormula("Dia .GE. 12 .AND. FK .EQ. 'x");
        return dialog;
    });
    QTest::newRow("search") << byHand(
        [](WindowFixture &) { return new dlgSearchSelect(nullptr, false, true); });
    QTest::newRow("recovery") << byHand(
        [](WindowFixture &) { return new RecoveryDialog("/d/m.json", fullOffer(), nullptr); });
    QTest::newRow("locator") << byHand([](WindowFixture &fixture) {
        auto *const search = new LocatorSearch(fixture.window.get());
        return new LocatorDialog(search, nullptr);
    });
    QTest::newRow("manual") << byHand([](WindowFixture &) {
        auto *const help = new HelpWindow(nullptr);
        help->showTopic("manual/tour.md");
        return help;
    });
    QTest::newRow("steps") << byHand([](WindowFixture &fixture) {
        fixture.open(fixture.mappingFile());
        return new StepListDialog(fixture.window->desk()->document(), nullptr);
    });
    QTest::newRow("legend") << byHand([](WindowFixture &) { return new LegendDialog(nullptr); });
    QTest::newRow("login") << byHand([](WindowFixture &) {
        return new RepositoryLoginDialog("svn://host/catalog", "refused", "me", nullptr);
    });
    QTest::newRow("part") << byHand([](WindowFixture &) {
        return new PartView(din933, WindowFixture::roots().target + '/' + din933, nullptr);
    });
}
