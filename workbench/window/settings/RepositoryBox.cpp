#include "RepositoryBox.h"

#include <QFormLayout>
#include <QPlainTextEdit>
#include <QSpinBox>

#include <limits>

namespace {

constexpr int shownServers = 3;

} // namespace

RepositoryBox::RepositoryBox(const RepositorySettings &settings, QWidget *parent)
    : QGroupBox(tr("Zielprojekte aus dem Reposi&tory lesen"), parent)
    , m_servers(new QPlainTextEdit(this))
    , m_revision(new QSpinBox(this))
    , m_cache(new QSpinBox(this))
    , m_silence(new QSpinBox(this))
{
    setObjectName("repository");
    setCheckable(true);
    setChecked(settings.isUsed);
    m_servers->setObjectName("repositoryServers");
    m_servers->setPlainText(settings.servers.join(u'\n'));
    m_servers->setPlaceholderText(tr("Katalog = svn://Server:Port/Pfad"));
    m_servers->setToolTip(tr("Je Zeile ein Katalog. Ohne Zeile ist der Name des Katalogs zugleich "
                             "der seines Servers."));
    m_servers->setTabChangesFocus(true);
    m_servers->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_servers->setFixedHeight(m_servers->fontMetrics().lineSpacing() * shownServers +
                              m_servers->fontMetrics().height() + 2 * m_servers->frameWidth());
    m_revision->setObjectName("repositoryRevision");
    m_revision->setRange(-1, std::numeric_limits<int>::max());
    m_revision->setSpecialValueText(tr("die neueste"));
    m_revision->setValue(settings.revision);
    m_cache->setObjectName("repositoryCache");
    m_cache->setRange(1, RepositorySettings::MaxCacheMegabytes);
    m_cache->setSuffix(tr(" MB"));
    m_cache->setValue(settings.cacheMegabytes);
    m_silence->setObjectName("repositorySilence");
    m_silence->setRange(1, RepositorySettings::MaxSilenceSeconds);
    m_silence->setSuffix(tr(" s"));
    m_silence->setValue(settings.silenceSeconds);
    auto *form = new QFormLayout(this);
    form->addRow(tr("Serv&er:"), m_servers);
    form->addRow(tr("Revisi&on:"), m_revision);
    form->addRow(tr("&Platz auf dieser Maschine:"), m_cache);
    form->addRow(tr("&Warten auf den Server:"), m_silence);
    connect(this, &QGroupBox::toggled, this, &RepositoryBox::changed);
    connect(m_servers, &QPlainTextEdit::textChanged, this, &RepositoryBox::changed);
}

RepositorySettings RepositoryBox::settings() const
{
    RepositorySettings settings;
    settings.isUsed = isChecked();
    const QString text = m_servers->toPlainText();
    settings.servers = text.isEmpty() ? QStringList() : text.split(u'\n');
    settings.revision = m_revision->value();
    settings.cacheMegabytes = m_cache->value();
    settings.silenceSeconds = m_silence->value();
    return settings;
}

QString RepositoryBox::problem() const
{
    const RepositorySettings chosen = settings();
    const int wrong = chosen.wrongServer();
    if (wrong < 0 || !chosen.isUsed)
        return {};
    return tr("Server, Zeile %1: \"%2\" ist nicht von der Form \"Katalog = "
              "svn://Server:Port/Pfad\".")
        .arg(QString::number(wrong + 1), chosen.servers.at(wrong));
}
