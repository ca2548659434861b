#include "LegendDialog.h"

#include <gui/application/PApplication.h>

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct LegendRow
{
    const char *icon;
    const char *text;
};
constexpr LegendRow legendRows[] = {
    {":/bitmaps/state_confirmed.png",
     QT_TRANSLATE_NOOP("LegendDialog", "Bestätigt: die Zuordnung ist entschieden")},
    {":/bitmaps/state_check.png",
     QT_TRANSLATE_NOOP("LegendDialog", "Vorschlag: muss bestätigt oder korrigiert werden")},
    {"", QT_TRANSLATE_NOOP("LegendDialog", "Ohne Bild: eindeutig gleich, vom Programm zugeordnet")},
    {":/bitmaps/state_deleted.png", QT_TRANSLATE_NOOP("LegendDialog", "Keine Zuordnung gefunden")},
    {":/bitmaps/state_deleted_confirmed.png",
     QT_TRANSLATE_NOOP("LegendDialog", "Ausgelaufen: bestätigt, dass es keine Zuordnung gibt")},
    {":/bitmaps/state_conflict.png",
     QT_TRANSLATE_NOOP("LegendDialog", "Konflikt mit der Änderung eines anderen")},
    {":/bitmaps/error.png",
     QT_TRANSLATE_NOOP("LegendDialog", "Projekt oder Tabelle kann nicht gelesen werden")},
    {":/toolicons/actionFormatRanges_16.png",
     QT_TRANSLATE_NOOP("LegendDialog", "Wertebereichszuordnungen der Zeile")},
    {":/bitmaps/line.png",
     QT_TRANSLATE_NOOP("LegendDialog", "In der Zieltabelle: die zugeordnete Zeile")},
};

} // namespace

LegendDialog::LegendDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName("LegendDialog");
    setWindowTitle(tr("Legende"));
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    int line = 0;
    for (const LegendRow &row : legendRows) {
        auto *picture = new QLabel(this);
        if (*row.icon)
            picture->setPixmap(QIcon(row.icon).pixmap(16, 16));
        grid->addWidget(picture, line, 0);
        grid->addWidget(new QLabel(tr(row.text), this), line, 1);
        ++line;
    }
    grid->setColumnStretch(1, 1);
    layout->addLayout(grid);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Schließen"), QDialogButtonBox::RejectRole)->setObjectName("close");
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    PApplication::setupWindow(this);
}

LegendDialog::~LegendDialog()
{
    PApplication::saveWindow(this);
}
