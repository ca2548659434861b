#pragma once

#include "ConsoleInput.h"

#include <QDockWidget>

QT_BEGIN_NAMESPACE
class QPlainTextEdit;
class QToolButton;
QT_END_NAMESPACE

/// Where scripts print and single lines are run, the latest at the end.
class ScriptConsole : public QDockWidget
{
    Q_OBJECT

public:
    explicit ScriptConsole(QWidget *parent);

    /// Lines beyond are dropped, the oldest first.
    static constexpr int LineLimit = 20000;

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
    void add(const QString &text, const QColor &colour);
    void retranslate();

    QPlainTextEdit *const m_text;
    ConsoleInput *const m_input;
    QToolButton *const m_stop;
    QToolButton *const m_clear;
};
