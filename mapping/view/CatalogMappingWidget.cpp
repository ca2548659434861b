#include "CatalogMappingWidget.h"

#include "CatalogMappingWidgetPrivate.h"

#include <mapping/data/ApplicationHandlerI.h>
#include <mapping/data/CatalogMappingHandlerI.h>
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

QString CatalogMappingWidget::buildTargetPath(bool local, const QString &targetPath)
{
    if (targetPath.isEmpty())
        return QString();
    if (local)
        return QStringLiteral("$TORMEVA_DATA/23d-libs") +
               (targetPath.startsWith(u'/') ? QString() : QStringLiteral("/")) + targetPath;
    const qsizetype slash = targetPath.indexOf(u'/');
    if (slash < 0)
        return QString();
    return QStringLiteral("svn://%1/trunk/catalog").arg(targetPath.left(slash)) +
           targetPath.mid(slash);
}
