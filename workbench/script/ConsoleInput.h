#pragma once

#include <QLineEdit>
#include <QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QCompleter;
class QStringListModel;
QT_END_NAMESPACE

/// A line of input with history (Up, Down) and completion (Tab). With nothing before the cursor Tab
/// goes to the next field, as everywhere.
class ConsoleInput : public QLineEdit
{
    Q_OBJECT

public:
    using Complete = std::function<QStringList(const QString &line)>;

    explicit ConsoleInput(QWidget *parent);

    static constexpr int HistoryLimit = 500;

    void setCompletions(const Complete &complete) { m_complete = complete; }
    /// The oldest first.
    [[nodiscard]] const QStringList &history() const { return m_history; }
    void setHistory(const QStringList &lines);

Q_SIGNALS:
    /// Enter on a line that is not blank; the field is empty then.
    void entered(const QString &line);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void enter();
    void showFromHistory(int place);
    void completeName();
    /// In place of the name before the cursor.
    void insertName(const QString &name);
    [[nodiscard]] QString nameBeforeCursor() const;

    Complete m_complete;
    QCompleter *const m_completer;
    QStringListModel *const m_names;
    QStringList m_history;
    int m_place = 0;   ///< in the history; its size: the line that is being written
    QString m_written; ///< that line, while another one is shown
};
