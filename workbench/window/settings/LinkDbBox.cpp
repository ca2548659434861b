#include "LinkDbBox.h"

#include <geomcore/linkdb/LinkDbSettings.h>

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace {

constexpr int lastPort = 65535;

} // namespace

LinkDbBox::LinkDbBox(const QString &address, const QString &standardFile, QWidget *parent)
    : QGroupBox(tr("&Linkdatenbank verwenden"), parent)
    , m_kind(new QComboBox(this))
    , m_file(new QLineEdit(this))
    , m_host(new QLineEdit(this))
    , m_port(new QSpinBox(this))
    , m_database(new QLineEdit(this))
    , m_user(new QLineEdit(this))
    , m_encryption(new QComboBox(this))
{
    setObjectName("linkDb");
    setCheckable(true);
    const LinkDbSettings settings = LinkDbSettings::fromText(address);
    m_connectSeconds = settings.connectSeconds;
    setChecked(!address.isEmpty());
    m_kind->setObjectName("linkDbKind");
    m_kind->addItem(tr("Datei auf diesem Rechner"), OfFile);
    m_kind->addItem(tr("PostgreSQL-Server"), OfServer);
    const bool isServer = settings.kind == LinkDbSettings::Kind::PostgreSQL;
    m_kind->setCurrentIndex(isServer ? OfServer : OfFile);
    m_file->setObjectName("linkDbFile");
    m_file->setText(settings.file.isEmpty() ? standardFile : settings.file);
    m_host->setObjectName("linkDbHost");
    m_host->setText(settings.host);
    m_port->setObjectName("linkDbPort");
    m_port->setRange(0, lastPort);
    m_port->setSpecialValueText(tr("der übliche"));
    m_port->setValue(settings.port);
    m_database->setObjectName("linkDbDatabase");
    m_database->setText(settings.database);
    m_user->setObjectName("linkDbUser");
    m_user->setText(settings.user);
    m_user->setToolTip(tr("Das Kennwort steht in der Kennwortdatei, im Schlüsselspeicher des "
                          "Desktops oder in PGPASSWORD, oder es wird bei der Anmeldung eingegeben. "
                          "Gespeichert wird es nicht."));
    m_encryption->setObjectName("linkDbEncryption");
    m_encryption->addItem(tr("wenn möglich"), QString());
    m_encryption->addItem(tr("immer"), "require");
    m_encryption->addItem(tr("immer, Server geprüft"), "verify-full");
    m_encryption->addItem(tr("nie"), "disable");
    m_encryption->setCurrentIndex(qMax(0, m_encryption->findData(settings.sslMode)));

    auto *form = new QFormLayout(this);
    form->addRow(tr("Art:"), m_kind);
    form->addRow(tr("&Datei:"), m_file);
    form->addRow(tr("Rec&hner:"), m_host);
    form->addRow(tr("&Anschluss:"), m_port);
    form->addRow(tr("Daten&bank:"), m_database);
    form->addRow(tr("Ben&utzer:"), m_user);
    form->addRow(tr("Verschlüsselun&g:"), m_encryption);
    m_ofServer = {m_host, m_port, m_database, m_user, m_encryption};
    for (QLineEdit *const edit : {m_file, m_host, m_database, m_user})
        connect(edit, &QLineEdit::textChanged, this, &LinkDbBox::changed);
    connect(m_kind, &QComboBox::currentIndexChanged, this, [this] {
        showKind();
        Q_EMIT changed();
    });
    connect(this, &QGroupBox::toggled, this, &LinkDbBox::changed);
    showKind();
}

void LinkDbBox::showKind()
{
    auto *const form = static_cast<QFormLayout *>(layout());
    const bool isServer = m_kind->currentIndex() == OfServer;
    form->setRowVisible(m_file, !isServer);
    for (QWidget *const widget : std::as_const(m_ofServer))
        form->setRowVisible(widget, isServer);
}

QString LinkDbBox::address() const
{
    if (!isChecked())
        return {};
    LinkDbSettings settings;
    if (m_kind->currentIndex() == OfFile) {
        settings.kind = LinkDbSettings::Kind::SQLite;
        settings.file = m_file->text();
    } else {
        settings.kind = LinkDbSettings::Kind::PostgreSQL;
        settings.host = m_host->text().trimmed();
        settings.port = m_port->value();
        settings.database = m_database->text().trimmed();
        settings.user = m_user->text().trimmed();
        settings.sslMode = m_encryption->currentData().toString();
        settings.connectSeconds = m_connectSeconds;
    }
    return settings.toText();
}

QString LinkDbBox::problem() const
{
    QString cause;
    if (isChecked() && LinkDbSettings::fromText(address(), &cause) == LinkDbSettings())
        return m_kind->currentIndex() == OfFile
                   ? tr("Linkdatenbank: Der Name der Datei fehlt.")
                   : tr("Linkdatenbank: Der Name der Datenbank fehlt oder ist keiner.");
    return {};
}
