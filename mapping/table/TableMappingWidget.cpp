#include "TableMappingWidget.h"

#include "ComparedTables.h"
#include "TableMappingWidgetPrivate.h"

#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QCheckBox>

TableMappingWidget::TableMappingWidget(QWidget *parent)
    : PrjMappingWidgetBase(parent)
    , d(new TableMappingWidgetPrivate(this))
{
}

TableMappingWidget::~TableMappingWidget()
{
    delete d;
}

void TableMappingWidget::setProjectMappingWidget(ProjectMappingWidget *widget)
{
    d->projectWidget = widget;
}

void TableMappingWidget::setRemoteViewerMode(bool remote)
{
    d->remoteViewerMode = remote;
}

void TableMappingWidget::loadSourceTable(const VKTab::ContentRef &table, const PrjMappingC &mapping,
                                         const CatalogMappingC &catalog)
{
    d->loadSourceTable(table, mapping, catalog);
}

VKTab::LineId TableMappingWidget::selectedSourceLine() const
{
    return d->sourceTable.isValid() ? d->sourceTable.getSelection() : VKTab::LineId();
}

void TableMappingWidget::focusLines()
{
    d->sourceView->grid()->setFocus(Qt::OtherFocusReason);
}

QList<int> TableMappingWidget::selectedSourceLines() const
{
    QList<int> lines;
    if (!d->sourceTable.isValid())
        return lines;
    const auto ids = d->sourceView->getSelectedLines();
    for (const VKTab::LineId &id : ids)
        lines << id.value(0);
    return lines;
}

QString TableMappingWidget::sourcePath() const
{
    return d->mapping.getSourcePath();
}

VkTableView *TableMappingWidget::sourceView() const
{
    return d->sourceView;
}

VkTableView *TableMappingWidget::targetView() const
{
    return d->targetView;
}

void TableMappingWidget::showAllLines()
{
    d->chkFilterSource->setChecked(false);
    d->onChkFilterNotMappedLines(Qt::Unchecked);
}

void TableMappingWidget::showOnlyLines(const std::vector<int> &lines, const QString &ifNone)
{
    d->chkFilterSource->setChecked(false);
    d->sourceView->setEmptyText(ifNone);
    TableLineFilters::showOnly(d->sourceTable, lines);
}

void TableMappingWidget::setComparing(bool on)
{
    d->compared->setOn(on);
    d->showSourceLine(d->sourceTable.getSelection());
}

void TableMappingWidget::setLineRemarks(
    const std::function<QString(const PrjMappingC &mapping, int line)> &remarks)
{
    VkTableModel::LineRemarks ofLines;
    if (remarks)
        ofLines = [this, remarks](const VKTab::LineId &line) {
            return remarks(d->mapping, line.value(0));
        };
    d->sourceView->model()->setLineRemarks(ofLines);
}

void TableMappingWidget::setConditionListener(
    const std::function<void(const QString &condition)> &listener)
{
    d->conditionListener = listener;
}

void TableMappingWidget::onProjectMappingUpdated(const PrjMappingC &mapping)
{
    d->mapping = mapping;
    d->updateLineStatus();
    d->showSourceLine(d->sourceTable.getSelection());
    update();
}

void TableMappingWidget::onTargetLineConflict(const QString &toolTipMessage, int lineId)
{
    d->conflictToolTips.insert(lineId, toolTipMessage);
}

void TableMappingWidget::onRemapLinesClicked()
{
    d->remapLines();
}
