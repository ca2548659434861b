#include "CatalogMappingWidgetPrivate.h"

#include "CatalogFilterModel.h"
#include "CatalogMappingNotifier.h"
#include "CatalogMappingWidget.h"
#include "CatalogStructureModel.h"

#include <mapping/data/CatalogMappingHandlerI.h>
#include <mapping/data/CatalogNodeType.h>
#include <mapping/project/MappingConflictWidget.h>
#include <mapping/project/ProjectMappingWidget.h>
#include <mapping/table/TableMappingWidget.h>

#include <core/config/PConfigService.h>
#include <core/text/PString.h>
#include <geomcore/records/sameTargetHead.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/views/EmptyViewLabel.h>

#include <QCheckBox>
#include <QItemSelection>
#include <QLabel>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTreeView>

#include <utility>

namespace {

bool configuredVerifyAllOnDir()
{
    const PRefPtr<PConfig> config = PConfigService::getConfig(0, QStringLiteral("pproject"));
    return config &&
           config
               ->getItemValue(QStringLiteral("AllowVerifyAllOnDir"),
                              QStringLiteral("CatalogMappingWidget"), QStringLiteral("false"))
               .GetBool();
}

CatalogMappingWidgetPrivate::Node nodeAt(const QModelIndex &index)
{
    return CatalogStructureModel::nodeFrom(index.data(CatalogStructureModel::StructureNodeRole));
}

bool isProject(const CatalogMappingWidgetPrivate::Node &node)
{
    return node->getNodeType() == CatalogNodeType::Project;
}

} // namespace

CatalogMappingWidgetPrivate::CatalogMappingWidgetPrivate(const QString &path,
                                                         CatalogMappingHandlerI *mappingHandler,
                                                         ApplicationHandlerI *application,
                                                         CatalogMappingWidget *owner)
    : QObject(owner)
    , PPrivateData(owner)
    , handler(mappingHandler)
    , basePath(path)
    , applicationHandler(application)
    , allowVerifyAllOnDir(configuredVerifyAllOnDir())
    , notifier(new CatalogMappingNotifier(this))
{
    setObjectName(QStringLiteral("CatalogMappingWidgetPrivate"));
}

CatalogMappingWidgetPrivate::~CatalogMappingWidgetPrivate() = default;

void CatalogMappingWidgetPrivate::setEditorsEnabled(bool enabled)
{
    conflictWidget->setEnabled(enabled);
    projectWidget->setEnabled(enabled);
    tableWidget->setEnabled(enabled);
}

PPathName CatalogMappingWidgetPrivate::projectFile(const QString &sourcePath) const
{
    QString relative = sourcePath;
    for (int pass = 0; pass < options; ++pass) {
        const qsizetype slash = relative.indexOf(u'/');
        if (slash < 0)
            break;
        relative.remove(0, slash + 1);
    }
    return basePath + PPathName(relative);
}

void CatalogMappingWidgetPrivate::openNode(const Node &node)
{
    const QPointer<CatalogMappingWidgetPrivate> alive(this);
    shownNode = node;
    setEditorsEnabled(isProject(node));
    const bool loaded = isProject(node) && loadProject(node);
    // Messages of missing targets let anything happen meanwhile.
    if (!alive || shownNode != node)
        return;
    if (!loaded)
        setEditorsEnabled(false);
    Q_EMIT notifier->currentProjectChanged();
}

bool CatalogMappingWidgetPrivate::loadProject(const Node &node)
{
    const QString path = node->getPath();
    if (path.isEmpty())
        return false;
    VKTab::ContentRef content;
    if (!VKTab::readProjectTable(projectFile(path).native(), content, {.catalogPath = path}))
        return false;
    const CatalogMappingC catalog = handler->getCatalogMapping();
    const PrjMappingC mapping = node->getMapping();
    tableWidget->loadSourceTable(content, mapping, catalog);
    const QPointer<CatalogMappingWidgetPrivate> alive(this);
    projectWidget->loadSourceProject(mapping, content, catalog);
    if (!alive || shownNode != node)
        return false;
    conflictWidget->loadSourceProject(mapping, content);
    return true;
}

