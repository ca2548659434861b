#pragma once

#include "LoginDialog.h"

#include <geomcore/repository/RepositoryClient.h>

/// Asks who reads a repository.
class RepositoryLoginDialog : public LoginDialog
{
    Q_OBJECT

public:
    /// \a answer is what the server said, \a user who asked before.
    RepositoryLoginDialog(const QString &url, const QString &answer, const QString &user,
                          QWidget *parent);

    [[nodiscard]] RepositoryLogin login() const;
};
