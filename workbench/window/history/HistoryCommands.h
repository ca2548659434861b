#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <QObject>
#include <QPointer>

class EditorArea;
class HistoryDialog;
class MappingDocument;
class StepListDialog;

QT_BEGIN_NAMESPACE
class QAction;
class QWidget;
QT_END_NAMESPACE

/// Who decided what, when and why: the view of it, and the reason for a decision.
class HistoryCommands : public QObject
{
    Q_OBJECT

public:
    HistoryCommands(MappingDocument *document, EditorArea *editor, QWidget *window);
    ~HistoryCommands() override;

    [[nodiscard]] QAction *showAction() const { return m_show; }
    /// The list of steps, to take any of them back.
    void showSteps();
    [[nodiscard]] QAction *reasonAction() const { return m_reason; }

Q_SIGNALS:
    void noted(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void retranslate();
    void update();
    void showHistory();
    void goTo(const QString &path, int line);
    /// Lines of one project.
    struct Lines
    {
        ProjectId project;
        QList<int> lines;

        friend bool operator==(const Lines &, const Lines &) = default;
    };
    [[nodiscard]] Lines selected() const;
    [[nodiscard]] static QString text(const Lines &lines);
    /// For the lines that were decided last, which need not be selected any more, or for the
    /// selected ones.
    void giveReason();

    MappingDocument *const m_document;
    EditorArea *const m_editor;
    QWidget *const m_window;
    QAction *const m_show;
    QAction *const m_reason;
    QPointer<HistoryDialog> m_dialog;
    QPointer<StepListDialog> m_steps;
    Lines m_decided;
    QString m_lastReason;
};
