#include "NewMappingDialog.h"

#include "DirectoryEdit.h"
#include "FileNames.h"

#include <gui/application/PApplication.h>
#include <workbench/window/message/Question.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QToolButton>
#include <QVBoxLayout>

NewMappingDialog::NewMappingDialog(QSettings *store, QWidget *parent)
    : QDialog(parent)
    , m_store(store)
    , m_source(new DirectoryEdit("sourceRoot", tr("Verzeichnis des alten Katalogstands"), this))
    , m_target(new DirectoryEdit("targetRoot", tr("Verzeichnis des neuen Katalogstands"), this))
    , m_sourceCatalog(new QComboBox(this))
    , m_targetCatalog(new QComboBox(this))
    , m_file(new QLineEdit(this))
    , m_assign(new QCheckBox(tr("&Zeilen gleich zuordnen"), this))
    , m_problem(new QLabel(this))
{
    setObjectName("NewMappingDialog");
    setWindowTitle(tr("Neues Mapping"));
    m_sourceCatalog->setObjectName("sourceCatalog");
    m_targetCatalog->setObjectName("targetCatalog");
    m_file->setObjectName("mappingFile");
    m_assign->setObjectName("assign");
    m_assign->setChecked(true);
    m_problem->setObjectName("problem");
    m_problem->setWordWrap(true);
    buildForm();
    connect(m_source, &DirectoryEdit::directoryChanged, this,
            [this] { fillCatalogs(m_sourceCatalog, m_source); });
    connect(m_target, &DirectoryEdit::directoryChanged, this,
            [this] { fillCatalogs(m_targetCatalog, m_target); });
    connect(m_sourceCatalog, &QComboBox::currentTextChanged, this, [this](const QString &name) {
        if (m_targetCatalog->findText(name) >= 0)
            m_targetCatalog->setCurrentText(name);
        proposeFile();
        check();
    });
    connect(m_targetCatalog, &QComboBox::currentTextChanged, this, &NewMappingDialog::check);
    connect(m_file, &QLineEdit::textChanged, this, &NewMappingDialog::check);
    m_source->setDirectory(m_store->value("NewMapping/source").toString());
    m_target->setDirectory(m_store->value("NewMapping/target").toString());
    check();
    PApplication::setupWindow(this);
}

NewMappingDialog::~NewMappingDialog()
{
    PApplication::saveWindow(this);
}

void NewMappingDialog::buildForm()
{
    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->addRow(tr("&Alter Katalogstand:"), m_source);
    form->addRow(tr("Katalog darin:"), m_sourceCatalog);
    form->addRow(tr("&Neuer Katalogstand:"), m_target);
    form->addRow(tr("Katalog darin:"), m_targetCatalog);
    auto *fileRow = new QHBoxLayout;
    auto *browse = new QToolButton(this);
    browse->setText(QStringLiteral("..."));
    browse->setAccessibleName(tr("Mapping-Datei wählen"));
    browse->setToolTip(tr("Mapping-Datei wählen"));
    connect(browse, &QToolButton::clicked, this, [this] {
        const QString file = FileNames::askSave(this, m_file->text());
        if (!file.isEmpty())
            m_file->setText(file);
    });
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(browse);
    auto *fileLabel = new QLabel(tr("&Mapping-Datei:"), this);
    fileLabel->setBuddy(m_file);
    form->addRow(fileLabel, fileRow);
    form->addRow(QString(), m_assign);
    layout->addLayout(form);
    layout->addWidget(m_problem);
    auto *buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(tr("An&legen"), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName("ok");
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &NewMappingDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void NewMappingDialog::fillCatalogs(QComboBox *box, const DirectoryEdit *directory)
{
    const QString former = box->currentText();
    box->clear();
    if (!directory->directory().isEmpty())
        box->addItems(
            QDir(directory->directory()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name));
    if (box->findText(former) >= 0)
        box->setCurrentText(former);
    check();
}

/// As long as nobody entered another one.
void NewMappingDialog::proposeFile()
{
    const QString former = m_file->property("proposed").toString();
    if ((m_file->text() != former && !m_file->text().isEmpty()) ||
        m_sourceCatalog->currentText().isEmpty())
        return;
    const QString proposed =
        QDir::homePath() + '/' + m_sourceCatalog->currentText() + QStringLiteral(".mapping.json");
    m_file->setProperty("proposed", proposed);
    m_file->setText(proposed);
}

MappingMaker::Wish NewMappingDialog::wish() const
{
    MappingMaker::Wish wish;
    wish.sourceRoot = m_source->directory();
    wish.targetRoot = m_target->directory();
    wish.sourceCatalog = m_sourceCatalog->currentText();
    wish.targetCatalog = m_targetCatalog->currentText();
    wish.mappingFile = m_file->text().trimmed().isEmpty()
                           ? QString()
                           : QFileInfo(m_file->text().trimmed()).absoluteFilePath();
    wish.assign = m_assign->isChecked();
    return wish;
}

QString NewMappingDialog::problem() const
{
    const MappingMaker::Wish chosen = wish();
    if (chosen.sourceRoot.isEmpty() || !QFileInfo(chosen.sourceRoot).isDir())
        return tr("Das Verzeichnis des alten Katalogstands fehlt.");
    if (chosen.targetRoot.isEmpty() || !QFileInfo(chosen.targetRoot).isDir())
        return tr("Das Verzeichnis des neuen Katalogstands fehlt.");
    if (chosen.sourceCatalog.isEmpty() || chosen.targetCatalog.isEmpty())
        return tr("Jeder Stand braucht ein Verzeichnis mit dem Katalog.");
    if (chosen.mappingFile.isEmpty())
        return tr("Die Mapping-Datei braucht einen Namen.");
    if (!QFileInfo(QFileInfo(chosen.mappingFile).path()).isDir())
        return tr("Das Verzeichnis %1 gibt es nicht.").arg(QFileInfo(chosen.mappingFile).path());
    return {};
}

void NewMappingDialog::check()
{
    const QString text = problem();
    m_problem->setText(text);
    m_ok->setEnabled(text.isEmpty());
}

bool NewMappingDialog::mayUseFile()
{
    const QString file = wish().mappingFile;
    if (!QFileInfo::exists(file))
        return true;
    Question question(this);
    question.setWarning();
    question.setText(tr("%1 gibt es schon.").arg(file));
    question.setDetails(
        tr("Beim Speichern kommt der neue Stand dazu; ein Stand mit demselben Datum "
           "wird ersetzt, mit allem, was darin bestätigt ist."));
    question.addAnswer(Question::Cancel, Question::cancelText());
    question.addAnswer(Question::Accept, tr("&Diese Datei verwenden"));
    return question.ask() == Question::Accept;
}

void NewMappingDialog::accept()
{
    if (!problem().isEmpty() || !mayUseFile())
        return;
    m_store->setValue("NewMapping/source", wish().sourceRoot);
    m_store->setValue("NewMapping/target", wish().targetRoot);
    QDialog::accept();
}
