#include "DocumentListDialogC.h"

#include "DocumentListDialogCPrivate.h"

#include <geomcore/table/ErpLayer.h>
#include <geomcore/table/FileLayer.h>
#include <geomcore/table/LayerType.h>
#include <gui/application/PApplication.h>

#include <QDataStream>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <boost/pointer_cast.hpp>

DocumentListDialogC::DocumentListDialogC(QWidget *parent, QFlags<Qt::WindowType> flags)
    : QDialog(parent, flags)
    , d(new DocumentListDialogCPrivate(this))
{
    setObjectName(QStringLiteral("DocumentListDialog"));
    QWidget *const form = PApplication::createWidget(
        QStringLiteral("forms:linkdbgui/DocumentListDialog.ui"), this, false);
    if (form) {
        const QSize size = form->size();
        setWindowTitle(form->windowTitle());
        (new QVBoxLayout(this))->addWidget(form);
        d->findWidgets(*form);
        resize(size);
    }
    PApplication::setupWindow(this);
}

DocumentListDialogC::~DocumentListDialogC()
{
    PApplication::saveWindow(this);
    delete d;
}

void DocumentListDialogC::setIndexTree(const PRefPtr<IndexTreeC> &tree)
{
    d->indexTree = tree;
}

void DocumentListDialogC::setVelkTab(const ProxyPtrT<VKTab::proxyTableC> &table)
{
    d->table = table;
}

void DocumentListDialogC::setLinkDbIface(const ProxyPtrT<prxLinkDbIfaceC> &linkDbIface)
{
    d->linkDbIface = linkDbIface;
    if (linkDbIface.isNull())
        return;
    d->documentTable = linkDbIface->getMainModule()->getTableName("PLMTABLE2");
    d->hierarchyTable = linkDbIface->getMainModule()->getTableName("PLM_HIERARCHY");
    d->updateInfoLabel();
    d->updateButtons();
}

void DocumentListDialogC::setUpdateCallback(const mzIDispatchC &object, const mzComStringC &method)
{
    d->updateCallback = {object, method};
}

void DocumentListDialogC::setCreateCallback(const mzIDispatchC &object, const mzComStringC &method)
{
    d->createCallback = {object, method};
    if (d->createCallback.isValid() && d->btnCreate)
        d->btnCreate->setEnabled(true);
}

void DocumentListDialogC::initDialog(const PString &path, int lineId, int lineSubId)
{
    if (!d->tvDocuments || d->indexTree.isNull() || d->linkDbIface.isNull())
        return;
    DocumentListDialogCPrivate::setListLook(d->tvDocuments);
    d->setHeader();
    d->setLine(path, lineId, lineSubId);
    d->loadRecords();
    d->setVarsetHeader();
    d->restoreViews();
}

PString DocumentListDialogC::getXVarset() const
{
    return d->xvarset;
}

bool DocumentListDialogC::isModified() const
{
    return d->modified;
}

bool DocumentListDialogC::isVarsetModified() const
{
    return d->varsetModified;
}

void DocumentListDialogC::updatePLMInfo()
{
    if (d->table.isNull())
        return;
    const VKTab::ContentRef content = d->table->getContent();
    const auto erp =
        boost::dynamic_pointer_cast<VKTab::ErpLayer>(content.getLayer(VKTab::erpLayerType()));
    if (erp && content.getLayer(VKTab::fileLayerType()))
        erp->updatePLMInfo(d->lineId);
}

QByteArray DocumentListDialogC::saveState() const
{
    QByteArray state;
    if (!d->splitter)
        return state;
    QDataStream stream(&state, QIODevice::WriteOnly);
    stream << d->splitter->saveState() << d->tvDocuments->header()->saveState()
           << d->tvVarset->header()->saveState();
    return state;
}

void DocumentListDialogC::restoreState(const QByteArray &state)
{
    d->savedState = state;
}

void DocumentListDialogC::accept()
{
    const QModelIndexList selected =
        d->tvDocuments ? d->tvDocuments->selectionModel()->selectedIndexes() : QModelIndexList();
    if (!selected.isEmpty() && !d->table.isNull()) {
        d->xvarset = d->xvarsetOfRow(selected.first().row());
        if (d->xvarset != d->lineXVarset())
            d->varsetModified = true;
    }
    QDialog::accept();
}

void DocumentListDialogC::OnSelectionChanged()
{
    const bool isSelected = d->tvDocuments->selectionModel()->hasSelection();
    if (d->btnDelete)
        d->btnDelete->setEnabled(isSelected);
    if (d->btnEdit)
        d->btnEdit->setEnabled(isSelected);
    OnCurrentItemChanged();
}

void DocumentListDialogC::OnItemDoubleClicked(QTreeWidgetItem *item, int column)
{
    Q_UNUSED(column)
    if (item)
        accept();
}

void DocumentListDialogC::OnCurrentItemChanged()
{
    if (!d->tvVarset)
        return;
    d->tvVarset->clear();
    const QList<QTreeWidgetItem *> selected = d->tvDocuments->selectedItems();
    if (selected.size() != 1)
        return;
    d->showVarset(d->xvarsetOfRow(d->tvDocuments->indexOfTopLevelItem(selected.first())));
}
