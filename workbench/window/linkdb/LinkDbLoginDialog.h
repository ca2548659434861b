#pragma once

#include <workbench/window/document/LoginDialog.h>

/// Asks who works with the link database.
class LinkDbLoginDialog : public LoginDialog
{
    Q_OBJECT

public:
    /// \a database is shown; a file wants no password.
    LinkDbLoginDialog(const QString &database, const QString &user, bool wantsPassword,
                      QWidget *parent);
};
