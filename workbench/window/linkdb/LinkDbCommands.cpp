#include "LinkDbCommands.h"

#include "LineDocuments.h"
#include "LinkDbHost.h"
#include "LinkDbLoginDialog.h"
#include "LinkListDialog.h"
#include "LinkProofDialog.h"

#include <core/progress/PProgress.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/Question.h>

#include <QAction>
#include <QInputDialog>

LinkDbCommands::LinkDbCommands(LinkDbHost *host, EditorArea *editor, DocumentDesk *desk,
                               QWidget *window)
    : QObject(window)
    , m_host(host)
    , m_editor(editor)
    , m_desk(desk)
    , m_window(window)
    , m_proofAction(new QAction(this))
{
    m_proofAction->setObjectName("proveNumbers");
    connect(m_proofAction, &QAction::triggered, this, &LinkDbCommands::proveNumbers);
    connect(host, &LinkDbHost::changed, this, [this] {
        // They show the former database.
        if (m_host->state() != LinkDbHost::Connected) {
            delete m_links;
            delete m_proof;
        }
        update();
    });
    update();
}

void LinkDbCommands::update()
{
    m_proofAction->setText(tr("&Nummern der Linkdatenbank prüfen"));
    m_proofAction->setVisible(m_host->state() != LinkDbHost::NotSet);
    m_proofAction->setEnabled(m_host->state() == LinkDbHost::Connected && m_editor->isOpen());
}

void LinkDbCommands::login()
{
    const LinkDbSettings settings = m_host->settings();
    const bool isServer = settings.kind == LinkDbSettings::Kind::PostgreSQL;
    const QString known = m_host->linkDb()->userName();
    LinkDbLoginDialog dialog(settings.displayName(), known.isEmpty() ? settings.user : known,
                             isServer, m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_host->login(dialog.user(), dialog.password());
}

void LinkDbCommands::chooseGroup()
{
    const PRefPtr<PLinkDbC> linkDb = m_host->linkDb();
    const QStringList groups = linkDb->groups();
    if (groups.isEmpty())
        return Question::tell(m_window, tr("In der Linkdatenbank gibt es keine Gruppe, zu der Sie "
                                           "gehören."));
    QInputDialog dialog(m_window);
    dialog.setObjectName("LinkDbGroupDialog");
    dialog.setWindowTitle(tr("Gruppe auswählen"));
    dialog.setLabelText(tr("Gruppe der Linkdatenbank:"));
    dialog.setComboBoxItems(groups);
    dialog.setTextValue(linkDb->currentGroup());
    dialog.setOkButtonText(Question::okText());
    dialog.setCancelButtonText(Question::cancelText());
    if (dialog.exec() == QDialog::Accepted)
        m_host->changeGroup(dialog.textValue());
}

void LinkDbCommands::goTo(const QString &path, int line)
{
    if (m_editor->isOpen() && m_editor->selectProject(path) && m_editor->selectLine(line)) {
        m_window->raise();
        return;
    }
    Question::tell(
        m_window,
        tr("Zeile %1 von %2 steht nicht in diesem Mapping.").arg(QString::number(line), path));
}

void LinkDbCommands::showLinks()
{
    if (!m_links) {
        m_links = new LinkListDialog(m_host->linkDb(), m_window);
        m_links->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_links, &LinkListDialog::awaitingChanged, this, &LinkDbCommands::awaitingChanged);
        connect(m_links, &LinkListDialog::lineWanted, this, &LinkDbCommands::goTo);
    }
    m_links->show();
    m_links->raise();
}

bool LinkDbCommands::isAwaiting() const
{
    return m_links && m_links->isAwaiting();
}

void LinkDbCommands::sendSelection()
{
    if (m_links)
        m_links->takeSelection(m_editor->currentPath(), m_editor->currentLine());
}

void LinkDbCommands::cancelSelection()
{
    if (m_links)
        m_links->cancelSelection();
}

void LinkDbCommands::showDocuments()
{
    LineDocuments::show(m_editor, m_desk->document()->catalogRoots().source, *m_host);
}

void LinkDbCommands::leave()
{
    const QString lost = m_host->leave();
    if (!lost.isEmpty())
        Question::tell(m_window, tr("Änderungen in der Linkdatenbank sind vielleicht verloren."),
                       lost);
}

void LinkDbCommands::proveNumbers()
{
    const MappingDocument *const document = m_desk->document();
    const ReleaseMappingC release = document->release();
    VelkRelease::LinkProof proof;
    proof.setSourceRoot(document->catalogRoots().source);
    std::atomic<bool> interrupted = false;
    bool done = false;
    {
        DefaultObserverDelegate display;
        display.activate(PProgressObserverBase::Thread);
        PProgress progress(0, release.countMappings(), 1.0, true, false);
        progress.setText(tr("Nummern der Linkdatenbank werden geprüft"));
        int told = 0;
        proof.setObserver([&](int projects, int) {
            for (; told < projects; ++told)
                progress.nextStep();
            interrupted = progress.isCanceled();
        });
        done = proof.run(release, *m_host->linkDb(), interrupted);
        progress.done();
        display.deactivate();
    }
    if (!done) {
        if (!proof.problem().isEmpty())
            Question::tell(m_window, tr("Die Nummern konnten nicht geprüft werden."),
                           proof.problem());
        return;
    }
    delete m_proof;
    m_proof = new LinkProofDialog(proof, m_window);
    m_proof->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_proof, &LinkProofDialog::lineWanted, this, &LinkDbCommands::goTo);
    m_proof->show();
}
