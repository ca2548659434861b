#include "EveryQuestion.h"

#include "ModalScript.h"
#include "WindowFixture.h"

#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/records/MappingFile.h>
#include <geomcore/table/Content.h>
#include <geomcore/value/MidentClass.h>
#include <geomcore/value/RangeText.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplicationPool.h>
#include <release/decide/LineEdits.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/ReviewWork.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/linkdb/LinkDbHost.h>
#include <workbench/window/linkdb/LinkListDialog.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/review/ReviewCommands.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>
#include <QTreeWidget>

namespace {

using Look = std::function<void(QWidget *)>;

const QString Screws = QStringLiteral("standardparts/screws/din933.prj");
const QString Pins = QStringLiteral("standardparts/pins/iso2338.prj");

/// What opens when somebody does that; then it is called off.
void ask(const std::function<void()> &act, const Look &look)
{
    ModalScript script;
    script.then([&](QWidget *dialog) {
        look(dialog);
        dialog->close();
    });
    act();
    QTRY_VERIFY(script.isDone());
}

/// The button of the tool bars.
void clickTool(const WindowFixture &fixture, const char *action)
{
    QAction *const wanted = PApplicationPool::instance().action(action);
    QWidget *button = nullptr;
    for (const QToolBar *const bar : fixture.window->findChildren<QToolBar *>())
        button = bar->widgetForAction(wanted) ? bar->widgetForAction(wanted) : button;
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
}

MappingDocument &document(const WindowFixture &fixture)
{
    return *fixture.window->desk()->document();
}

/// A file of its own, so that nothing of it is left to others.
QString openCopy(WindowFixture &fixture, const QString &project)
{
    document(fixture).close();
    const QString file = fixture.mappingFile("question.json");
    fixture.open(file);
    [&] {
        QVERIFY(fixture.window->editor()->selectProject(project));
    }();
    return file;
}

void discard(const WindowFixture &fixture)
{
    document(fixture).close();
    QApplication::processEvents();
}

PrjMappingC decided(const ReleaseMappingC &release, int line, int target)
{
    for (int i = 0; i < release.countMappings(); ++i) {
        if (release.mappingAt(i).getSourcePath() != Screws)
            continue;
        VelkRelease::LineEdits edits(release.mappingAt(i));
        edits.assign(line, 0, target, PRJMAPPING::Verified);
        PrjMappingC changed = edits.mapping();
        changed.updateMappingState();
        return changed;
    }
    return {};
}

/// The file dialog that comes next gets that name pasted into its field.
void giveFile(ModalScript &script, const QString &file)
{
    script.then([file](QWidget *dialog) {
        auto *const name = dialog->findChild<QLineEdit *>("fileNameEdit");
        QVERIFY(name && name->isVisible());
        QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
        QGuiApplication::clipboard()->setText(file);
        QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
        const auto *const buttons = dialog->findChild<QDialogButtonBox *>("buttonBox");
        QAbstractButton *accept = nullptr;
        for (QAbstractButton *const button : buttons->buttons())
            accept = buttons->buttonRole(button) == QDialogButtonBox::AcceptRole ? button : accept;
        QVERIFY(accept);
        QTRY_VERIFY(accept->isEnabled()); // it reads the folder on another thread
        QTest::mouseClick(accept, Qt::LeftButton);
    });
}

/// What comes last of those that open one after another; then it is called off.
void lookAtLast(ModalScript &script, const Look &look)
{
    script.then([&look](QWidget *dialog) {
        look(dialog);
        dialog->close();
    });
}

void showUnreadable(WindowFixture &fixture, const Look &look)
{
    discard(fixture);
    const QString path = fixture.directory.filePath("broken.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{") == 1);
    file.close();
    ModalScript script;
    giveFile(script, path);
    lookAtLast(script, look);
    fixture.press(Qt::Key_O, Qt::ControlModifier);
    QTRY_VERIFY(script.isDone());
    QVERIFY(!document(fixture).isOpen());
}

