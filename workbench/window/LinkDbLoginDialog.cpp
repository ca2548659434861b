#include "LinkDbLoginDialog.h"

#include "Question.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

LinkDbLoginDialog::LinkDbLoginDialog(const QString &database, const QString &user,
                                     bool wantsPassword, QWidget *parent)
    : QDialog(parent)
    , m_user(new QLineEdit(user, this))
    , m_password(new QLineEdit(this))
{
    setObjectName("LinkDbLoginDialog");
    setWindowTitle(tr("Anmeldung an der Linkdatenbank"));
    m_user->setObjectName("user");
    m_password->setObjectName("password");
    m_password->setEchoMode(QLineEdit::Password);
    auto *where = new QLabel(database, this);
    where->setObjectName("database");
    where->setTextFormat(Qt::PlainText);
    where->setWordWrap(true);
    auto *keeps = new QLabel(
        wantsPassword ? tr("Das Kennwort gilt bis zum Ende des Programms und wird nicht "
                           "gespeichert. Bleibt es leer, kommt es aus der Kennwortdatei.")
                      : tr("Unter diesem Namen steht im Protokoll, wer etwas gelöscht hat."),
        this);
    keeps->setWordWrap(true);
    auto *form = new QFormLayout;
    form->addRow(tr("&Benutzer:"), m_user);
    form->addRow(tr("&Kennwort:"), m_password);
    form->setRowVisible(m_password, wantsPassword);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *const ok = buttons->addButton(Question::okText(), QDialogButtonBox::AcceptRole);
    ok->setObjectName("ok");
    ok->setEnabled(!user.isEmpty());
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole)
        ->setObjectName("cancel");
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(where);
    layout->addLayout(form);
    layout->addWidget(keeps);
    layout->addWidget(buttons);
    connect(m_user, &QLineEdit::textChanged, ok,
            [ok](const QString &name) { ok->setEnabled(!name.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (!user.isEmpty() && wantsPassword)
        m_password->setFocus();
}

QString LinkDbLoginDialog::user() const
{
    return m_user->text();
}

QString LinkDbLoginDialog::password() const
{
    return m_password->text();
}