EditorPlace CatalogMappingWidgetPrivate::place() const
{
    return {treeView, checkToCheck, tableWidget};
}

/// The tree forgets a project while a filter hides it.
void CatalogMappingWidgetPrivate::revealShown()
{
    const QScopedValueRollback revealing(isRevealing, true);
    const PrjMappingC mapping = shownNode->getMapping();
    (void)place().revealProject(mapping.getSourcePath(), mapping.getSourceVersion());
}

void CatalogMappingWidgetPrivate::onFilterApplied()
{
    if (!std::exchange(revealsFiltered, false) || !shownNode)
        return;
    const PrjMappingC shown = shownNode->getMapping();
    if (shown.isValid() && (!filterModel->hostFilter || filterModel->hostFilter(shown)))
        revealShown();
}

void CatalogMappingWidgetPrivate::reloadProject()
{
    const int line = place().currentLine();
    VkTableView *const view = tableWidget->sourceView();
    const int scroll = view->getVerticalScrollPos();
    const QPointer<CatalogMappingWidgetPrivate> alive(this);
    openNode(Node(shownNode));
    if (!alive)
        return;
    view->setVerticalScrollPos(scroll);
    if (line >= 0)
        place().selectLine(line);
}

bool CatalogMappingWidgetPrivate::shows(const PrjMappingC &mapping) const
{
    const PrjMappingC shown = projectWidget->mapping();
    return shownNode && isProject(shownNode) && shown.getSourcePath() == mapping.getSourcePath() &&
           shown.getSourceVersion() == mapping.getSourceVersion();
}

void CatalogMappingWidgetPrivate::showMapping(const PrjMappingC &mapping)
{
    if (shows(mapping) && sameTargetHeads(projectWidget->mapping(), mapping)) {
        projectWidget->onProjectMappingUpdated(mapping);
        tableWidget->onProjectMappingUpdated(mapping);
        conflictWidget->onMappingUpdated(mapping);
    } else if (shows(mapping)) {
        const QPointer<CatalogMappingWidgetPrivate> alive(this);
        reloadProject();
        if (!alive)
            return;
    }
    showRelease();
}

void CatalogMappingWidgetPrivate::onTreeSelectionChanged(const QItemSelection &selected,
                                                         const QItemSelection & /*deselected*/)
{
    const QModelIndexList indexes = selected.indexes();
    if (isRevealing || indexes.size() != 1)
        return;
    if (const Node node = nodeAt(indexes.first()))
        openNode(node);
}

void CatalogMappingWidgetPrivate::onProjectMappingUpdated(const PrjMappingC &prjMapping)
{
    handler->updateMapping(prjMapping);
    showRelease();
}

void CatalogMappingWidgetPrivate::showRelease()
{
    conflictWidget->setCatalogMapping(handler->getCatalogMapping());
    writeStatistics();
    model->invalidateNodes();
    repaintViews();
}

void CatalogMappingWidgetPrivate::repaintViews()
{
    tableWidget->update();
    // Updating a view repaints its frame; the items are its viewport's.
    for (const VkTableView *const table : {tableWidget->sourceView(), tableWidget->targetView()})
        table->grid()->viewport()->update();
    treeView->update();
    treeView->viewport()->update();
}

void CatalogMappingWidgetPrivate::writeStatistics()
{
    const int lines = handler->countLines();
    const int mapped = handler->countMapped();
    const int notFound = handler->countNotFound();
    const int toCheck = handler->countToCheck();
    const int verified = handler->countVerified();
    const auto insertCounts = [&](const QString &text) {
        return text.arg(lines).arg(mapped).arg(notFound).arg(toCheck).arg(verified);
    };
    statisticsLabel->setText(insertCounts(PString::translate("Übersicht", "VelkLinkDbGui") +
                                          QStringLiteral(" : ") +
                                          QStringLiteral("%1 / %2 / %3 / %4 / %5")));
    statisticsLabel->setToolTip(insertCounts(
        PString::translate("Gesamtanzahl Zeilen", "VelkLinkDbGui") + QStringLiteral(" : %1\n") +
        PString::translate("Automatisch zugeordnete Zeilen", "VelkLinkDbGui") +
        QStringLiteral(" : %2\n") + PString::translate("Nicht gefundene Zeilen", "VelkLinkDbGui") +
        QStringLiteral(" : %3\n") +
        PString::translate("Zu überprüfende Zuordnungen", "VelkLinkDbGui") +
        QStringLiteral(" : %4\n") + PString::translate("Bestätigte Zuordnungen", "VelkLinkDbGui") +
        QStringLiteral(" : %5")));
}