/// What others decided meanwhile, whether one decision is for all that are alike, and what is still
/// in conflict when it is saved.
void showConflicts(WindowFixture &fixture, const Look &look)
{
    const QString file = openCopy(fixture, Screws);
    MappingFile theirs;
    QVERIFY(theirs.read(file));
    ReleaseMappingC release = theirs.releases().first();
    for (const int line : {1, 2}) {
        document(fixture).updateMapping(decided(document(fixture).release(), line, 7));
        release.addMapping(decided(release, line, 8));
    }
    document(fixture).finishStep();
    theirs.setRelease(release);
    QVERIFY(theirs.write(file));
    ModalScript script;
    script.thenClick("answerRefuse");
    script.then([&](QWidget *merged) {
        look(merged);
        merged->close();
    });
    fixture.press(Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(script.isDone());
    QVERIFY(fixture.window->editor()->goTo({{Screws, {}, {}}, 1}));
    QApplication::processEvents();
    ask([&] { fixture.press(Qt::Key_1, Qt::ControlModifier); }, look);
    ask([&] { fixture.press(Qt::Key_S, Qt::ControlModifier); }, look);
    discard(fixture);
}

/// A line that is confirmed by its key although a value of its range has no new line.
void showGap(WindowFixture &fixture, const Look &look)
{
    const QString file = openCopy(fixture, Pins);
    EditorArea *const editor = fixture.window->editor();
    const VKTab::ContentRef table = editor->sourceTable();
    VKTab::Var range;
    for (const VKTab::Var &var : table.getVarList()) {
        if (var.isFW())
            range = var;
    }
    const auto text =
        VKTab::RangeText::parse(table.getRangeText(range.getVarId(), VKTab::LineId(1)));
    QVERIFY(text && !text->values().isEmpty());
    QStringList rows;
    for (const QString &value : text->values().mid(1)) {
        MidentClass ident;
        ident.AddVarValue(range.getName(), value);
        rows << ident.MakeVarvalueString() + " -> 1";
    }
    PrjMappingC changed = document(fixture).mapping(editor->currentProject());
    changed.changeTarget(0, [&](PrjMappingTargetC &target) {
        target.addLineId(1, 1, PRJMAPPING::ToCheck, rows.join('\n'));
    });
    changed.updateMappingState();
    discard(fixture);
    MappingFile mapping;
    QVERIFY(mapping.read(file));
    ReleaseMappingC release = mapping.releases().first();
    release.addMapping(changed);
    mapping.setRelease(release);
    QVERIFY(mapping.write(file));
    fixture.open(file);
    QVERIFY(editor->goTo({{Pins, {}, {}}, 1}));
    fixture.sourceView()->grid()->setFocus();
    ask([&] { fixture.press(Qt::Key_V); }, look);
    discard(fixture);
}

/// A file in a folder that is not there, named to *File > Export lines*.
void showUnwritable(WindowFixture &fixture, const Look &look)
{
    (void)openCopy(fixture, Screws);
    ModalScript script;
    giveFile(script, fixture.directory.filePath("missing/lines.csv"));
    lookAtLast(script, look);
    QMenuBar *const bar = fixture.window->menuBar();
    auto *const menu = bar->findChild<QMenu *>("fileMenu");
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    QTRY_VERIFY(menu->isVisible());
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(fixture.action("fileExport")).center());
    QTRY_VERIFY(script.isDone());
    discard(fixture);
}

/// Whether lines of a pattern are confirmed of which the program is not sure.
void showDoubt(WindowFixture &fixture, const Look &look)
{
    (void)openCopy(fixture, Screws);
    const ReviewWork *const work = fixture.window->review()->work();
    if (!work->isWanted())
        fixture.press(Qt::Key_F7);
    QVERIFY(QTest::qWaitFor([work] { return work->hasPatterns() && !work->isReading(); }, 20'000));
    QApplication::processEvents();
    auto *const list = fixture.window->findChild<QTreeView *>("PatternList");
    const auto text = [](const char *source) {
        return QCoreApplication::translate("PatternText", source);
    };
    const QModelIndexList found = list->model()->match(
        list->model()->index(0, 0), Qt::DisplayRole,
        text("unsicher: %1").arg(text("kein Unterschied")), 1, Qt::MatchStartsWith);
    QVERIFY(!found.isEmpty());
    list->setFocus();
    list->setCurrentIndex(found.first());
    fixture.press(Qt::Key_Return);
    ask([&] { fixture.press(Qt::Key_Return, Qt::ControlModifier); }, look);
    discard(fixture);
}

/// That nothing was deleted, whether to have back what was, and that the line of a number is not in
/// this mapping.
void showLinks(WindowFixture &fixture, const Look &look)
{
    (void)openCopy(fixture, Screws);
    WorkbenchSettings::Values values = fixture.settings->values();
    static int databases = 0;
    values.linkDb =
        "sqlite:" + fixture.directory.filePath(QString("question%1.db").arg(++databases));
    fixture.settings->setValues(values);
    QTRY_COMPARE(fixture.window->linkDb()->state(), LinkDbHost::Connected);
    clickTool(fixture, "CallLinkMgr");
    const QPointer<LinkListDialog> links = fixture.window->findChild<LinkListDialog *>();
    QVERIFY(links);
    const auto click = [&](const char *button) {
        ask([&] { QTest::mouseClick(links->findChild<QPushButton *>(button), Qt::LeftButton); },
            look);
    };
    const auto run = [](const QString &statement) {
        QVERIFY2(PLinkDbC::instance()->executeInsertStatement(statement) &&
                     PLinkDbC::instance()->commit(),
                 qPrintable(statement));
    };
    click("restore");
    for (const char *const number : {"N1", "N2"})
        run(QString("INSERT INTO plm_document(GEO_ID, PDMID1, PRJ_PATH, VERSION, LINE_ID, "
                    "LINE_SUBID) VALUES('%1', '%1', 'nowhere/x.prj', 'v1', 1, 0)")
                .arg(number));
    run("DELETE FROM plm_document WHERE PDMID1 = 'N1'");
    click("restore");
    links->close();
    QApplication::processEvents();
    clickTool(fixture, "CallLinkMgr");
    const QPointer<LinkListDialog> again = fixture.window->findChild<LinkListDialog *>();
    auto *const list = again->findChild<QTreeWidget *>("links");
    QCOMPARE(list->topLevelItemCount(), 1);
    const QPoint place = list->visualItemRect(list->topLevelItem(0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    ask([&] { QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place); }, look);
    again->close();
    QApplication::processEvents();
    discard(fixture);
}

/// Without a program for mails.
void showNoMail(WindowFixture &fixture, const Look &look)
{
    (void)openCopy(fixture, Screws);
    QVERIFY(fixture.window->editor()->selectLine(3));
    ask([&] { clickTool(fixture, "LinkDbSendMail"); }, look);
    discard(fixture);
}

} // namespace

QList<EveryWindow::Window> EveryQuestion::all()
{
    return {{"unreadable file", showUnreadable},
            {"conflicts", showConflicts},
            {"gap in a range", showGap},
            {"unwritable file", showUnwritable},
            {"lines in doubt", showDoubt},
            {"questions of links", showLinks},
            {"no mail", showNoMail}};
}
