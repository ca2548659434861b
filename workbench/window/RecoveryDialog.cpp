#include "RecoveryDialog.h"

#include "Question.h"

#include <gui/application/PApplication.h>
#include <workbench/session/RecoveryOffer.h>

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString timeText(const QDateTime &time)
{
    return time.isValid() ? time.toLocalTime().toString("yyyy-MM-dd HH:mm:ss")
                          : QStringLiteral("–");
}

void addLabel(QGridLayout *grid, int row, int column, const QString &text, bool strong,
              const QString &name = QString())
{
    auto *label = new QLabel(text);
    label->setObjectName(name);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (strong) {
        QFont font = label->font();
        font.setBold(true);
        label->setFont(font);
    }
    if (column > 0)
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(label, row, column);
}

} // namespace

RecoveryDialog::RecoveryDialog(const QString &file, const RecoveryOffer &offer, QWidget *parent)
    : QDialog(parent)
{
    setObjectName("RecoveryDialog");
    setWindowTitle(tr("Wiederherstellung"));
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    auto *intro = new QLabel(
        tr("Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2 Schritte mit %3 Zeilen in %4 "
           "Projekten, zuletzt „%5“. Sie stammt von %6.")
            .arg(QFileInfo(file).fileName(), QString::number(offer.steps),
                 QString::number(offer.changedLines), QString::number(offer.changedProjects),
                 offer.lastStep, ownerText(offer.owner)),
        this);
    intro->setObjectName("intro");
    intro->setWordWrap(true);
    intro->setTextFormat(Qt::PlainText);
    layout->addWidget(intro);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    addLabel(grid, 0, 1, tr("Gespeichert"), true);
    addLabel(grid, 0, 2, tr("Wiederhergestellt"), true);
    const RecoveryVersion &saved = offer.saved;
    const RecoveryVersion &found = offer.recovered;
    int row = 0;
    const auto add = [&](const QString &what, const QString &left, const QString &right,
                         const QString &name) {
        ++row;
        addLabel(grid, row, 0, what, false);
        addLabel(grid, row, 1, saved.available ? left : QStringLiteral("–"), left != right,
                 name + "Saved");
        addLabel(grid, row, 2, right, left != right, name + "Recovered");
    };
    const auto addCount = [&](const QString &what, int left, int right, const QString &name) {
        add(what, QString::number(left), QString::number(right), name);
    };
    add(tr("Stand"), timeText(saved.time), timeText(found.time), "time");
    addCount(tr("Projekte"), saved.projects, found.projects, "projects");
    addCount(tr("Zeilen"), saved.counts.lines(), found.counts.lines(), "lines");
    addCount(tr("Bestätigt"), saved.counts.verified(), found.counts.verified(), "verified");
    addCount(tr("Zu überprüfen"), saved.counts.toCheck(), found.counts.toCheck(), "toCheck");
    addCount(tr("Nicht gefunden"), saved.counts.notFound(), found.counts.notFound(), "notFound");
    layout->addLayout(grid);
    if (!offer.damage.isEmpty()) {
        auto *damage = new QLabel(offer.damage, this);
        damage->setObjectName("damage");
        damage->setWordWrap(true);
        layout->addWidget(damage);
    }

    auto *buttons = new QDialogButtonBox(this);
    auto *recover = buttons->addButton(tr("&Wiederherstellen"), QDialogButtonBox::AcceptRole);
    recover->setObjectName("recover");
    recover->setDefault(true);
    auto *discard =
        buttons->addButton(tr("&Gespeicherten Stand öffnen"), QDialogButtonBox::DestructiveRole);
    discard->setObjectName("useSaved");
    discard->setEnabled(saved.available);
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);
    connect(recover, &QPushButton::clicked, this, [this] { choose(true); });
    connect(discard, &QPushButton::clicked, this, [this] { choose(false); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    PApplication::setupWindow(this);
}

RecoveryDialog::~RecoveryDialog()
{
    PApplication::saveWindow(this);
}

void RecoveryDialog::choose(bool recover)
{
    m_recovers = recover;
    accept();
}
