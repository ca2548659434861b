#include "DocumentListDialogCPrivate.h"

#include "DocumentListDialogC.h"

#include <core/config/PConfigInst.h>

#include <QDataStream>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>

namespace {

constexpr const char *defaultColumns = "PDMID1,PDMID2,PDMID3,PDMID4,PDMID5,XVARSET,CADSYSTEM,"
                                       "PDMSYSTEM,GEOFEATURES,NBDEFAULTLANG";

QString translated(const char *text)
{
    return PString::translate(text, "VelkLinkDbGui");
}

} // namespace

DocumentListDialogCPrivate::DocumentListDialogCPrivate(DocumentListDialogC *dialog)
    : PPrivateData(dialog)
{
}

DocumentListDialogCPrivate::~DocumentListDialogCPrivate() = default;

void DocumentListDialogCPrivate::findWidgets(const QWidget &form)
{
    tvDocuments = form.findChild<QTreeWidget *>(QStringLiteral("tvDocuments"));
    if (tvDocuments)
        tvDocuments->setAccessibleName(form.windowTitle());
    tvVarset = form.findChild<QTreeWidget *>(QStringLiteral("tvVarset"));
    const auto *const lbVarset = form.findChild<QLabel *>(QStringLiteral("lbVarset"));
    if (tvVarset && lbVarset)
        tvVarset->setAccessibleName(lbVarset->text());
    btnDelete = form.findChild<QPushButton *>(QStringLiteral("btnDelete"));
    btnCreate = form.findChild<QPushButton *>(QStringLiteral("btnCreate"));
    btnEdit = form.findChild<QPushButton *>(QStringLiteral("btnEdit"));
    lbInfo = form.findChild<QLabel *>(QStringLiteral("lbInfo"));
    splitter = form.findChild<QSplitter *>(QStringLiteral("splitter"));
    const auto *const buttons = form.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    const auto join = [this](const QObject *sender, const char *signal, const char *slot) {
        if (sender)
            QObject::connect(sender, signal, q, slot);
    };
    join(tvDocuments, SIGNAL(itemDoubleClicked(QTreeWidgetItem *, int)),
         SLOT(OnItemDoubleClicked(QTreeWidgetItem *, int)));
    join(btnDelete, SIGNAL(clicked()), SLOT(OnDeleteRow()));
    join(btnCreate, SIGNAL(clicked()), SLOT(OnNewRecord()));
    join(btnEdit, SIGNAL(clicked()), SLOT(OnEditRecord()));
    join(buttons, SIGNAL(accepted()), SLOT(accept()));
    join(buttons, SIGNAL(rejected()), SLOT(reject()));
    if (btnDelete)
        btnDelete->setIcon(QIcon(QStringLiteral(":/toolicons/actionSketchCancel_24.png")));
    if (btnCreate) {
        btnCreate->setIcon(QIcon(QStringLiteral(":/toolicons/actionFileNew_16.png")));
        btnCreate->setEnabled(false);
    }
}

PStringList DocumentListDialogCPrivate::displayColumns() const
{
    QString columns = linkDbIface->getGroupInformation("PDM_COLUMNS");
    if (columns.isEmpty())
        columns = QString::fromLatin1(defaultColumns);
    return columns.toUpper().split(u',', Qt::SkipEmptyParts);
}

PStringList DocumentListDialogCPrivate::editColumns() const
{
    const QString configured = linkDbIface->getGroupInformation("PDM_EDIT_COLUMNS");
    PStringList columns = configured.isEmpty()
                              ? displayColumns()
                              : PStringList(configured.toUpper().split(u',', Qt::SkipEmptyParts));
    for (const QString &system : {QStringLiteral("CADSYSTEM"), QStringLiteral("PDMSYSTEM")}) {
        if (!columns.contains(system))
            columns.append(system);
    }
    return columns;
}

void DocumentListDialogCPrivate::setListLook(QTreeWidget *view)
{
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setRootIsDecorated(false);
    view->header()->setSectionsMovable(false);
}

void DocumentListDialogCPrivate::setHeader()
{
    const PStringList columns = displayColumns();
    // An empty caption is dropped, which moves those behind it one column forward.
    const QStringList captions =
        linkDbIface->getGroupInformation("PDM_COLUMN_DESCRIPTIONS").split(u',', Qt::SkipEmptyParts);
    tvDocuments->setHeaderLabels(columns);
    QTreeWidgetItem *const header = tvDocuments->headerItem();
    for (int i = 0; i < columns.size(); ++i) {
        header->setData(i, Qt::UserRole, columns[i]);
        header->setData(i, Qt::DisplayRole, captions.value(i, columns[i]));
    }
}

void DocumentListDialogCPrivate::setVarsetHeader()
{
    if (!tvVarset)
        return;
    setListLook(tvVarset);
    tvVarset->setHeaderLabels(
        {translated("Variable"), translated("Beschreibung"), translated("Wert")});
}

void DocumentListDialogCPrivate::updateInfoLabel()
{
    if (!lbInfo)
        return;
    const PString text = linkDbIface->getGroupInformation("PDM_DOCVIEW_INFO");
    if (text.isEmpty()) {
        lbInfo->hide();
        return;
    }
    const PConfigInst groups(PString::ResolveEnvirons("$TORMEVA_SETUP/plinkgroups.def"), true);
    const PString language = PString::ResolveEnvirons("$TORMEVA_LANGUAGE");
    lbInfo->setText(groups.getItemValue(language, "Info Text", text).GetString());
}

void DocumentListDialogCPrivate::updateButtons()
{
    const auto show = [this](QPushButton *button, const char *key) {
        if (button)
            button->setVisible(linkDbIface->getGroupInformation(key) == u"1");
    };
    show(btnDelete, "PDM_DELETE");
    show(btnEdit, "PDM_EDIT");
    show(btnCreate, "PDM_ADD");
}

void DocumentListDialogCPrivate::restoreViews()
{
    if (savedState.isEmpty())
        return;
    QDataStream stream(savedState);
    QByteArray splitterState;
    QByteArray documentsState;
    QByteArray varsetState;
    stream >> splitterState >> documentsState >> varsetState;
    if (splitter && !splitterState.isEmpty())
        splitter->restoreState(splitterState);
    if (!documentsState.isEmpty())
        tvDocuments->header()->restoreState(documentsState);
    if (tvVarset && !varsetState.isEmpty())
        tvVarset->header()->restoreState(varsetState);
}
