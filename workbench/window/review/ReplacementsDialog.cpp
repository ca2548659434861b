#include "ReplacementsDialog.h"

#include <workbench/review/PatternText.h>
#include <workbench/session/common/BackgroundWork.h>
#include <workbench/window/message/Question.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Counter-examples that are shown.
constexpr std::size_t MaxShown = 5;

/// Nothing for a change that cannot be agreed to.
std::optional<AgreedReplacement> replacementOf(const VelkRelease::ValueChange &change)
{
    AgreedReplacement replacement;
    replacement.variable = change.variable;
    if (change.kind == VelkRelease::ValueChange::NumberMap) {
        replacement.factor = QString::number(change.factor, 'g', 6);
        replacement.offset = QString::number(change.offset, 'g', 6);
        return replacement;
    }
    replacement.before = change.before;
    replacement.after = change.after;
    if (change.kind != VelkRelease::ValueChange::Replacement || change.before.isEmpty())
        return std::nullopt;
    return replacement;
}

} // namespace

ReplacementsDialog::ReplacementsDialog(const ReleaseMappingC &release, const QString &sourceRoot,
                                       const QList<VelkRelease::ValueChange> &offered,
                                       const QString &projectPath, QWidget *parent)
    : QDialog(parent)
    , m_release(release)
    , m_sourceRoot(sourceRoot)
    , m_agreed(release.getReplacements())
    , m_list(new QListWidget(this))
    , m_folder(new QComboBox(this))
    , m_evidence(new QLabel(this))
{
    setObjectName("ReplacementsDialog");
    setWindowTitle(tr("Vereinbarte Ersetzungen"));
    resize(640, 420);
    m_list->setObjectName("ReplacementList");
    m_list->setAccessibleName(windowTitle());
    m_folder->setObjectName("ReplacementFolder");
    m_evidence->setObjectName("ReplacementEvidence");
    m_evidence->setTextFormat(Qt::PlainText);
    m_evidence->setWordWrap(true);
    for (const VelkRelease::ValueChange &change : offered) {
        if (const auto replacement = replacementOf(change);
            replacement && !change.agreed && !m_offered.contains(*replacement))
            m_offered.append(*replacement);
    }
    m_folder->addItem(tr("im ganzen Katalogstand"), QString());
    for (QString path = projectPath; !path.isEmpty();
         path = path.contains(u'/') ? path.section(u'/', 0, -2) : QString())
        m_folder->addItem(path, path);
    auto *const buttons = new QDialogButtonBox(this);
    m_agree = buttons->addButton(tr("&Vereinbaren"), QDialogButtonBox::ActionRole);
    m_agree->setObjectName("agreeButton");
    m_withdraw = buttons->addButton(tr("&Zurückziehen"), QDialogButtonBox::ActionRole);
    m_withdraw->setObjectName("withdrawButton");
    m_showEvidence = buttons->addButton(tr("&Belege"), QDialogButtonBox::ActionRole);
    m_showEvidence->setObjectName("evidenceButton");
    auto *const accept = buttons->addButton(tr("&Übernehmen"), QDialogButtonBox::AcceptRole);
    accept->setObjectName("acceptButton");
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Eine Ersetzung sagt, dass ein alter Wert für einen neuen "
                                    "steht. Sie macht Vorschläge, bestätigt aber nichts."),
                                 this));
    layout->addWidget(m_list, 1);
    layout->addWidget(m_folder);
    layout->addWidget(m_evidence);
    layout->addWidget(buttons);
    connect(m_agree, &QPushButton::clicked, this, &ReplacementsDialog::agree);
    connect(m_withdraw, &QPushButton::clicked, this, &ReplacementsDialog::withdraw);
    connect(m_showEvidence, &QPushButton::clicked, this, &ReplacementsDialog::showEvidence);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::currentRowChanged, this, &ReplacementsDialog::updateButtons);
    fill();
}

ReplacementsDialog::~ReplacementsDialog() = default;

void ReplacementsDialog::fill()
{
    const int row = m_list->currentRow();
    m_list->clear();
    for (const AgreedReplacement &replacement : std::as_const(m_agreed))
        m_list->addItem(PatternText::of(replacement) + QStringLiteral(" (") +
                        (replacement.folder.isEmpty()
                             ? tr("vereinbart")
                             : tr("vereinbart in %1").arg(replacement.folder)) +
                        u')');
    for (const AgreedReplacement &replacement : std::as_const(m_offered))
        m_list->addItem(PatternText::of(replacement));
    m_list->setCurrentRow(std::min(std::max(0, row), m_list->count() - 1)); // -1: it is empty
    updateButtons();
}

const AgreedReplacement *ReplacementsDialog::current() const
{
    const int row = m_list->currentRow();
    if (row < 0 || row >= m_agreed.size() + m_offered.size())
        return nullptr;
    return row < m_agreed.size() ? &m_agreed[row] : &m_offered[row - m_agreed.size()];
}

void ReplacementsDialog::updateButtons()
{
    const bool agreed = m_list->currentRow() < m_agreed.size();
    m_agree->setEnabled(current() && !agreed);
    m_withdraw->setEnabled(current() && agreed);
    m_showEvidence->setEnabled(current());
    m_evidence->setText(
        m_list->count() > 0
            ? QString()
            : tr("Keine ist vereinbart. Ist die Liste der Unterschiede offen, werden "
                 "deren Ersetzungen hier angeboten."));
}

void ReplacementsDialog::agree()
{
    AgreedReplacement replacement = m_offered.takeAt(m_list->currentRow() - m_agreed.size());
    replacement.folder = m_folder->currentData().toString();
    m_agreed.append(replacement);
    fill();
}

void ReplacementsDialog::withdraw()
{
    AgreedReplacement replacement = m_agreed.takeAt(m_list->currentRow());
    replacement.folder.clear();
    m_offered.append(replacement);
    fill();
}

void ReplacementsDialog::showEvidence()
{
    if (!current())
        return;
    AgreedReplacement replacement = *current();
    if (m_list->currentRow() >= m_agreed.size())
        replacement.folder = m_folder->currentData().toString();
    std::optional<VelkRelease::ReplacementEvidence> evidence;
    const std::atomic<bool> cancelled = false;
    BackgroundWork::run(tr("Die Tabellen werden gelesen"), [&] {
        evidence =
            VelkRelease::replacementEvidence(m_sourceRoot, m_release, replacement, cancelled);
    });
    QStringList rows{tr("%Ln Zeile(n) dafür", nullptr, evidence->supports) + QStringLiteral(", ") +
                     tr("%Ln Zeile(n) dagegen", nullptr, evidence->counterExamples)};
    for (std::size_t i = 0; i < std::min(MaxShown, evidence->examples.size()); ++i) {
        const auto &example = evidence->examples[i];
        rows +=
            QStringLiteral("%1:%2  %3 \u2192 %4")
                .arg(example.project, QString::number(example.line), example.before, example.after);
    }
    m_evidence->setText(rows.join(u'\n'));
}