void CatalogMappingWidgetPrivate::applyFilter(bool target, bool noTarget)
{
    filterModel->filterToCheck = checkToCheck->isChecked();
    filterModel->filterTarget = target;
    filterModel->filterNoTarget = noTarget;
    filterModel->invalidate();
}

void CatalogMappingWidgetPrivate::onFilterToCheckChanged(int state)
{
    const bool on = state == Qt::Checked;
    filterModel->filterToCheck = on;
    filterModel->filterTarget = checkTarget->isChecked();
    filterModel->filterNoTarget = checkNoTarget->isChecked();
    checkTarget->setEnabled(on);
    checkNoTarget->setEnabled(on);
    tellFilters();
    filterModel->invalidate();
}

void CatalogMappingWidgetPrivate::tellFilters()
{
    QStringList texts;
    if (!hostFilterText.isEmpty())
        texts += hostFilterText;
    if (checkToCheck->isChecked())
        texts += PString::translate("Kein Projekt passt zur Auswahl unter dem Baum.\n„%1“ "
                                    "ausschalten, um wieder alle Projekte zu sehen.",
                                    "VelkLinkDbGui")
                     .arg(checkToCheck->text());
    emptyTree->tell(texts.join(QStringLiteral("\n\n")));
}

void CatalogMappingWidgetPrivate::onFilterTargetChanged(int state)
{
    if (state == Qt::Checked)
        checkNoTarget->setChecked(false);
    applyFilter(state == Qt::Checked, checkNoTarget->isChecked());
}

void CatalogMappingWidgetPrivate::onFilterNoTargetChanged(int state)
{
    if (state == Qt::Checked)
        checkTarget->setChecked(false);
    applyFilter(checkTarget->isChecked(), state == Qt::Checked);
}

void CatalogMappingWidgetPrivate::onTreeContextMenuRequested(const QPoint &pos)
{
    const QPersistentModelIndex index = treeView->indexAt(pos);
    if (!index.isValid())
        return;
    const Node node = nodeAt(index);
    if (!node)
        return;
    const int type = node->getNodeType();
    const bool isAboveProjects =
        type == CatalogNodeType::Root || type == CatalogNodeType::Directory;
    if (isAboveProjects && !allowVerifyAllOnDir)
        return;
    const QPointer<CatalogMappingWidgetPrivate> alive(this);
    QMenu menu;
    const QAction *const verify =
        menu.addAction(PString::translate("Alle Zuordnungen bestätigen", "VelkLinkDbGui"));
    if (menu.exec(treeView->viewport()->mapToGlobal(pos)) != verify || !alive)
        return;
    if (type == CatalogNodeType::Project)
        verifyProject(node);
    else
        verifyBelow(node);
    for (QModelIndex above = index; above.isValid(); above = above.parent())
        if (const Node changed = nodeAt(above))
            changed->invalidateState();
    treeView->viewport()->update();
}

void CatalogMappingWidgetPrivate::verifyProject(const Node &node)
{
    PrjMappingC mapping = node->getMapping();
    if (!mapping.isValid())
        return;
    mapping.verifyAll();
    handler->updateMapping(mapping);
    node->invalidateState();
    if (tableWidget->sourcePath() == mapping.getSourcePath())
        tableWidget->onProjectMappingUpdated(mapping);
    if (projectWidget->sourcePath() == mapping.getSourcePath())
        projectWidget->onProjectMappingUpdated(mapping);
}

void CatalogMappingWidgetPrivate::verifyBelow(const Node &node)
{
    const QList<Node> children = node->getChildren();
    for (const Node &child : children) {
        if (isProject(child))
            verifyProject(child);
        else
            verifyBelow(child);
    }
    node->invalidateState();
}
