#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
QT_END_NAMESPACE

/// A window in which a script is written and run. It asks before it drops what was not saved.
class ScriptEditor : public QDialog
{
    Q_OBJECT

public:
    explicit ScriptEditor(QWidget *parent);
    ~ScriptEditor() override;

    /// False if the file cannot be read; the message line says why.
    bool openFile(const QString &file);
    /// False if the file cannot be written, or the user gave none.
    bool save();
    /// Empty for a script without a file.
    [[nodiscard]] const QString &file() const { return m_file; }
    [[nodiscard]] QString program() const;
    [[nodiscard]] QString message() const;
    void run();
    void setRunning(bool running);
    /// What became of the run; a line from 1 is shown, 0 is none.
    void showOutcome(const QString &text, bool isError, int line);

Q_SIGNALS:
    void runRequested(const QString &program, const QString &name, const QStringList &arguments);
    void stopRequested();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void reject() override;

private:
    void openByDialog();
    [[nodiscard]] bool mayDrop();
    void markLine(int line);
    void retranslate();
    void updateTitle();

    QPlainTextEdit *const m_text;
    QLineEdit *const m_arguments;
    QLabel *const m_argumentsTitle;
    QLabel *const m_message;
    QPushButton *const m_open;
    QPushButton *const m_save;
    QPushButton *const m_run;
    QPushButton *const m_stop;
    QString m_file;
};
