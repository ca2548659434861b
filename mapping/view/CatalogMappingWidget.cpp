#include "CatalogMappingWidget.h"

#include "CatalogMappingWidgetPrivate.h"

#include <mapping/data/ApplicationHandlerI.h>
#include <mapping/data/CatalogMappingHandlerI.h>
#include <mapping/data/targetPath.h>
#include <mapping/project/MappingConflictWidget.h>
#include <mapping/project/ProjectMappingWidget.h>
#include <mapping/table/TableMappingWidget.h>

#include <QLabel>
#include <QTreeView>

CatalogMappingWidget::CatalogMappingWidget(const QString &basePath, CatalogMappingHandlerI *handler,
                                           ApplicationHandlerI *applicationHandler,
                                           QWidget * /*parent*/)
    : QWidget(nullptr)
    , d(new CatalogMappingWidgetPrivate(basePath, handler, applicationHandler, this))
{
    d->buildLayout();
    d->makeConnections();
}

CatalogMappingWidget::~CatalogMappingWidget()
{
    delete d->handler;
    delete d->applicationHandler;
    delete d;
}

void CatalogMappingWidget::hideTree()
{
    d->treeView->setVisible(false);
    if (const boost::shared_ptr<CatalogStructureNodeI> root = d->handler->getRootStructureNode())
        d->openNode(root);
}

void CatalogMappingWidget::hideStatistics()
{
    d->statisticsLabel->setVisible(false);
}

void CatalogMappingWidget::setOptions(int count)
{
    d->options = count;
}

void CatalogMappingWidget::setConflictedLocalChanges(const MappingChangeMap &changes)
{
    d->conflictWidget->setConflictedLocalChanges(changes);
}

void CatalogMappingWidget::setConflictedOnlineChanges(const MappingChangeMap &changes)
{
    d->conflictWidget->setConflictedOnlineChanges(changes);
}

bool CatalogMappingWidget::hasConflicts() const
{
    return d->conflictWidget->hasConflicts();
}

void CatalogMappingWidget::setRemoteViewerMode(bool remote)
{
    d->tableWidget->setRemoteViewerMode(remote);
    d->projectWidget->setRemoteViewerMode(remote);
}

QString CatalogMappingWidget::buildTargetPath(bool local, const QString &path)
{
    return targetPath(local, path);
}
