#pragma once

#include <QDockWidget>

class MessageText;
class QAction;

/// What the program has to say, the latest at the end. GUI thread.
class LogWindow : public QDockWidget
{
    Q_OBJECT

public:
    enum class Severity { Information, Warning, Error };

    explicit LogWindow(QWidget *parent);

    /// Lines beyond are dropped, the oldest first.
    static constexpr int LineLimit = 5000;
    /// The tables need the room.
    static constexpr int LinesAtFirst = 6;

    /// Adds a message with the time of day. An error or warning brings the window to the front.
    void addMessage(Severity severity, const QString &text);
    [[nodiscard]] QString text() const;

Q_SIGNALS:
    /// An error or warning was added.
    void problemAdded();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    MessageText *const m_text;
    QAction *const m_clear;
    QAction *const m_copy;
};
