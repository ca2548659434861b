// The part of MainWindow that follows the document: it is opened and closed, steps are done.
#include "MainWindow.h"

#include <workbench/session/common/BackgroundWork.h>
#include <workbench/session/history/UndoHistory.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/help/WelcomePage.h>
#include <workbench/window/linkdb/LinkDbHost.h>
#include <workbench/window/look/PartView.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/WorkbenchActions.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QFileInfo>
#include <QLocale>
#include <QStackedWidget>
#include <QTimer>

void MainWindow::connectDocument()
{
    MappingDocument *const document = m_desk->document();
    connect(document, &MappingDocument::closed, this, &MainWindow::onDocumentClosed);
    connect(document, &MappingDocument::modifiedChanged, this, &MainWindow::updateTitle);
    connect(document, &MappingDocument::undoChanged, this, &MainWindow::updateUndo);
    connect(document, &MappingDocument::countsChanged, m_counterTimer, qOverload<>(&QTimer::start));
    connect(document, &MappingDocument::stepDone, this, &MainWindow::onStepDone);
    connect(document, &MappingDocument::noticeRaised, this, [this](const ChangeNotice &notice) {
        m_log->addMessage(LogWindow::Severity::Information, notice.text);
        m_status->showNote(notice.text, m_desk->document()->canUndo());
    });
    connect(document, &MappingDocument::reselectRequested, m_editor, &EditorArea::showChange);
    connect(document, &MappingDocument::releaseReplaced, m_editor, &EditorArea::rebuild);
    connect(document, &MappingDocument::problemOccurred, this,
            [this](const QString &text) { m_log->addMessage(LogWindow::Severity::Error, text); });
}

void MainWindow::onDocumentReady()
{
    MappingDocument *const document = m_desk->document();
    m_linkDb->setSourceRoot(document->catalogRoots().source);
    // Made in one turn, laid out in another, painted in a third.
    m_editor->open(document, document->catalogRoots().source);
    BackgroundWork::letShow();
    if (!m_editor->isOpen())
        return;
    m_pages->setUpdatesEnabled(false);
    m_pages->setCurrentWidget(m_editor);
    updateState();
    BackgroundWork::letShow();
    m_pages->setUpdatesEnabled(true);
    if (!m_editor->isOpen())
        return;
    const WorkbenchSettings::Place place = m_settings->place(document->mappingFile());
    m_editor->openProject(place.project, place.line);
    // Else the messages have them, if there were any.
    m_editor->focusLines();
    m_status->showNote(document->isReadOnly() ? document->readOnlyText() : QString());
    m_settings->setSessionFile(document->mappingFile());
}

void MainWindow::rememberPlace()
{
    const MappingDocument *const document = m_desk->document();
    if (!document->isOpen() || !m_editor->isOpen())
        return;
    m_settings->setPlace(
        document->mappingFile(),
        {document->release().getSourceDate(), m_editor->currentPath(), m_editor->currentLine()});
    m_settings->setState("editor", m_editor->saveState());
}

void MainWindow::onDocumentClosing()
{
    rememberPlace();
    m_editor->close();
}

void MainWindow::onDocumentClosed()
{
    m_editor->close();
    for (PartView *const view : findChildren<PartView *>(Qt::FindDirectChildrenOnly))
        view->close();
    m_pages->setCurrentWidget(m_welcome);
    m_status->showNote(QString());
    updateState();
}

void MainWindow::onStepDone(const QString &text, int)
{
    m_status->showNote(text, m_desk->document()->canUndo());
}

void MainWindow::updateTitle()
{
    const MappingDocument *const document = m_desk->document();
    if (!document->isOpen()) {
        setWindowModified(false);
        return setWindowTitle(QStringLiteral("Velkworkbench"));
    }
    QString title = QFileInfo(document->mappingFile()).fileName() + QStringLiteral("[*] – ") +
                    document->rootName();
    if (document->isReadOnly())
        title += QStringLiteral(" (") + tr("schreibgeschützt") + ')';
    setWindowTitle(title);
    setWindowModified(document->isModified());
}

void MainWindow::updateUndo()
{
    const MappingDocument *const document = m_desk->document();
    QString undo = document->undoText();
    // What another session did is not taken back unaware.
    if (document->canUndo() && !document->steps().undoStep().rows.isEmpty()) {
        const UndoStep &step = document->steps().undoStep();
        undo = QStringLiteral("%1 (%2, %3)")
                   .arg(undo, step.author,
                        QLocale().toString(step.time.toLocalTime(), QLocale::ShortFormat));
    }
    m_actions->setUndoTexts(undo, document->canRedo() ? document->redoText() : QString());
    if (!document->canUndo())
        m_status->dropUndo();
}
