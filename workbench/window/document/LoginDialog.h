#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
QT_END_NAMESPACE

/// Asks for a name and, if it is wanted, a password; Ok needs a name. What it is for stands above
/// the fields, what becomes of the answer below them.
class LoginDialog : public QDialog
{
    Q_OBJECT

public:
    [[nodiscard]] QString user() const;
    [[nodiscard]] QString password() const;

protected:
    struct Texts
    {
        QString title;
        QString subject; ///< plain text
        QString note;
    };

    LoginDialog(const Texts &texts, const QString &user, bool wantsPassword, QWidget *parent);

    /// Shows what it is for.
    [[nodiscard]] QLabel *subject() const { return m_subject; }

private:
    QLabel *const m_subject;
    QLineEdit *const m_user;
    QLineEdit *const m_password;
};
