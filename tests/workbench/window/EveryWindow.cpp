#include "EveryWindow.h"

#include "EveryQuestion.h"
#include "ModalScript.h"
#include "WindowFixture.h"

#include <core/message/PMessage.h>
#include <formula/DlgFormulaEditor.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/records/MappingFile.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplicationPool.h>
#include <selection/dlgSearchSelect.h>
#include <workbench/locator/LocatorDialog.h>
#include <workbench/locator/LocatorSearch.h>
#include <workbench/script/ScriptEditor.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/journal/RecoveryOffer.h>
#include <workbench/window/document/CatalogRootsDialog.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/ImportDialog.h>
#include <workbench/window/document/NewMappingDialog.h>
#include <workbench/window/document/RecoveryDialog.h>
#include <workbench/window/document/RepositoryLoginDialog.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/help/HelpWindow.h>
#include <workbench/window/help/LegendDialog.h>
#include <workbench/window/history/HistoryDialog.h>
#include <workbench/window/history/StepListDialog.h>
#include <workbench/window/linkdb/LinkDbHost.h>
#include <workbench/window/linkdb/LinkDbLoginDialog.h>
#include <workbench/window/linkdb/LinkListDialog.h>
#include <workbench/window/linkdb/LinkProofDialog.h>
#include <workbench/window/look/PartView.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/message/Question.h>
#include <workbench/window/message/ReasonDialog.h>
#include <workbench/window/review/CarryCommands.h>
#include <workbench/window/review/ReplacementsDialog.h>
#include <workbench/window/review/ReviewCommands.h>
#include <workbench/window/review/ShareCommands.h>
#include <workbench/window/settings/SettingsDialog.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QToolButton>

