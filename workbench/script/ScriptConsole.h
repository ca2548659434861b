#pragma once

#include "ConsoleInput.h"

#include <QDockWidget>

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE
class MessageText;

/// Where scripts print and single lines are run, the latest at the end.
class ScriptConsole : public QDockWidget
{
    Q_OBJECT

public:
    explicit ScriptConsole(QWidget *parent);

    /// Lines beyond are dropped, the oldest first.
    static constexpr int LineLimit = 20000;
    /// As many as the tables can spare.
    static constexpr int LinesAtFirst = 7;

    void print(const QString &text);
    void showError(const QString &text);
    void showValue(const QString &text);
    [[nodiscard]] QString text() const;
    [[nodiscard]] ConsoleInput *input() const { return m_input; }
    /// While a script runs there is no input, and Stop can be clicked.
    void setRunning(bool running);

Q_SIGNALS:
    void entered(const QString &line);
    void stopRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    MessageText *const m_text;
    ConsoleInput *const m_input;
    QToolButton *const m_stop;
    QToolButton *const m_clear;
};
