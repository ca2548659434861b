#include "RecoveryDialog.h"

#include <core/text/countText.h>
#include <gui/application/PApplication.h>
#include <workbench/session/journal/RecoveryOffer.h>
#include <workbench/window/message/Question.h>

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

QString workText(const RecoveryOffer &offer)
{
    const QString steps = RecoveryDialog::tr("%Ln Schritt(e)", nullptr, offer.steps);
    const QString lines =
        RecoveryDialog::tr("%1 mit %Ln Zeile(n)", nullptr, offer.changedLines).arg(steps);
    return RecoveryDialog::tr("%1 in %Ln Projekt(en)", nullptr, offer.changedProjects).arg(lines);
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
        tr("Für %1 gibt es Arbeit, die nicht gespeichert wurde: %2, zuletzt „%3“. Sie stammt von "
           "%4.")
            .arg(QFileInfo(file).fileName(), workText(offer), offer.lastStep,
                 ownerText(offer.owner)),
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
        add(what, countText(left), countText(right), name);
    };
    add(tr("Stand"), timeText(saved.time), timeText(found.time), "time");
    addCount(tr("Projekte"), saved.projects, found.projects, "projects");
    addCount(tr("Zeilen"), saved.counts.lines(), found.counts.lines(), "lines");
    addCount(tr("Bestätigt"), saved.counts.verified(), found.counts.verified(), "verified");
    addCount(tr("Zu prüfen"), saved.counts.toCheck(), found.counts.toCheck(), "toCheck");
    addCount(tr("Ohne Ziel"), saved.counts.notFound(), found.counts.notFound(), "notFound");
    layout->addLayout(grid);
    addNotes(offer);
    addButtons(offer);
    PApplication::setupWindow(this);
}

void RecoveryDialog::addNotes(const RecoveryOffer &offer)
{
    const auto add = [this](const QString &text, const char *name) {
        if (text.isEmpty())
            return;
        auto *note = new QLabel(text, this);
        note->setObjectName(name);
        note->setTextFormat(Qt::PlainText);
        note->setWordWrap(true);
        layout()->addWidget(note);
    };
    add(offer.savedIsNewer
            ? tr("Der gespeicherte Stand ist jünger als alles, was wiederhergestellt werden kann.")
            : QString(),
        "savedIsNewer");
    add(offer.damage, "damage");
}

void RecoveryDialog::addButtons(const RecoveryOffer &offer)
{
    using Recovery = MappingDocument::Recovery;
    auto *buttons = new QDialogButtonBox(this);
    const auto add = [&](const QString &text, QDialogButtonBox::ButtonRole role, const char *name,
                         Recovery choice) {
        QPushButton *button = buttons->addButton(text, role);
        button->setObjectName(name);
        connect(button, &QPushButton::clicked, this, [this, choice] { choose(choice); });
        return button;
    };
    QPushButton *recover = add(tr("&Wiederherstellen"), QDialogButtonBox::AcceptRole, "recover",
                               Recovery::UseRecovered);
    if (offer.further.available)
        add(tr("Mit &späteren Änderungen (%1)").arg(countText(offer.laterChanges)),
            QDialogButtonBox::AcceptRole, "useFurther", Recovery::UseFurther);
    QPushButton *saved = add(tr("&Gespeicherten Stand öffnen"), QDialogButtonBox::DestructiveRole,
                             "useSaved", Recovery::UseSaved);
    saved->setEnabled(offer.saved.available);
    (offer.savedIsNewer ? saved : recover)->setDefault(true);
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole);
    layout()->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

RecoveryDialog::~RecoveryDialog()
{
    PApplication::saveWindow(this);
}

void RecoveryDialog::choose(MappingDocument::Recovery choice)
{
    m_choice = choice;
    accept();
}
