#include "LinkDbLoginDialog.h"

#include <QLabel>

LinkDbLoginDialog::LinkDbLoginDialog(const QString &database, const QString &user,
                                     bool wantsPassword, QWidget *parent)
    : LoginDialog({tr("Anmeldung an der Linkdatenbank"), database,
                   wantsPassword
                       ? tr("Das Kennwort gilt bis zum Ende des Programms und wird nicht "
                            "gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.")
                       : tr("Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat.")},
                  user, wantsPassword, parent)
{
    setObjectName("LinkDbLoginDialog");
    subject()->setObjectName("database");
}
