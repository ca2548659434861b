#include "SettingsDialog.h"

#include "KeyedActions.h"
#include "LinkDbBox.h"
#include "RepositoryBox.h"

#include <gui/application/PApplication.h>
#include <workbench/window/message/Question.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int shownPlaces = 2;

} // namespace

SettingsDialog::SettingsDialog(const WorkbenchSettings::Values &values, const QString &linkDbFile,
                               QWidget *parent)
    : QDialog(parent)
    , m_keys(values.keys)
    , m_language(new QComboBox(this))
    , m_theme(new QComboBox(this))
    , m_font(new QSpinBox(this))
    , m_autosave(new QSpinBox(this))
    , m_goesOn(
          new QCheckBox(tr("Nach einer Entscheidung weiter zur nä&chsten offenen Zeile"), this))
    , m_allowed(new QPlainTextEdit(this))
    , m_repository(new RepositoryBox(values.repository, this))
    , m_linkDb(new LinkDbBox(values.linkDb, linkDbFile, this))
    , m_problem(new QLabel(this))
{
    setObjectName("SettingsDialog");
    setWindowTitle(tr("Einstellungen"));
    m_language->setObjectName("language");
    // A language is called by its own name.
    const QStringList languages = EditorLanguages::all();
    for (const QString &language : languages)
        m_language->addItem(EditorLanguages::nameOf(language), language);
    m_language->setCurrentIndex(m_language->findData(values.language));
    m_theme->setObjectName("theme");
    m_theme->addItem(tr("Wie der Desktop"), QString());
    m_theme->addItem(tr("Hell"), "light");
    m_theme->addItem(tr("Dunkel"), "dark");
    m_theme->addItem(tr("Hoher Kontrast"), "contrast");
    m_theme->setCurrentIndex(m_theme->findData(values.theme));
    m_font->setObjectName("font");
    m_font->setRange(WorkbenchSettings::MinFontPercent, WorkbenchSettings::MaxFontPercent);
    m_font->setSingleStep(5);
    m_font->setSuffix(QStringLiteral(" %"));
    m_font->setValue(values.fontPercent);
    m_autosave->setObjectName("autosave");
    m_autosave->setRange(0, WorkbenchSettings::MaxAutosaveMinutes);
    m_autosave->setSpecialValueText(tr("nie"));
    m_autosave->setSuffix(tr(" min"));
    m_autosave->setValue(values.autosaveMinutes);
    m_goesOn->setObjectName("goesOn");
    m_goesOn->setChecked(values.goesOn);
    m_allowed->setObjectName("allowedPlaces");
    m_allowed->setPlainText(values.allowedPlaces.join(u'\n'));
    m_allowed->setToolTip(tr("Je Zeile ein Ordner, aus dem gelesen werden darf, was Dateien eines "
                             "Katalogs außerhalb der Kataloge nennen."));
    m_allowed->setTabChangesFocus(true);
    m_allowed->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_allowed->setFixedHeight(m_allowed->fontMetrics().lineSpacing() * shownPlaces +
                              m_allowed->fontMetrics().height() + 2 * m_allowed->frameWidth());
    m_problem->setObjectName("problem");
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);

    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->addRow(tr("&Sprache:"), m_language);
    form->addRow(tr("&Farben:"), m_theme);
    form->addRow(tr("Sch&riftgröße:"), m_font);
    form->addRow(tr("Sicherungs&kopie alle:"), m_autosave);
    form->addRow(m_goesOn);
    form->addRow(tr("Erlaubte Ordner:"), m_allowed);
    layout->addLayout(form);
    layout->addWidget(m_repository);
    layout->addWidget(m_linkDb);
    layout->addWidget(m_problem);
    auto *buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(Question::okText(), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName("ok");
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_repository, &RepositoryBox::changed, this, &SettingsDialog::check);
    connect(m_allowed, &QPlainTextEdit::textChanged, this, &SettingsDialog::check);
    connect(m_linkDb, &LinkDbBox::changed, this, &SettingsDialog::check);
    check();
    PApplication::setupWindow(this);
}

SettingsDialog::~SettingsDialog()
{
    PApplication::saveWindow(this);
}

WorkbenchSettings::Values SettingsDialog::values() const
{
    WorkbenchSettings::Values values;
    values.language = m_language->currentData().toString();
    values.theme = m_theme->currentData().toString();
    values.fontPercent = m_font->value();
    values.autosaveMinutes = m_autosave->value();
    values.goesOn = m_goesOn->isChecked();
    values.keys = m_keys;
    values.allowedPlaces = allowedPlaces();
    values.repository = m_repository->settings();
    values.linkDb = m_linkDb->address();
    return values;
}

QList<SettingsDialog::Field> SettingsDialog::fields() const
{
    QList<Field> fields;
    const QList<QLabel *> labels = findChildren<QLabel *>();
    for (const QLabel *const label : labels) {
        if (!label->buddy())
            continue;
        QString text = KeyedActions::plain(label->text());
        if (text.endsWith(u':'))
            text.chop(1);
        const auto *const box = qobject_cast<const QGroupBox *>(label->parentWidget());
        fields << Field{label->buddy()->objectName(), text,
                        box ? KeyedActions::plain(box->title()) : QString()};
    }
    for (const QGroupBox *const box :
         {static_cast<const QGroupBox *>(m_repository), static_cast<const QGroupBox *>(m_linkDb)})
        fields << Field{box->objectName(), KeyedActions::plain(box->title()), QString()};
    return fields;
}

bool SettingsDialog::focusField(const QString &name)
{
    auto *const field = findChild<QWidget *>(name);
    if (!field)
        return false;
    QWidget *const box = field->isEnabled() ? nullptr : field->parentWidget();
    (box ? box : field)->setFocus(Qt::ShortcutFocusReason);
    return true;
}

QStringList SettingsDialog::allowedPlaces() const
{
    QStringList places;
    for (const QString &line : m_allowed->toPlainText().split(u'\n')) {
        if (!line.trimmed().isEmpty())
            places.append(line.trimmed());
    }
    return places;
}

QString SettingsDialog::problem() const
{
    for (const QString &place : allowedPlaces()) {
        if (!QFileInfo(place).isAbsolute() || !QFileInfo(place).isDir())
            return tr("Erlaubte Ordner: \"%1\" ist kein Ordner mit vollständigem Pfad.").arg(place);
    }
    const QString ofRepository = m_repository->problem();
    return ofRepository.isEmpty() ? m_linkDb->problem() : ofRepository;
}

void SettingsDialog::check()
{
    const QString text = problem();
    m_problem->setText(text);
    m_ok->setEnabled(text.isEmpty());
}