namespace {

const QString din933 = QStringLiteral("standardparts/screws/din933.prj");

using Show = EveryWindow::Show;

void openMapping(WindowFixture &fixture)
{
    if (!fixture.window->desk()->document()->isOpen())
        fixture.open(fixture.mappingFile());
    QVERIFY(fixture.window->editor()->goTo({{din933, {}, {}}, 3}));
}

/// Of the dialogs that open one after another when somebody does that.
void showInTurn(const std::function<void()> &act, int dialogs,
                const std::function<void(QWidget *, int)> &look)
{
    ModalScript script;
    for (int i = 0; i < dialogs; ++i)
        script.then([&look, i](QWidget *dialog) { look(dialog, i); });
    act();
    QVERIFY(script.isDone());
}

/// Of a dialog that a command opens.
Show byCommand(const char *action)
{
    return [action](WindowFixture &fixture, const std::function<void(QWidget *)> &look) {
        openMapping(fixture);
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

/// How many lines are drawn, and how to go on after a wrong one.
void showSample(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    openMapping(fixture);
    const ReviewWork *const work = fixture.window->review()->work();
    if (!work->isWanted())
        fixture.action("reviewPatterns")->trigger();
    QVERIFY(QTest::qWaitFor([work] { return work->hasPatterns() && !work->isReading(); }, 20'000));
    fixture.sourceView()->grid()->selectAll();
    const auto act = [&] {
        fixture.action("sampleStart")->trigger();
        fixture.action("sampleWrong")->trigger();
    };
    showInTurn(act, 2, [&](QWidget *dialog, int turn) {
        look(dialog);
        if (turn == 0)
            static_cast<QDialog *>(dialog)->accept();
        else
            dialog->close();
    });
}

/// What is said without a shared copy, whose folders there are, who has it open.
void showSharing(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    openMapping(fixture);
    const auto show = [&](const char *action) {
        showInTurn([&] { fixture.action(action)->trigger(); }, 1,
                   [&](QWidget *dialog, int) {
                       look(dialog);
                       dialog->close();
                   });
    };
    const QString folder = fixture.directory.filePath("share");
    if (!QDir(folder).exists()) {
        show("sharePublish");
        QVERIFY(QDir().mkpath(folder) && fixture.window->share()->shareWith(folder + "/m.json"));
    }
    show("shareFolders");
    show("shareWho");
}

/// That nothing can be taken over from the open mapping itself; the questions before are Qt's.
void showCarrying(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    openMapping(fixture);
    const QString open = fixture.window->desk()->document()->mappingFile();
    showInTurn([&] { (void)fixture.window->carry()->carry(open, WindowFixture::roots().target); },
               1,
               [&](QWidget *dialog, int) {
                   look(dialog);
                   dialog->close();
               });
}

/// Of the dialog that opens when somebody does that; it is called off.
void showOne(const std::function<void()> &act, const std::function<void(QWidget *)> &look)
{
    showInTurn(act, 1, [&](QWidget *dialog, int) {
        look(dialog);
        dialog->close();
    });
}

/// Which release of a file with several; what is open stays open.
void showReleases(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    openMapping(fixture);
    const QString file = fixture.mappingFile("releases.json");
    MappingFile mapping;
    QVERIFY(mapping.read(file));
    ReleaseMappingC older;
    older.setSourceDate("2019-01-01T00:00:00Z");
    older.setTargetDate("2020-01-01T00:00:00Z");
    mapping.setRelease(older);
    QVERIFY(mapping.write(file));
    showOne([&] { QVERIFY(!fixture.window->desk()->open({.file = file})); }, look);
}

void showGroups(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    WorkbenchSettings::Values values = fixture.settings->values();
    values.linkDb = "sqlite:" + fixture.directory.filePath("link.db");
    fixture.settings->setValues(values);
    QTRY_COMPARE(fixture.window->linkDb()->state(), LinkDbHost::Connected);
    showOne([] { PApplicationPool::instance().action("LinkDbChangeGroup")->trigger(); }, look);
}

/// The pages of the table and of the report, and where they are printed to.
void showPrinting(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    openMapping(fixture);
    showOne([&] { fixture.action("filePrintReport")->trigger(); }, look);
    ModalScript script;
    script.then([&](QWidget *preview) {
        look(preview);
        const QString print = QCoreApplication::translate("QPrintPreviewDialog", "Print");
        for (QAction *const action : preview->findChildren<QAction *>()) {
            if (action->text() == print)
                QTimer::singleShot(0, action, &QAction::trigger);
        }
    });
    script.then([&](QWidget *dialog) {
        look(dialog);
        dialog->close();
    });
    script.then([](QWidget *preview) { preview->close(); });
    fixture.action("filePrint")->trigger();
    QVERIFY(script.isDone());
}

/// Whether to keep what was changed, that others changed it too, and that it was discarded.
void showUnsaved(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    openMapping(fixture);
    DocumentDesk *const desk = fixture.window->desk();
    const QString file = desk->document()->mappingFile();
    fixture.press(Qt::Key_V);
    QTRY_VERIFY(desk->document()->isModified());
    showOne([&] { QVERIFY(!desk->close()); }, look);
    MappingFile theirs;
    QVERIFY(theirs.read(file));
    ReleaseMappingC changed = theirs.releases().first();
    changed.setTargetDate("2030-01-01T00:00:00Z");
    theirs.setRelease(changed);
    QVERIFY(theirs.write(file));
    showOne([&] { QVERIFY(!desk->save()); }, look);
    showInTurn(
        [&] { QVERIFY(desk->close()); }, 1,
        [](QWidget *dialog, int) { dialog->findChild<QPushButton *>("answerRefuse")->click(); });
    (void)fixture.mappingFile(); // as it was
}

/// Opened for reading, as somebody else has it.
void showLocked(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    DocumentDesk *const desk = fixture.window->desk();
    const QString file = fixture.mappingFile("locked.json");
    MappingDocument other;
    QCOMPARE(other.open({.mappingFile = file, .sourceDate = {}, .rootName = {}}),
             MappingDocument::OpenResult::Opened);
    showOne([&] { QVERIFY(desk->open({.file = file, .roots = WindowFixture::roots()})); }, look);
    QVERIFY(desk->close());
}

/// What a script or a library asks.
void showMessage(WindowFixture & /*fixture*/, const std::function<void(QWidget *)> &look)
{
    showOne([] { (void)PMessage::Show("M8 x 40", PMsgDlgMode::YesNoCancel); }, look);
    showOne([] { (void)PMessage::Show("M8 x 40", PMsgDlgMode::OkCancel); }, look);
}

/// That the script is not saved, and which one to open instead.
void showScripts(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    ScriptEditor editor(fixture.window.get());
    editor.show();
    auto *const text = editor.findChild<QPlainTextEdit *>("scriptText");
    QTest::keyClicks(text, "print(1)");
    const auto click = [&](const char *name) {
        QTest::mouseClick(editor.findChild<QPushButton *>(name), Qt::LeftButton);
    };
    showOne([&] { click("openScript"); }, look);
}

/// Which script to open, and where to save one.
void showScriptFiles(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    ScriptEditor editor(fixture.window.get());
    editor.show();
    for (const char *const name : {"openScript", "saveScript"}) {
        auto *const button = editor.findChild<QPushButton *>(name);
        showOne([&] { QTest::mouseClick(button, Qt::LeftButton); }, look);
    }
}

/// That the new mapping's file is there already.
void showTaken(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    const QString file = fixture.mappingFile("taken.json");
    NewMappingDialog dialog(fixture.settings->store(), nullptr);
    dialog.findChild<QLineEdit *>("sourceRoot")->setText(WindowFixture::roots().source);
    dialog.findChild<QLineEdit *>("targetRoot")->setText(WindowFixture::roots().target);
    dialog.findChild<QLineEdit *>("mappingFile")->setText(file);
    dialog.show();
    showOne([&] { dialog.accept(); }, look);
}

/// Which folder a catalog is in.
void showFolders(WindowFixture &fixture, const std::function<void(QWidget *)> &look)
{
    NewMappingDialog dialog(fixture.settings->store(), nullptr);
    dialog.show();
    auto *const button = dialog.findChild<QToolButton *>();
    showOne([&] { button->click(); }, look);
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

void EveryWindow::addRows(bool withThoseOfQt)
{
    QTest::addColumn<Show>("show");
    const QList<Window> windows = all();
    for (const Window &window : windows) {
        if (!window.isOfQt || withThoseOfQt)
            QTest::newRow(window.name.constData()) << window.show;
    }
}

QList<EveryWindow::Window> EveryWindow::all()
{
    QList<Window> windows;
    const auto row = [&windows](const char *name, const Show &show) {
        windows.append({name, show});
    };
    row("start page", [](WindowFixture &fixture, const auto &look) { look(fixture.window.get()); });
    row("main window", [](WindowFixture &fixture, const auto &look) {
        openMapping(fixture);
        const auto docks = fixture.window->findChildren<QDockWidget *>();
        for (QDockWidget *const dock : docks)
            dock->show();
        QApplication::processEvents();
        look(fixture.window.get());
    });
    row("review", [](WindowFixture &fixture, const auto &look) {
        openMapping(fixture);
        fixture.action("reviewPatterns")->trigger();
        fixture.action("reviewDifferences")->trigger();
        const ReviewWork *const work = fixture.window->review()->work();
        QVERIFY(QTest::qWaitFor([work] { return work->hasPatterns(); }, 20'000));
        QApplication::processEvents();
        look(fixture.window.get());
    });
    for (Window &window : windows)
        window.isMainWindow = true;
    for (const char *const command : {"settings", "helpKeys", "goLine", "linesConfirm", "assignAll",
                                      "helpAbout", "reviewReplacements", "fileNew", "fileRoots"})
        row(command, byCommand(command));
    row("history", byHand([](WindowFixture &fixture) {
            openMapping(fixture);
            return new HistoryDialog(fixture.window->desk()->document()->mappingFile(),
                                     {{din933, {}, {}}, 3}, nullptr);
        }));
    row("reason", byHand([](WindowFixture &) {
            return new ReasonDialog({"3  M8 x 40", "4  M8 x 45"}, "as before", nullptr);
        }));
    row("import", byHand([](WindowFixture &fixture) {
            return new ImportDialog(fixture.settings->store(), nullptr);
        }));
    row("script", byHand([](WindowFixture &fixture) -> QWidget * {
            return new ScriptEditor(fixture.window.get());
        }));
    row("links",
        byHand([](WindowFixture &) { return new LinkListDialog(PLinkDbC::instance(), nullptr); }));
    row("proof", byHand([](WindowFixture &) {
            return new LinkProofDialog(VelkRelease::LinkProof(), nullptr);
        }));
    row("database login", byHand([](WindowFixture &) {
            return new LinkDbLoginDialog("postgresql://db.example/links", "anna", true, nullptr);
        }));
    row("formula", byHand([](WindowFixture &) {
            auto *const dialog = new DlgFormulaEditor({}, {}, QString(), nullptr);
            dialog->setFormula("Dia .GE. 12 .AND. FK .EQ. 'x");
            return dialog;
        }));
    row("search",
        byHand([](WindowFixture &) { return new dlgSearchSelect(nullptr, false, true); }));
    row("recovery", byHand([](WindowFixture &) {
            return new RecoveryDialog("/d/m.json", fullOffer(), nullptr);
        }));
    row("locator", byHand([](WindowFixture &fixture) {
            auto *const search = new LocatorSearch(fixture.window.get());
            return new LocatorDialog(search, nullptr);
        }));
    row("manual", byHand([](WindowFixture &) {
            auto *const help = new HelpWindow(nullptr);
            help->showTopic("manual/tour.md");
            return help;
        }));
    row("steps", byHand([](WindowFixture &fixture) {
            openMapping(fixture);
            return new StepListDialog(fixture.window->desk()->document(), nullptr);
        }));
    row("legend", byHand([](WindowFixture &) { return new LegendDialog(nullptr); }));
    row("login", byHand([](WindowFixture &) {
            return new RepositoryLoginDialog("svn://host/catalog", "refused", "me", nullptr);
        }));
    row("part", byHand([](WindowFixture &) {
            return new PartView(din933, WindowFixture::roots().target + '/' + din933, nullptr);
        }));
    windows.last().isTitledByFile = true;
    row("sample", showSample);
    row("sharing", showSharing);
    row("carrying", showCarrying);
    row("release", showReleases);
    row("group", showGroups);
    row("unsaved", showUnsaved);
    row("locked", showLocked);
    row("message", showMessage);
    row("unsaved script", showScripts);
    row("taken file", showTaken);
    windows += EveryQuestion::all();
    for (const char *const command :
         {"fileOpen", "fileSaveAs", "fileExport", "fileReport", "carryDecisions", "shareWith"}) {
        row(command, byCommand(command));
        windows.last().isOfQt = true;
    }
    for (const auto &[name, show] : {std::pair("printing", Show(showPrinting)),
                                     {"script files", Show(showScriptFiles)},
                                     {"folder", Show(showFolders)}}) {
        row(name, show);
        windows.last().isOfQt = true;
    }
    return windows;
}
