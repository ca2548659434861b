#pragma once

#include <release/share/SharedMapping.h>

#include <QObject>
#include <QThreadPool>

#include <functional>

class DocumentDesk;
class EditorArea;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Work of several users on the mapping of the open document, by a shared copy. What the user
/// changed is saved before it is merged or published.
class ShareCommands : public QObject
{
    Q_OBJECT

public:
    /// Both must live as long; dialogs belong to \a window.
    ShareCommands(DocumentDesk *desk, EditorArea *editor, QWidget *window);
    ~ShareCommands() override;

    /// Asks for the shared copy.
    void shareByDialog();
    bool shareWith(const QString &sharedFile);
    /// Merges what others published; false if that failed or was called off.
    bool update();
    bool publish();
    /// Asks for folders, the selected project's is suggested.
    void takeFoldersByDialog();
    void tellWho();

Q_SIGNALS:
    void noted(const QString &text);
    void conflictsWanted();

private:
    using Work = std::function<VelkRelease::ShareAnswer(VelkRelease::SharedMapping &)>;

    /// Does it on another thread behind what is still to do there; says what went wrong.
    [[nodiscard]] VelkRelease::ShareAnswer run(const QString &text, const Work &work);
    bool finish(const VelkRelease::ShareAnswer &answer);
    [[nodiscard]] bool publish(bool intoOthersFolders);
    [[nodiscard]] bool isShared();
    [[nodiscard]] bool saved();
    void announce(bool open);
    [[nodiscard]] static QString textOf(const VelkRelease::ShareAnswer &answer);
    [[nodiscard]] static QString textOf(const VelkRelease::ShareRepair &repair);
    [[nodiscard]] static QString text(const VelkRelease::Participant &participant);

    DocumentDesk *const m_desk;
    EditorArea *const m_editor;
    QWidget *const m_window;
    QThreadPool m_pool;  ///< one after the other
    QString m_announced; ///< mapping file that is told to be open
};
