#include "ScreenshotDialog.h"

#include "MainWindow.h"
#include "ScriptDesk.h"

#include <formula/DlgFormulaEditor.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/table/Content.h>
#include <gui/application/PApplicationPool.h>
#include <selection/dlgSearchSelect.h>
#include <workbench/locator/LocatorDialog.h>
#include <workbench/review/PatternDock.h>
#include <workbench/review/PatternText.h>
#include <workbench/script/ScriptConsole.h>
#include <workbench/script/ScriptEditor.h>
#include <workbench/session/tasks/CarriedWork.h>
#include <workbench/session/tasks/FilterWork.h>
#include <workbench/session/tasks/NeighbourWork.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/FilterCommands.h>
#include <workbench/window/help/HelpWindow.h>
#include <workbench/window/linkdb/LinkDbHost.h>
#include <workbench/window/review/CarryCommands.h>
#include <workbench/window/review/NeighbourCommands.h>
#include <workbench/window/review/ReviewCommands.h>
#include <workbench/window/settings/KeyedActions.h>
#include <workbench/window/settings/KeysDialog.h>
#include <workbench/window/settings/WorkbenchActions.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QPainter>
#include <QTimer>
#include <QTreeWidget>

#include <functional>

namespace {

/// For the check while typing, or for the search and its index.
constexpr int formulaMilliseconds = 800;
constexpr int searchMilliseconds = 5000;
constexpr QSize formulaSize(560, 260);
constexpr QSize searchSize(640, 520);
constexpr int linksMilliseconds = 100;
constexpr int dialogMilliseconds = 400;
constexpr int reviewMilliseconds = 10000;
constexpr QSize scriptSize(760, 420);
constexpr QSize locatorSize(640, 320);
constexpr QSize keysSize(640, 420);
constexpr QSize helpSize(980, 620);
constexpr QSize linksSize(900, 420);
constexpr QSize documentsSize(1000, 420);

/// Time for what follows later: the counter, the room of a panel that has more text now.
void letFollow(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QPixmap grabLater(QWidget &dialog, const QSize &size, int milliseconds)
{
    dialog.resize(size);
    dialog.show();
    letFollow(milliseconds);
    return dialog.grab();
}

QPixmap formula(const QString &text, const EditorArea &editor)
{
    const VKTab::ContentRef table = editor.sourceTable();
    const auto variables =
        table.isValid()
            ? createVarsetFromVKTable(table, table.getLineInfoList().value(0).getLineId(), {})
            : QHash<QString, MapVarValueC>();
    DlgFormulaEditor dialog(variables, variables, QString(), nullptr);
    dialog.setShowContextMenu(true, true, true, true);
    dialog.setFormula(text);
    return grabLater(dialog, formulaSize, formulaMilliseconds);
}

QPixmap search(const QString &text)
{
    dlgSearchSelect dialog(nullptr, false, true);
    dialog.setSearchKeyWord(text);
    return grabLater(dialog, searchSize, searchMilliseconds);
}

/// Of the selected line. The dialog is modal, so it is taken while its own loop runs.
QPixmap documents()
{
    QPixmap picture;
    QTimer::singleShot(linksMilliseconds, qApp, [&picture] {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        auto *const list = dialog->findChild<QTreeWidget *>("tvDocuments");
        if (list && list->topLevelItemCount() > 0)
            list->setCurrentItem(list->topLevelItem(0));
        picture = grabLater(*dialog, documentsSize, linksMilliseconds);
        dialog->reject();
    });
    PApplicationPool::instance().action("LinkDbAddToDb")->trigger();
    return picture;
}

QPixmap ofLinkDb(const QString &name, const QString &address, const MainWindow &window)
{
    LinkDbHost *const host = window.linkDb();
    host->apply(address, QString());
    if (host->state() == LinkDbHost::Connecting) {
        QEventLoop loop;
        QObject::connect(host, &LinkDbHost::changed, &loop, &QEventLoop::quit);
        loop.exec();
    }
    if (host->state() != LinkDbHost::Connected)
        return {};
    if (name == QLatin1String("documents"))
        return documents();
    const bool isProof = name == QLatin1String("proof");
    QAction *const action = isProof ? window.findChild<QAction *>("proveNumbers")
                                    : PApplicationPool::instance().action("CallLinkMgr");
    action->trigger();
    auto *const dialog =
        window.findChild<QDialog *>(isProof ? "LinkProofDialog" : "LinkListDialog");
    return dialog ? grabLater(*dialog, linksSize, linksMilliseconds) : QPixmap();
}

/// The window with what a command or a script opened over it.
QPixmap pictureAbove(MainWindow &window, QWidget &dialog, const QSize &size)
{
    const QPixmap front = grabLater(dialog, size, dialogMilliseconds);
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    const QPoint place((window.width() - front.width()) / 2, window.height() / 8);
    painter.drawPixmap(place, front);
    painter.setPen(window.palette().color(QPalette::Mid));
    painter.drawRect(QRect(place, front.deviceIndependentSize().toSize()).adjusted(-1, -1, 0, 0));
    return picture;
}

QPixmap scriptPicture(const QString &file, MainWindow &window)
{
    window.scripts()->console()->show();
    ScriptEditor *const editor = window.scripts()->showEditor();
    if (!editor->openFile(file))
        return {};
    editor->run();
    return pictureAbove(window, *editor, scriptSize);
}

QPixmap locatorPicture(const QString &words, MainWindow &window)
{
    window.commands()->action(WorkbenchActions::Locate)->trigger();
    auto *const dialog = window.findChild<LocatorDialog *>();
    dialog->setWords(words);
    return pictureAbove(window, *dialog, locatorSize);
}

QPixmap keysPicture(const QString &words, const MainWindow &window)
{
    KeysDialog dialog(
        {}, [&window](const QString &id) { return window.keyedActions()->nameOf(id); }, nullptr);
    dialog.setWords(words);
    return grabLater(dialog, keysSize, dialogMilliseconds);
}

QPixmap manualPicture(const QString &topic)
{
    HelpWindow help(nullptr);
    return help.showTopic(topic) ? grabLater(help, helpSize, dialogMilliseconds) : QPixmap();
}

/// Returns when \a isDone, or after some seconds.
void waitUntil(const std::function<bool()> &isDone)
{
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (isDone())
            loop.quit();
    });
    look.start(dialogMilliseconds / 10);
    QTimer::singleShot(reviewMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The question of a sample over the window, taken while its own loop runs.
QPixmap samplePicture(MainWindow &window)
{
    QPixmap picture;
    QTimer::singleShot(dialogMilliseconds, qApp, [&picture, &window] {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        picture = pictureAbove(window, *dialog, dialog->size());
        dialog->reject();
    });
    window.commands()->action(WorkbenchActions::StartSample)->trigger();
    return picture;
}

/// The list of patterns with the first row whose text begins with \a row chosen, and the
/// differences of its first line; or the list of neighbours.
QPixmap reviewPicture(const QString &name, const QString &row, MainWindow &window)
{
    if (name == QLatin1String("neighbours")) {
        window.commands()->action(WorkbenchActions::Neighbours)->trigger();
        const NeighbourWork *const work = window.neighbours()->work();
        waitUntil([work] { return !work->isReading() && work->checkedLines() > 0; });
        return window.grab();
    }
    window.commands()->action(WorkbenchActions::ReviewPatterns)->trigger();
    const ReviewWork *const work = window.review()->work();
    waitUntil([work] { return work->hasPatterns(); });
    for (const int pattern : work->patterns().ranked()) {
        if (!PatternText::of(work->patterns(), pattern).startsWith(row))
            continue;
        window.review()->dock()->choose(pattern);
        break;
    }
    if (name == QLatin1String("sample"))
        return samplePicture(window);
    window.commands()->action(WorkbenchActions::ReviewDifferences)->trigger();
    const auto *const candidates = window.findChild<QTreeView *>("CandidateList");
    waitUntil([candidates] { return candidates && candidates->model()->rowCount() > 0; });
    letFollow(dialogMilliseconds);
    return window.grab();
}

/// The lines that were taken over from a former mapping, chosen in the filter over all lines.
QPixmap carriedPicture(MainWindow &window)
{
    window.commands()->action(WorkbenchActions::FilterLines)->trigger();
    FilterWork *const filter = window.filters()->work();
    waitUntil([&window, filter] {
        return filter->isKnown() && !window.carry()->work()->lines().isEmpty();
    });
    VelkRelease::LineFilter carried;
    carried.of(VelkRelease::LineTrait::Origin) = {{QStringLiteral("carried")}, false};
    filter->setFilter(carried);
    if (auto *const list = window.findChild<QTreeWidget *>("FilterList"))
        list->scrollToBottom();
    window.editor()->focusLines();
    letFollow(dialogMilliseconds);
    return window.grab();
}

} // namespace

QPixmap ScreenshotDialog::take(const QString &name, const QString &text, MainWindow &window)
{
    if (name == QLatin1String("formula"))
        return formula(text, *window.editor());
    if (name == QLatin1String("search"))
        return search(text);
    if (name == QLatin1String("script"))
        return scriptPicture(text, window);
    if (name == QLatin1String("locator"))
        return locatorPicture(text, window);
    if (name == QLatin1String("keys"))
        return keysPicture(text, window);
    if (name == QLatin1String("manual"))
        return manualPicture(text);
    if (QStringList{"review", "sample", "neighbours"}.contains(name))
        return reviewPicture(name, text, window);
    if (name == QLatin1String("carried"))
        return carriedPicture(window);
    const bool isOfLinkDb = QStringList{"links", "proof", "documents"}.contains(name);
    return isOfLinkDb ? ofLinkDb(name, text, window) : QPixmap();
}
