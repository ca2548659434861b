#include "RepositoryLoginDialog.h"

#include <QLabel>

RepositoryLoginDialog::RepositoryLoginDialog(const QString &url, const QString &answer,
                                             const QString &user, QWidget *parent)
    : LoginDialog({tr("Anmeldung am Repository"), tr("%1 verlangt eine Anmeldung.").arg(url),
                   tr("Name und Kennwort gelten bis zum Ende des Programms und werden nicht "
                      "gespeichert.")},
                  user, true, parent)
{
    setObjectName("RepositoryLoginDialog");
    subject()->setObjectName("url");
    subject()->setToolTip(answer.toHtmlEscaped());
}

RepositoryLogin RepositoryLoginDialog::login() const
{
    return {user(), password()};
}
