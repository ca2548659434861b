#include "Screenshot.h"

#include "MainWindow.h"
#include "ScreenshotDialog.h"

#include <release/history/DecisionHistory.h>
#include <workbench/session/document/CatalogRootMemory.h>
#include <workbench/session/journal/SessionRecovery.h>
#include <workbench/start/StartOptions.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/LogWindow.h>

#include <QApplication>
#include <QFileInfo>
#include <QPixmap>
#include <QTemporaryDir>

#include <cstdio>

namespace {

enum Status { Done = 0, Unreadable = 2, Unwritable = 3 };

int fail(Status status, const QString &text)
{
    std::fputs(("velkworkbench: " + text + '\n').toUtf8().constData(), stderr);
    return status;
}

} // namespace

Screenshot::Screenshot(MainWindow &window, const StartOptions &options)
    : m_window(window)
    , m_options(options)
{
}

/// Layouts, queued calls and deferred repaints; nothing waits for time.
void Screenshot::settle() const
{
    for (int i = 0; i < 10; ++i) {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

bool Screenshot::show()
{
    settle();
    if (!m_options.selectedPath.isEmpty() &&
        !m_window.editor()->selectProject(m_options.selectedPath))
        return false;
    settle();
    if (m_options.selectedLine >= 0 && !m_window.editor()->selectLine(m_options.selectedLine))
        return false;
    settle();
    return true;
}

int Screenshot::take(DocumentDesk::Wish wish, QSettings *store)
{
    const bool wanted = !wish.file.isEmpty();
    const QTemporaryDir directory;
    if (wanted) {
        const QString copy = directory.filePath(QFileInfo(wish.file).fileName());
        if (!QFile::copy(wish.file, copy))
            return fail(Unreadable, "cannot read " + wish.file);
        // What was noted earlier, but for what a program that runs or crashed has there.
        const QString journal = SessionRecovery::journalFile(wish.file);
        for (const QString &file : VelkRelease::DecisionHistory::files(wish.file)) {
            if (file != journal)
                QFile::copy(file, directory.filePath(QFileInfo(file).fileName()));
        }
        const CatalogRoots known =
            CatalogRootMemory(store).roots(MappingDocument::canonicalPath(wish.file));
        if (wish.roots.source.isEmpty())
            wish.roots.source = known.source;
        if (wish.roots.target.isEmpty())
            wish.roots.target = known.target;
        wish.file = copy;
        wish.mayAsk = false;
    }
    if (wanted && !m_window.desk()->open(wish)) {
        settle();
        return fail(Unreadable, m_window.log()->text());
    }
    if (wanted && !show())
        return fail(Unreadable, "there is no such project or line: " + m_options.selectedPath +
                                    ' ' + QString::number(m_options.selectedLine));
    settle();
    const QPixmap picture =
        m_options.dialog.isEmpty()
            ? m_window.grab()
            : ScreenshotDialog::take(m_options.dialog, m_options.dialogText, m_window);
    const QString problem = m_window.log()->text();
    const bool saved = picture.save(m_options.screenshot, "PNG");
    // The copy goes with this function, and what is open with it.
    m_window.editor()->close();
    m_window.desk()->document()->close();
    if (picture.isNull())
        return fail(Unreadable, problem);
    return saved ? Done : fail(Unwritable, "cannot write " + m_options.screenshot);
}
