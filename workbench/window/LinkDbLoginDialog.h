#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

/// Asks who works with the link database.
class LinkDbLoginDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a database is shown; a file wants no password.
    LinkDbLoginDialog(const QString &database, const QString &user, bool wantsPassword,
                      QWidget *parent);

    [[nodiscard]] QString user() const;
    [[nodiscard]] QString password() const;

private:
    QLineEdit *const m_user;
    QLineEdit *const m_password;
};
