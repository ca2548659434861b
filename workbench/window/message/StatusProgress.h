#pragma once

#include <gui/progress/ProgressDisplay.h>

#include <QPointer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

/// The part of the status bar that shows running work: text, bar, count with rate and rest time,
/// and the button that cancels. Hidden while nothing runs.
class StatusProgress : public QWidget
{
    Q_OBJECT

public:
    explicit StatusProgress(QWidget *parent);

    void showProgress(const QList<PProgressInfo> &running);
    /// The button, for work that lets input to it pass.
    [[nodiscard]] bool owns(const QWidget *widget) const;
    /// Errors and warnings are counted as long as work runs.
    void countProblem();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void showProblems();

    QLabel *const m_text;
    QProgressBar *const m_bar;
    QLabel *const m_details;
    QLabel *const m_problems;
    QToolButton *const m_cancel;
    QList<PProgressInfo> m_running;
    int m_problemCount = 0;
};

/// Hands progress to a StatusProgress, which may go first. Where a click cannot reach that, because
/// a dialog is open or its window is not shown, progress has a small window of its own.
class StatusProgressDisplay : public ProgressDisplayI
{
public:
    explicit StatusProgressDisplay(StatusProgress *widget);
    ~StatusProgressDisplay() override;

    void showProgress(const QList<PProgressInfo> &running) override;
    [[nodiscard]] bool acceptsInput(const QWidget *widget) const override;

private:
    const QPointer<StatusProgress> m_widget;
    ProgressDisplay m_window;
    bool m_inWindow = false;
    bool m_shown = false;
};
