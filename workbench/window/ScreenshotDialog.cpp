#include "ScreenshotDialog.h"

#include "EditorArea.h"
#include "LinkDbHost.h"
#include "MainWindow.h"

#include <formula/DlgFormulaEditor.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/table/Content.h>
#include <gui/application/PApplicationPool.h>
#include <selection/dlgSearchSelect.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QTimer>
#include <QTreeWidget>

namespace {

/// For the check while typing, or for the search and its index.
constexpr int formulaMilliseconds = 800;
constexpr int searchMilliseconds = 5000;
constexpr QSize formulaSize(560, 260);
constexpr QSize searchSize(640, 520);
constexpr int linksMilliseconds = 100;
constexpr QSize linksSize(900, 420);
constexpr QSize documentsSize(1000, 420);

QPixmap grabLater(QWidget &dialog, const QSize &size, int milliseconds)
{
    dialog.resize(size);
    dialog.show();
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
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

} // namespace

QPixmap ScreenshotDialog::take(const QString &name, const QString &text, const MainWindow &window)
{
    if (name == QLatin1String("formula"))
        return formula(text, *window.editor());
    if (name == QLatin1String("search"))
        return search(text);
    const bool isOfLinkDb = QStringList{"links", "proof", "documents"}.contains(name);
    return isOfLinkDb ? ofLinkDb(name, text, window) : QPixmap();
}
