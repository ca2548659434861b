#include "ImportDialog.h"

#include "DirectoryEdit.h"

#include <gui/application/PApplication.h>
#include <release/import/FolderImport.h>
#include <workbench/window/message/Question.h>

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

ImportDialog::ImportDialog(QSettings *store, QWidget *parent)
    : QDialog(parent)
    , m_store(store)
    , m_from(new DirectoryEdit("importFrom", tr("Ordner mit CSV-Dateien"), this))
    , m_into(new DirectoryEdit("importInto", tr("Verzeichnis des Katalogs"), this))
    , m_problem(new QLabel(this))
{
    setObjectName("ImportDialog");
    setWindowTitle(tr("Tabellen importieren"));
    m_problem->setObjectName("problem");
    m_problem->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->addRow(tr("&Ordner mit CSV-Dateien:"), m_from);
    form->addRow(tr("&Verzeichnis des Katalogs:"), m_into);
    layout->addLayout(form);
    auto *help = new QLabel(tr("Aus jeder CSV-Datei wird ein Projekt mit seiner Tabelle am selben "
                               "Ort im Katalog. Wer die Tabellen wieder importiert, behält die "
                               "Nummern der Zeilen."),
                            this);
    help->setWordWrap(true);
    layout->addWidget(help);
    layout->addWidget(m_problem);
    auto *buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(tr("&Importieren"), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName("ok");
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_from, &DirectoryEdit::directoryChanged, this, &ImportDialog::check);
    connect(m_into, &DirectoryEdit::directoryChanged, this, &ImportDialog::check);
    m_from->setDirectory(m_store->value("Import/from").toString());
    m_into->setDirectory(m_store->value("Import/into").toString());
    check();
    PApplication::setupWindow(this);
}

ImportDialog::~ImportDialog()
{
    PApplication::saveWindow(this);
}

QString ImportDialog::from() const
{
    return m_from->directory();
}

QString ImportDialog::into() const
{
    return m_into->directory();
}

QString ImportDialog::problem() const
{
    if (from().isEmpty() || !QFileInfo(from()).isDir())
        return tr("Der Ordner mit den CSV-Dateien fehlt.");
    if (into().isEmpty() || !QFileInfo(QFileInfo(into()).path()).isDir())
        return tr("Das Verzeichnis des Katalogs fehlt; es wird angelegt, wenn es das Verzeichnis "
                  "darüber gibt.");
    if (VelkRelease::FolderImport::areNested(from(), into()))
        return tr("Ein Verzeichnis liegt im anderen.");
    return {};
}

void ImportDialog::check()
{
    const QString text = problem();
    m_problem->setText(text);
    m_ok->setEnabled(text.isEmpty());
}

void ImportDialog::accept()
{
    if (!problem().isEmpty())
        return;
    m_store->setValue("Import/from", from());
    m_store->setValue("Import/into", into());
    QDialog::accept();
}
