#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

/// Leads the user through the window in a few steps: dims it all but the part that a step is about,
/// and explains that. Enter goes on, Escape ends it.
class TourOverlay : public QWidget
{
    Q_OBJECT

public:
    struct Step
    {
        QPointer<QWidget> part; ///< null, or not to be seen: the step is about the whole window
        QString title;
        QString text;
    };

    /// Lies over \a window and deletes itself at the end.
    TourOverlay(const QList<Step> &steps, QWidget *window);

    [[nodiscard]] int currentStep() const { return m_step; }

Q_SIGNALS:
    /// At the end, be it the last step or skipped.
    void ended();

public Q_SLOTS:
    void next();
    void back();
    void skip();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void showStep(int step);
    void place();
    [[nodiscard]] QRect shownPart() const;

    const QList<Step> m_steps;
    QPointer<QWidget> m_formerFocus; ///< has the keys again at the end
    int m_step = 0;
    QWidget *const m_bubble;
    QLabel *const m_title;
    QLabel *const m_text;
    QLabel *const m_count;
    QPushButton *const m_back;
    QPushButton *const m_next;
};
