#include "MappingConflictWidget.h"

#include "MappingConflictWidgetPrivate.h"

MappingConflictWidget::MappingConflictWidget(QWidget *parent)
    : QWidget(parent)
    , d(new MappingConflictWidgetPrivate(this))
{
    d->buildLayout();
}

MappingConflictWidget::~MappingConflictWidget()
{
    delete d;
}

void MappingConflictWidget::setConflictedLocalChanges(const MappingChangeMap &changes)
{
    d->localChanges = changes;
    d->markLocalConflicts();
}

void MappingConflictWidget::setConflictedOnlineChanges(const MappingChangeMap &changes)
{
    d->onlineChanges = changes;
    d->markLocalConflicts();
}

void MappingConflictWidget::setCatalogMapping(const CatalogMappingC &catalog)
{
    d->catalogMapping = catalog;
}

void MappingConflictWidget::loadSourceProject(const PrjMappingC &mapping,
                                              const VKTab::ContentRef &content)
{
    d->mapping = mapping;
    d->content = content;
    d->updateConflictText(mapping);
}

bool MappingConflictWidget::hasConflicts() const
{
    const ReleaseMappingC &release = d->catalogMapping.lastRelease();
    const int count = release.countMappings();
    for (int position = 0; position < count; ++position)
        if (release.mappingAt(position).getContainsConflicts())
            return true;
    return false;
}

void MappingConflictWidget::onMappingUpdated(const PrjMappingC &mapping)
{
    d->mapping = mapping;
}

void MappingConflictWidget::onTargetLineConflictAccepted(int lineId)
{
    d->acceptLine(lineId);
}
