#include "ReasonDialog.h"

#include "Question.h"

#include <core/config/PConfigService.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

ReasonDialog::ReasonDialog(const QStringList &lines, const QString &last, QWidget *parent)
    : QDialog(parent)
    , m_lines(new QComboBox(this))
    , m_reason(new QComboBox(this))
{
    setObjectName("ReasonDialog");
    setWindowTitle(tr("Grund der Entscheidung"));
    m_lines->setObjectName("lines");
    m_lines->addItems(lines);
    m_lines->setEnabled(lines.size() > 1);
    m_reason->setObjectName("reason");
    m_reason->setEditable(true);
    m_reason->setCompleter(nullptr); // it would take the first Enter for itself
    m_reason->addItems(reasons());
    m_reason->setCurrentText(last.isEmpty() ? reasons().value(0) : last);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *const ok = buttons->addButton(Question::okText(), QDialogButtonBox::AcceptRole);
    ok->setObjectName("ok");
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole)
        ->setObjectName("cancel");
    auto *layout = new QFormLayout(this);
    layout->addRow(tr("&Für:"), m_lines);
    layout->addRow(tr("&Grund:"), m_reason);
    layout->addRow(buttons);
    m_reason->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_reason, &QComboBox::editTextChanged, ok,
            [ok](const QString &reason) { ok->setEnabled(!reason.trimmed().isEmpty()); });
}

ReasonDialog::~ReasonDialog() = default;

QString ReasonDialog::reason() const
{
    return m_reason->currentText().trimmed();
}

int ReasonDialog::chosenLines() const
{
    return m_lines->currentIndex();
}

QStringList ReasonDialog::reasons()
{
    const QString section = QStringLiteral("REASONS");
    QStringList found;
    if (const PRefPtr<PConfig> config = PConfigService::getConfig(0, QStringLiteral("reasons"))) {
        const PStringList keys = config->keys(section);
        for (const QString &key : keys) {
            const QString reason =
                config->getItemValue(key, section, QString()).GetString().trimmed();
            if (!reason.isEmpty())
                found.append(reason);
        }
    }
    if (!found.isEmpty())
        return found;
    return {tr("eingestellt"), tr("zusammengelegt mit einem anderen Teil"),
            tr("aufgeteilt in mehrere Teile"), tr("in einen anderen Katalog verschoben"),
            tr("noch nicht geprüft")};
}
