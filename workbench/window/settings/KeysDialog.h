#pragma once

#include <gui/application/PCommandKeys.h>

#include <QDialog>

#include <functional>

QT_BEGIN_NAMESPACE
class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
QT_END_NAMESPACE

/// The list of all commands with their keys, in which the keys are changed. A key that two commands
/// would have is told and not accepted; a standard key gives way to one that is chosen, which is
/// told too. Nothing applies before it is accepted.
class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    using Names = std::function<QString(const QString &id)>;

    /// Of the commands that are declared now.
    KeysDialog(const PCommandKeys::Choice &choice, const Names &nameOf, QWidget *parent);
    ~KeysDialog() override;

    /// Only commands and keys with these parts of words are listed.
    void setWords(const QString &words);
    [[nodiscard]] const PCommandKeys::Choice &choice() const { return m_choice; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void fill();
    void filter();
    void showCommand();
    void onKeyEntered();
    void choose(const QKeySequence &key);
    void reset();
    /// Whether lists and fields need the key for themselves.
    [[nodiscard]] static bool isReserved(const QKeySequence &key);
    void check();
    [[nodiscard]] QString problem() const;
    [[nodiscard]] QString currentId() const;
    [[nodiscard]] QString quoted(const QString &id) const;

    const Names m_nameOf;
    PCommandKeys::Choice m_choice;
    QLineEdit *const m_filter;
    QTreeWidget *const m_list;
    QLabel *const m_title;
    QKeySequenceEdit *const m_key;
    QPushButton *const m_standard;
    QPushButton *const m_none;
    QLabel *const m_problem;
    QPushButton *m_ok = nullptr;
};
