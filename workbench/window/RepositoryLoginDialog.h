#pragma once

#include <geomcore/repository/RepositoryClient.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

/// Asks who reads a repository.
class RepositoryLoginDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a answer is what the server said, \a user who asked before.
    RepositoryLoginDialog(const QString &url, const QString &answer, const QString &user,
                          QWidget *parent);

    [[nodiscard]] RepositoryLogin login() const;

private:
    QLineEdit *const m_user;
    QLineEdit *const m_password;
};
