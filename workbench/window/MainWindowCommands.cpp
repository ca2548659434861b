#include "MainWindow.h"

#include <core/message/PMessage.h>
#include <core/text/PPathName.h>
#include <core/Version.h>
#include <gui/application/PCommandKeys.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/session/journal/SessionRecovery.h>
#include <workbench/session/tasks/OpenLines.h>
#include <workbench/session/tasks/ValueRangeCheck.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/MappingMaker.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/help/TourOverlay.h>
#include <workbench/window/look/PartView.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/Question.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/settings/KeyedActions.h>
#include <workbench/window/settings/KeysDialog.h>
#include <workbench/window/settings/SettingsDialog.h>
#include <workbench/window/settings/WorkbenchActions.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QFileInfo>

#include <algorithm>

void MainWindow::restoreSession()
{
    const QString last = m_settings->sessionFile();
    // A new mapping that was never saved is there by what the crash left only.
    if (!last.isEmpty() && (QFileInfo::exists(last) || SessionRecovery(last).leftSomething())) {
        m_desk->open({.file = last, .release = m_settings->place(last).sourceDate});
        return;
    }
    if (m_settings->flag("started"))
        return;
    m_settings->setFlag("started", true);
    if (m_desk->openExample())
        startTour();
}

void MainWindow::startTour()
{
    if (findChild<TourOverlay *>("TourOverlay"))
        return;
    // Empty tables explain nothing: show a line with a proposal.
    if (m_editor->isOpen() && m_editor->currentPath().isEmpty()) {
        OpenLines proposals(m_desk->document());
        proposals.setKinds(OpenLines::ToCheck);
        m_editor->goTo(proposals.next({}).line);
    }
    using Pane = CatalogMappingWidget::Pane;
    const auto pane = [this](Pane which) {
        return m_editor->isOpen() ? m_editor->editor()->pane(which) : nullptr;
    };
    const PCommandKeys &keys = PCommandKeys::instance();
    const QString next = keys.keyText("goNext");
    new TourOverlay(
        {
            {pane(Pane::Tree), tr("Der Katalog"),
             tr("Links steht der alte Katalogstand. Die Bilder zeigen, wo noch etwas zu "
                "entscheiden "
                "ist. Wählen Sie ein Projekt, um seine Zeilen zu sehen.")},
            {pane(Pane::Targets), tr("Die Ziele"),
             tr("Hier stehen die Projekte des neuen Stands, die Zeilen übernehmen können, mit "
                "Bedingungen und Variablenzuordnungen.")},
            {pane(Pane::Lines), tr("Die Zeilen"),
             tr("Links die alte Tabelle, rechts die neue. %1 bestätigt die Zuordnung oder ordnet "
                "die rechts gewählte Zeile zu, %2 hebt auf, %3 bestätigt, dass die Zeile "
                "ausgelaufen ist.")
                 .arg(keys.keyText("lineConfirm"), keys.keyText("lineRemove"),
                      keys.keyText("lineRemoveConfirm"))},
            {m_status, tr("Was noch offen ist"),
             tr("Der Zähler sagt, wie viele Zeilen eine Entscheidung brauchen. %1 geht zur "
                "nächsten, auch im nächsten Projekt.")
                 .arg(next)},
            {nullptr, tr("Nichts geht verloren"),
             tr("Jeder Schritt kann zurückgenommen werden. Was nicht gespeichert ist, bietet das "
                "Programm nach einem Absturz zur Wiederherstellung an. Der Rundgang steht im Menü "
                "Hilfe.")},
        },
        this);
}

void MainWindow::editSettings(const QString &field)
{
    SettingsDialog dialog(m_settings->values(), m_settings->linkDbFile(), this);
    dialog.focusField(field);
    if (dialog.exec() == QDialog::Accepted)
        m_settings->setValues(dialog.values());
}

void MainWindow::editKeys()
{
    KeysDialog dialog(
        m_settings->values().keys, [this](const QString &id) { return m_keyed->nameOf(id); }, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    WorkbenchSettings::Values values = m_settings->values();
    values.keys = dialog.choice();
    m_settings->setValues(values);
}

void MainWindow::assignAll()
{
    Question question(this);
    question.setText(tr("Zeilen des ganzen Katalogs zuordnen?"));
    question.setDetails(tr("Bestätigtes bleibt in jedem Fall. Der Schritt kann zurückgenommen "
                           "werden."));
    question.addAnswer(Question::Accept, tr("Nur &Zeilen ohne Zuordnung"));
    question.addAnswer(Question::Refuse, tr("Alles &Unbestätigte neu"));
    question.addAnswer(Question::Cancel, Question::cancelText());
    const Question::Answer answer = question.ask();
    if (answer == Question::Cancel)
        return;
    MappingDocument *const document = m_desk->document();
    const CatalogRoots roots = document->catalogRoots();
    MappingMaker maker;
    maker.assign(document->release(), roots.source, roots.target, answer == Question::Refuse);
    document->replaceRelease(maker.release(), tr("Alle Projekte zugeordnet"));
    m_status->showNote(maker.summary(), document->canUndo());
}

void MainWindow::checkValueRanges()
{
    DefaultObserverDelegate display;
    display.activate(PProgressObserverBase::Thread);
    const MappingDocument *const document = m_desk->document();
    const ValueRangeCheck::Result result =
        ValueRangeCheck::run(document->release(), document->catalogRoots().target);
    display.deactivate();
    for (const ValueRangeCheck::Finding &finding : result.findings)
        m_log->addMessage(LogWindow::Severity::Warning, finding.text);
    m_status->showNote(result.summary());
}

void MainWindow::showTargetProject(const QString &targetPath)
{
    const PPathName path(
        CatalogMappingWidget::buildTargetPath(!m_editor->hasRemoteTargets(), targetPath));
    if (!path.exists(false)) {
        PMessage::Show(tr("Das Zielprojekt %1 gibt es nicht.").arg(targetPath),
                       PMsgDlgMode::Warning);
        return;
    }
    const QList<PartView *> open = findChildren<PartView *>(Qt::FindDirectChildrenOnly);
    const auto shown = std::find_if(open.begin(), open.end(), [&](const PartView *view) {
        return view->catalogPath() == targetPath;
    });
    PartView *const view =
        shown == open.end() ? new PartView(targetPath, path.native(), this) : *shown;
    view->show();
    view->raise();
    view->activateWindow();
    m_status->showNote(tr("Zielprojekt: %1").arg(QString(path.native())));
}

void MainWindow::showAbout()
{
    Question::tell(this, QStringLiteral("Velkworkbench ") + velkVersion(),
                   tr("Einstellungen: %1").arg(QString(m_settings->store()->fileName())),
                   QMessageBox::Information);
}
