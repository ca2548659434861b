#pragma once

#include <QStatusBar>

class QLabel;
class StatusProgress;

/// The status bar: what was done last with a link that undoes it, running work, read-only mark, and
/// how much is still open.
class StatusArea : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusArea(QWidget *parent);

    /// Stays until the next one. With \a undoable a link offers to take it back.
    void showNote(const QString &text, bool undoable = false);
    [[nodiscard]] QString note() const { return m_noteText; }
    /// If \a text is still the note, there is none any more.
    void dropNote(const QString &text);
    /// The last note cannot be taken back any more.
    void dropUndo();
    /// Lines that need a decision and the projects that have them; negative: nothing is open.
    void setOpenLines(int lines, int projects);
    /// The same of the lines that the filter over all lines accepts.
    void setFilteredLines(int lines, int projects);
    /// No project of the release has any line yet.
    void setNothingAssigned();
    /// Empty: the file can be changed.
    void setReadOnly(const QString &reason);
    [[nodiscard]] StatusProgress *progress() const { return m_progress; }

Q_SIGNALS:
    void undoRequested();
    /// The counter was clicked.
    void nextOpenRequested();
    /// It was clicked while nothing is assigned.
    void assignRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    enum class Counted { Open, Filtered, Nothing };

    void retranslate();
    void writeNote();
    /// "<a>3 lines</a> in 2 projects"
    [[nodiscard]] static QString linesText(int lines, int projects);

    QLabel *const m_note;
    StatusProgress *const m_progress;
    QLabel *const m_readOnly;
    QLabel *const m_open;
    QString m_noteText;
    QString m_readOnlyReason;
    bool m_undoable = false;
    int m_lines = -1;
    int m_projects = 0;
    Counted m_counted = Counted::Open;
};
