#include "LoginDialog.h"

#include <workbench/window/message/Question.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

LoginDialog::LoginDialog(const Texts &texts, const QString &user, bool wantsPassword,
                         QWidget *parent)
    : QDialog(parent)
    , m_subject(new QLabel(this))
    , m_user(new QLineEdit(user, this))
    , m_password(new QLineEdit(this))
{
    setWindowTitle(texts.title);
    m_user->setObjectName("user");
    m_password->setObjectName("password");
    m_password->setEchoMode(QLineEdit::Password);
    m_subject->setTextFormat(Qt::PlainText);
    m_subject->setText(texts.subject);
    m_subject->setWordWrap(true);
    auto *note = new QLabel(texts.note, this);
    note->setWordWrap(true);
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
    layout->addWidget(m_subject);
    layout->addLayout(form);
    layout->addWidget(note);
    layout->addWidget(buttons);
    connect(m_user, &QLineEdit::textChanged, ok,
            [ok](const QString &name) { ok->setEnabled(!name.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (!user.isEmpty() && wantsPassword)
        m_password->setFocus();
}

QString LoginDialog::user() const
{
    return m_user->text();
}

QString LoginDialog::password() const
{
    return m_password->text();
}
