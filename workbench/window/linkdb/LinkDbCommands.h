#pragma once

#include <QObject>
#include <QPointer>

class DocumentDesk;
class EditorArea;
class LinkDbHost;
class LinkListDialog;
class LinkProofDialog;

QT_BEGIN_NAMESPACE
class QAction;
class QWidget;
QT_END_NAMESPACE

/// What the user can do with the link database. Nothing here is for a database that is not
/// connected, but for login().
class LinkDbCommands : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned.
    LinkDbCommands(LinkDbHost *host, EditorArea *editor, DocumentDesk *desk, QWidget *window);

    void login();
    void chooseGroup();
    void showLinks();
    /// The line that is selected goes to the list of links, or none does.
    void sendSelection();
    void cancelSelection();
    /// The list of links waits for a selection.
    [[nodiscard]] bool isAwaiting() const;
    void showDocuments();
    void proveNumbers();
    /// For a window that closes: is without a database, and tells which changes may be lost by
    /// that.
    void leave();

    /// For the menu; enabled while a database is connected and a document is open.
    [[nodiscard]] QAction *proofAction() const { return m_proofAction; }
    void update();

Q_SIGNALS:
    void awaitingChanged();

private:
    void goTo(const QString &path, int line);

    LinkDbHost *const m_host;
    EditorArea *const m_editor;
    DocumentDesk *const m_desk;
    QWidget *const m_window;
    QAction *const m_proofAction;
    QPointer<LinkListDialog> m_links;
    QPointer<LinkProofDialog> m_proof;
};
