// The part of CatalogMappingWidget that hosts use beside showing it.
#include "CatalogFilterModel.h"
#include "CatalogMappingNotifier.h"
#include "CatalogMappingWidget.h"
#include "CatalogMappingWidgetPrivate.h"
#include "CatalogStructureModel.h"
#include "PaneSizes.h"
#include "TreePath.h"

#include <mapping/data/CatalogStructureNodeI.h>
#include <mapping/project/ProjectMappingWidget.h>
#include <mapping/table/TableMappingWidget.h>

#include <geomcore/table/TabOptions.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QApplication>
#include <QCheckBox>
#include <QTreeView>

QObject *CatalogMappingWidget::notifier() const
{
    return d->notifier;
}

PrjMappingC CatalogMappingWidget::currentProject() const
{
    return d->shownNode ? d->shownNode->getMapping() : PrjMappingC();
}

bool CatalogMappingWidget::selectProject(const QString &sourcePath, const QString &sourceVersion)
{
    return d->place().selectProject(sourcePath, sourceVersion);
}

VKTab::ContentRef CatalogMappingWidget::sourceTable() const
{
    return d->place().sourceTable();
}

QList<int> CatalogMappingWidget::selectedLines() const
{
    return d->place().selectedLines();
}

int CatalogMappingWidget::currentLine() const
{
    return d->place().currentLine();
}

bool CatalogMappingWidget::selectLine(int line)
{
    return d->place().selectLine(line);
}

void CatalogMappingWidget::focusLines()
{
    if (d->tableWidget->sourceView()->isEnabled())
        d->tableWidget->focusLines();
    else
        d->treeView->setFocus(Qt::OtherFocusReason); // no project is open
}

void CatalogMappingWidget::focusOtherTable()
{
    const VkTableView *const source = d->tableWidget->sourceView();
    const VkTableView *const target = d->tableWidget->targetView();
    const QWidget *const focus = QApplication::focusWidget();
    QAbstractItemView *const grid = source->isAncestorOf(focus) ? target->grid() : source->grid();
    grid->setFocus(Qt::OtherFocusReason);
    if (!grid->currentIndex().isValid())
        grid->selectionModel()->setCurrentIndex(grid->model()->index(0, 0),
                                                QItemSelectionModel::NoUpdate);
}

const VkTableView *CatalogMappingWidget::tableInSight() const
{
    const VkTableView *const target = d->tableWidget->targetView();
    const VkTableView *const table =
        target->isAncestorOf(QApplication::focusWidget()) ? target : d->tableWidget->sourceView();
    return table->getTable().isValid() ? table : nullptr;
}

int CatalogMappingWidget::shownLineCount() const
{
    return sourceTable().isValid() ? d->tableWidget->sourceView()->model()->rowCount() : 0;
}

int CatalogMappingWidget::shownLine(int row) const
{
    const VKTab::LineId line = d->tableWidget->sourceView()->model()->lineId(row);
    return line.isValid() ? line.value(0) : -1;
}

int CatalogMappingWidget::rowOfLine(int line) const
{
    return d->tableWidget->sourceView()->model()->rowOf(VKTab::LineId(line));
}

bool CatalogMappingWidget::linesAreFiltered() const
{
    const VKTab::ContentRef table = sourceTable();
    return table.isValid() && shownLineCount() < table.getLineCount();
}

QStringList CatalogMappingWidget::columnFilters() const
{
    const VkTableModel *const model = d->tableWidget->sourceView()->model();
    QStringList filters;
    for (int column = 0; column < model->columnCount(); ++column) {
        const VKTab::Var variable = model->variable(column);
        const QString text =
            variable.isValid() ? model->quickFilter(variable.getVarId()) : QString();
        if (!text.isEmpty())
            filters += QStringLiteral("%1: %2").arg(variable.getName(), text);
    }
    return filters;
}

void CatalogMappingWidget::showMapping(const PrjMappingC &mapping)
{
    d->showMapping(mapping);
}

void CatalogMappingWidget::setOnlyOpenProjects(bool on)
{
    d->checkToCheck->setChecked(on);
}

bool CatalogMappingWidget::onlyOpenProjects() const
{
    return d->checkToCheck->isChecked();
}

void CatalogMappingWidget::setProjectFilter(
    const std::function<bool(const PrjMappingC &mapping)> &accepts, const QString &ifNone)
{
    d->hostFilterText = accepts ? ifNone : QString();
    d->tellFilters();
    d->filterModel->hostFilter = accepts;
    d->revealsFiltered = true;
    d->filterModel->invalidate();
}

void CatalogMappingWidget::showOnlyLines(const std::vector<int> &lines, const QString &ifNone)
{
    if (sourceTable().isValid())
        d->tableWidget->showOnlyLines(lines, ifNone);
}

void CatalogMappingWidget::setComparing(bool on)
{
    d->tableWidget->setComparing(on);
}

void CatalogMappingWidget::setLineRemarks(
    const std::function<QString(const PrjMappingC &mapping, int line)> &remarks)
{
    d->tableWidget->setLineRemarks(remarks);
}

void CatalogMappingWidget::showAllLines()
{
    if (sourceTable().isValid())
        d->tableWidget->showAllLines();
}

void CatalogMappingWidget::setOnlyPreferredRanges(bool on)
{
    QList<VKTab::ContentRef> changed; // both may share their options
    for (const VkTableView *const view :
         {d->tableWidget->sourceView(), d->tableWidget->targetView()}) {
        const VKTab::ContentRef table = view->getTable();
        if (table.isValid() && table.getOptions() &&
            table.getOptions()->getShowOnlyPrefRanges() != on)
            changed.append(table);
    }
    for (VKTab::ContentRef &table : changed) {
        table.getOptions()->setShowOnlyPrefRanges(on);
        table.invalidate(VKTab::Content::InvalidateValues, true);
    }
}

QStringList CatalogMappingWidget::expandedDirectories() const
{
    return TreePath::expanded(*d->treeView);
}

void CatalogMappingWidget::expandDirectories(const QStringList &paths)
{
    TreePath::expand(*d->treeView, paths);
    const QAbstractItemModel *const tree = d->treeView->model();
    if (tree->rowCount() == 1)
        d->treeView->expand(tree->index(0, 0));
}

QByteArray CatalogMappingWidget::saveState() const
{
    return PaneSizes::save(*this);
}

bool CatalogMappingWidget::restoreState(const QByteArray &state)
{
    if (PaneSizes::restore(*this, state))
        return true;
    PaneSizes::setStandard(*this);
    return false;
}

QWidget *CatalogMappingWidget::pane(Pane which) const
{
    QWidget *pane = nullptr;
    switch (which) {
    case Pane::Tree:
        pane = d->treeView;
        break;
    case Pane::Targets:
        pane = d->projectWidget;
        break;
    case Pane::Lines:
        pane = d->tableWidget;
        break;
    }
    return pane && !pane->isHidden() ? pane : nullptr;
}

QAbstractItemModel *CatalogMappingWidget::treeModel() const
{
    return d->model;
}
