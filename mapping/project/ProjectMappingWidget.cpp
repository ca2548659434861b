#include "ProjectMappingWidget.h"

#include "ProjectMappingWidgetPrivate.h"
#include "TargetMappingWidget.h"

#include <QPushButton>

ProjectMappingWidget::ProjectMappingWidget(QWidget *parent)
    : PrjMappingWidgetBase(parent)
    , d(new ProjectMappingWidgetPrivate(this))
{
    d->buildLayout();
}

ProjectMappingWidget::~ProjectMappingWidget()
{
    // The panels point into the private data.
    d->clearTargets();
    delete d;
}

void ProjectMappingWidget::loadSourceProject(const PrjMappingC &mapping,
                                             const VKTab::ContentRef &content,
                                             const CatalogMappingC &catalog)
{
    d->content = content;
    d->clearTargets();
    d->params.projectMapping = mapping;
    d->params.catalogMapping = catalog;
    d->showTargets();
}

QString ProjectMappingWidget::sourcePath() const
{
    return d->params.projectMapping.getSourcePath();
}

PrjMappingC ProjectMappingWidget::mapping() const
{
    return d->params.projectMapping;
}

QStringList ProjectMappingWidget::collectConditionVariables() const
{
    return d->collectConditionVariables();
}

void ProjectMappingWidget::setAssignEnabled(bool enabled)
{
    d->params.assignEnabled = enabled;
    for (const TargetMappingWidget *const widget : std::as_const(d->targetWidgets))
        widget->assignButton->setEnabled(enabled);
}

void ProjectMappingWidget::setApplicationHandler(ApplicationHandlerI *application)
{
    d->params.application = application;
}

void ProjectMappingWidget::setTableColumn(TableMappingWidget *widget,
                                          const std::function<VKTab::LineId()> &selectedLine,
                                          const std::function<QList<int>()> &selectedLines,
                                          const std::function<void()> &focusLines)
{
    d->params.tableMappingWidget = widget;
    d->params.selectedSourceLine = selectedLine;
    d->params.selectedSourceLines = selectedLines;
    d->params.focusSourceLines = focusLines;
}

void ProjectMappingWidget::setRemoteViewerMode(bool remote)
{
    d->remoteViewerMode = remote;
}

void ProjectMappingWidget::onProjectMappingUpdated(const PrjMappingC &mapping)
{
    d->params.projectMapping = mapping;
}
