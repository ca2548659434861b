#include "CatalogRootsDialog.h"

#include "DirectoryEdit.h"

#include <gui/application/PApplication.h>
#include <workbench/window/message/Question.h>

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString sampleOf(const ReleaseMappingC &release)
{
    return release.countMappings() > 0 ? release.mappingAt(0).getSourcePath() : QString();
}

/// The directory in which all target paths begin, if there are any.
QString targetCatalogOf(const ReleaseMappingC &release)
{
    for (int i = 0; i < release.countMappings(); ++i) {
        const auto targets = release.mappingAt(i).getTargets();
        for (const PrjMappingTargetC &target : targets) {
            if (!target.getTargetPath().isEmpty())
                return target.getTargetPath().section('/', 0, 0);
        }
    }
    return {};
}

} // namespace

CatalogRootsDialog::CatalogRootsDialog(const ReleaseMappingC &release, const CatalogRoots &roots,
                                       QWidget *parent)
    : QDialog(parent)
    , m_sample(sampleOf(release))
    , m_targetCatalog(targetCatalogOf(release))
    , m_source(new DirectoryEdit("sourceRoot", tr("Verzeichnis des alten Katalogstands"), this))
    , m_target(new DirectoryEdit("targetRoot", tr("Verzeichnis des neuen Katalogstands"), this))
    , m_problem(new QLabel(this))
{
    setObjectName("CatalogRootsDialog");
    setWindowTitle(tr("Katalogverzeichnisse"));
    auto *layout = new QVBoxLayout(this);
    auto *intro = new QLabel(
        tr("Wo liegen die beiden Katalogstände dieser Mapping-Datei? Die Verzeichnisse werden "
           "zusammen mit der Datei gemerkt."),
        this);
    intro->setWordWrap(true);
    layout->addWidget(intro);
    auto *form = new QFormLayout;
    form->addRow(tr("&Alter Stand (%1):").arg(release.getSourceDate()), m_source);
    form->addRow(tr("&Neuer Stand (%1):").arg(release.getTargetDate()), m_target);
    layout->addLayout(form);
    m_problem->setObjectName("problem");
    m_problem->setWordWrap(true);
    layout->addWidget(m_problem);
    auto *buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(Question::okText(), QDialogButtonBox::AcceptRole);
    m_ok->setObjectName("ok");
    buttons->addButton(Question::cancelText(), QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_source, &DirectoryEdit::directoryChanged, this, &CatalogRootsDialog::check);
    connect(m_target, &DirectoryEdit::directoryChanged, this, &CatalogRootsDialog::check);
    m_source->setDirectory(roots.source);
    m_target->setDirectory(roots.target);
    check();
    PApplication::setupWindow(this);
}

CatalogRootsDialog::~CatalogRootsDialog()
{
    PApplication::saveWindow(this);
}

CatalogRoots CatalogRootsDialog::roots() const
{
    return {m_source->directory(), m_target->directory()};
}

QString CatalogRootsDialog::problem() const
{
    const CatalogRoots chosen = roots();
    if (chosen.source.isEmpty() || chosen.target.isEmpty())
        return tr("Beide Verzeichnisse werden gebraucht.");
    if (!QFileInfo(chosen.source).isDir())
        return tr("%1 ist kein Verzeichnis.").arg(chosen.source);
    if (!QFileInfo(chosen.target).isDir())
        return tr("%1 ist kein Verzeichnis.").arg(chosen.target);
    if (!m_sample.isEmpty() && !QFileInfo::exists(chosen.source + '/' + m_sample))
        return tr("Im alten Stand fehlt %1. Gesucht ist das Verzeichnis, in dem der Katalog %2 "
                  "liegt.")
            .arg(m_sample, m_sample.section('/', 0, 0));
    if (!m_targetCatalog.isEmpty() && !QFileInfo(chosen.target + '/' + m_targetCatalog).isDir())
        return tr("Im neuen Stand fehlt der Katalog %1.").arg(m_targetCatalog);
    return {};
}

void CatalogRootsDialog::check()
{
    const QString text = problem();
    m_problem->setText(text);
    m_ok->setEnabled(text.isEmpty());
}
