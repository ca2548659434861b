#include "RepositoryLoginDialog.h"

#include "Question.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

RepositoryLoginDialog::RepositoryLoginDialog(const QString &url, const QString &answer,
                                             const QString &user, QWidget *parent)
    : QDialog(parent)
    , m_user(new QLineEdit(user, this))
    , m_password(new QLineEdit(this))
{
    setObjectName("RepositoryLoginDialog");
    setWindowTitle(tr("Anmeldung am Repository"));
    m_user->setObjectName("user");
    m_password->setObjectName("password");
    m_password->setEchoMode(QLineEdit::Password);
    auto *text = new QLabel(tr("%1 verlangt eine Anmeldung.").arg(url), this);
    text->setObjectName("url");
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setToolTip(answer.toHtmlEscaped());
    auto *keeps = new QLabel(tr("Name und Kennwort gelten bis zum Ende des Programms und werden "
                                "nicht gespeichert."),
                             this);
    keeps->setWordWrap(true);
    auto *form = new QFormLayout;
    form->addRow(tr("&Benutzer:"), m_user);
    form->addRow(tr("&Kennwort:"), m_password);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *const ok = buttons->addButton(Question::okText(), QDialogButtonBox::AcceptRole);
    ok->setObjectName("ok");
    ok->setEnabled(!user.isEmpty());
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole)
        ->setObjectName("cancel");
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addLayout(form);
    layout->addWidget(keeps);
    layout->addWidget(buttons);
    connect(m_user, &QLineEdit::textChanged, ok,
            [ok](const QString &name) { ok->setEnabled(!name.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (!user.isEmpty())
        m_password->setFocus();
}

RepositoryLogin RepositoryLoginDialog::login() const
{
    return {m_user->text(), m_password->text()};
}
