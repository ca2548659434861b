#include "PartView.h"

#include <core/text/countText.h>
#include <geomcore/csv/TableDescriptor.h>
#include <geomcore/project/CipVersionMgmtC.h>
#include <geomcore/project/PrjClass.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/table/TableData.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/application/PApplication.h>

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

PartView::PartView(const QString &catalogPath, const QString &file, QWidget *parent)
    : QDialog(parent)
    , m_catalogPath(catalogPath)
    , m_file(file)
    , m_view(new VkTableView(this))
{
    setObjectName("PartView");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QFileInfo(file).completeBaseName());
    auto *const layout = new QVBoxLayout(this);
    const VKTab::ProjectTable read =
        VKTab::readProjectTable(file, m_table, {.catalogPath = catalogPath, .allLines = true});
    addHead(file);
    if (read) {
        m_view->setTable(m_table);
        layout->addWidget(m_view, 1);
    } else {
        QStringList reasons;
        for (const VKTab::TableError &error : read.errors)
            reasons += error.toString();
        auto *const reason = new QLabel(tr("Die Tabelle des Projektes kann nicht gelesen werden.") +
                                            u'\n' + reasons.join(u'\n'),
                                        this);
        reason->setObjectName("unreadable");
        reason->setTextFormat(Qt::PlainText);
        reason->setWordWrap(true);
        layout->addWidget(reason, 1);
        m_view->hide();
    }
    addButtons();
    resize(900, 600);
    PApplication::setupWindow(this);
}

PartView::~PartView()
{
    PApplication::saveWindow(this);
}

void PartView::addRow(QFormLayout *rows, const char *name, const QString &title,
                      const QString &text)
{
    if (text.isEmpty())
        return;
    auto *const label = new QLabel(text, this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setMinimumWidth(1); // a long path must not widen the window
    label->setToolTip(text.toHtmlEscaped());
    rows->addRow(title, label);
}

void PartView::addHead(const QString &file)
{
    auto *const rows = new QFormLayout;
    static_cast<QVBoxLayout *>(layout())->addLayout(rows);
    PrjClass project(false, false, false);
    (void)project.read(file, PrjClass::ReadLexems);
    const auto version = [](const QString &date) {
        return date.isEmpty() ? QString()
                              : QString(CipVersionMgmtC::MakeVersionFromDate(date, QString()));
    };
    addRow(rows, "path", tr("Pfad:"), m_catalogPath);
    if (m_table.isValid()) {
        const VKTab::TableDescriptor &table = m_table.getTableData()->descriptor();
        addRow(rows, "norm", tr("Norm:"), table.normNumber);
        addRow(rows, "designation", tr("Bezeichnung:"), table.designation);
        addRow(rows, "projectVersion", tr("Projektversion:"), version(project.lexem("DATE")));
        addRow(rows, "tableVersion", tr("Tabellenversion:"), version(table.finalDate));
        addRow(rows, "lines", tr("Zeilen:"), countText(m_table.getLineCount()));
    } else {
        addRow(rows, "projectVersion", tr("Projektversion:"), version(project.lexem("DATE")));
    }
    addRow(rows, "file", tr("Datei:"), QDir::toNativeSeparators(file));
}

void PartView::addButtons()
{
    auto *const box = new QDialogButtonBox(this);
    const auto add = [box](const char *name, const QString &text,
                           QDialogButtonBox::ButtonRole role) {
        QPushButton *const button = box->addButton(text, role);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        return button;
    };
    if (m_table.isValid()) {
        connect(add("find", tr("Suchen"), QDialogButtonBox::ActionRole), &QPushButton::clicked,
                m_view, &VkTableView::showFindBar);
        QPushButton *const filter = add("filter", tr("Filtern"), QDialogButtonBox::ActionRole);
        filter->setCheckable(true);
        connect(filter, &QPushButton::toggled, m_view, &VkTableView::showFilterBar);
    }
    connect(add("folder", tr("Ordner öffnen"), QDialogButtonBox::ActionRole), &QPushButton::clicked,
            this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(m_file).path())); });
    connect(add("close", tr("Schließen"), QDialogButtonBox::RejectRole), &QPushButton::clicked,
            this, &QDialog::close);
    layout()->addWidget(box);
}
