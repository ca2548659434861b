#include "ProjectMappingWidgetPrivate.h"

#include "chooseTargetProject.h"
#include "ProjectMappingWidget.h"
#include "readProjectVersions.h"
#include "remapProjectLines.h"
#include "TargetMappingWidget.h"

#include <mapping/data/targetPath.h>

#include <core/message/PMessage.h>
#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <geomcore/table/LineInfo.h>
#include <geomcore/table/LineView.h>

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

ProjectMappingWidgetPrivate::ProjectMappingWidgetPrivate(ProjectMappingWidget *owner)
    : PPrivateData(owner)
{
    setObjectName(QStringLiteral("ProjectMappingWidgetPrivate"));
}

void ProjectMappingWidgetPrivate::buildLayout()
{
    mainLayout = new QVBoxLayout(q);
    mainLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout = new QHBoxLayout;
    mainLayout->addLayout(buttonLayout);
    auto *const addButton =
        new QPushButton(QIcon(QStringLiteral(":/bitmaps/add.png")),
                        PString::translate("Zielprojekt hinzufügen", "VelkLinkDbGui"), q);
    addButton->setObjectName(QStringLiteral("addTargetButton"));
    auto *const remapButton =
        new QPushButton(QIcon(QStringLiteral(":/bitmaps/arrow_refresh.png")),
                        PString::translate("Zeilen erneut zuweisen", "VelkLinkDbGui"), q);
    remapButton->setObjectName(QStringLiteral("remapLinesButton"));
    buttonLayout->addWidget(addButton);
    buttonLayout->addSpacerItem(new QSpacerItem(20, 0, QSizePolicy::Minimum, QSizePolicy::Minimum));
    buttonLayout->addWidget(remapButton);
    buttonLayout->addSpacerItem(
        new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));

    auto *const scrollArea = new QScrollArea(q);
    scrollArea->setObjectName(QStringLiteral("targetsScrollArea"));
    scrollArea->setWidgetResizable(true);
    scrollArea->setFocusPolicy(Qt::NoFocus); // it follows the keys to what is in it
    targetsWidget = new QWidget(scrollArea);
    targetsWidget->setObjectName(QStringLiteral("targetsWidget"));
    targetsWidget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    targetsWidget->setLayout(new QVBoxLayout);
    scrollArea->setWidget(targetsWidget);
    mainLayout->addWidget(scrollArea);

    connect(addButton, SIGNAL(clicked()), this, SLOT(onAddTargetClicked()));
    connect(remapButton, SIGNAL(clicked()), q, SIGNAL(remapLinesClicked()));
}

void ProjectMappingWidgetPrivate::clearTargets()
{
    const QList<TargetMappingWidget *> panels = std::exchange(targetWidgets, {});
    for (TargetMappingWidget *const panel : panels)
        panel->discard();
}

void ProjectMappingWidgetPrivate::showTargets()
{
    const int load = ++m_load;
    const QList<PrjMappingTargetC> targets = params.projectMapping.getTargets();
    for (int index = 0; index < targets.size(); ++index) {
        const QString path = targets.at(index).getTargetPath();
        if (path.isEmpty())
            continue;
        if (!tellIfMissing(path) || load != m_load)
            return;
        TargetMappingWidget *const widget = makeTargetWidget(index, targetsWidget);
        targetsWidget->layout()->addWidget(widget);
        targetWidgets.append(widget);
    }
    updateMoveButtons();
}

bool ProjectMappingWidgetPrivate::tellIfMissing(const QString &path)
{
    if (PPathName(targetPath(!remoteViewerMode, path)).exists(false))
        return true;
    const QPointer<ProjectMappingWidgetPrivate> alive(this);
    PMessage::Show(
        PString::translate("Das Zielprojekt %1 existiert nicht mehr", "VelkLinkDbGui").arg(path));
    return !alive.isNull();
}

TargetMappingWidget *ProjectMappingWidgetPrivate::makeTargetWidget(int index, QWidget *parent)
{
    auto *const widget = new TargetMappingWidget(
        index, content,
        [this](const PrjMappingTargetC &target, int targetIndex,
               ProjectTargetNotificationType type) { onTargetModified(target, targetIndex, type); },
        &params, remoteViewerMode, parent);
    widget->assignButton->setEnabled(params.assignEnabled);
    return widget;
}

TargetMappingWidget *ProjectMappingWidgetPrivate::widgetAt(int index) const
{
    for (TargetMappingWidget *const widget : targetWidgets)
        if (widget->index == index)
            return widget;
    return nullptr;
}

void ProjectMappingWidgetPrivate::updateMoveButtons()
{
    for (TargetMappingWidget *const widget : std::as_const(targetWidgets))
        widget->updateMoveButtons();
}

QStringList ProjectMappingWidgetPrivate::collectConditionVariables() const
{
    QStringList names;
    for (const TargetMappingWidget *const widget : targetWidgets)
        for (const QString &name : widget->conditionVariables)
            if (!names.contains(name))
                names.append(name);
    return names;
}

void ProjectMappingWidgetPrivate::relayoutTargets()
{
    auto *const layout = static_cast<QVBoxLayout *>(targetsWidget->layout());
    for (TargetMappingWidget *const widget : std::as_const(targetWidgets))
        layout->removeWidget(widget);
    const int count = params.projectMapping.countTargets();
    for (int index = 0; index < count; ++index)
        if (TargetMappingWidget *const widget = widgetAt(index))
            layout->addWidget(widget);
}

void ProjectMappingWidgetPrivate::onAddTargetClicked()
{
    const QPointer<ProjectMappingWidgetPrivate> alive(this);
    const int load = m_load;
    const QString path = chooseTargetProject(q, params.projectMapping.getSourcePath());
    if (alive && load == m_load && !path.isEmpty())
        addTarget(path);
}

int ProjectMappingWidgetPrivate::insertIndex(const QString &path) const
{
    const QList<PrjMappingTargetC> targets = params.projectMapping.getTargets();
    for (qsizetype index = targets.size() - 1; index >= 0; --index)
        if (targets.at(index).getTargetPath() == path)
            return int(index);
    const bool notFoundLast = !targets.isEmpty() && targets.last().getTargetPath().isEmpty();
    return int(targets.size()) - (notFoundLast ? 1 : 0);
}

void ProjectMappingWidgetPrivate::addTarget(const QString &path)
{
    PrjMappingTargetC target;
    target.setTargetPath(path);
    const QPair<QString, QString> versions = readProjectVersions(path);
    target.setTargetVersion(versions.first);
    target.setTabVersion(versions.second);
    target.setValid(true);
    const int notFound = params.projectMapping.getNotFoundTarget();
    int index = params.projectMapping.insertTarget(insertIndex(path), target);
    if (!params.catalogMapping.getReleases().isEmpty()) {
        const int removed = remapLines(collectConditionVariables(), false);
        // The panels have yet to learn of the new target.
        if (removed >= 0)
            closeGap(notFound);
        if (removed >= 0 && removed < index)
            --index;
        target = params.projectMapping.findTarget(index);
    }
    onTargetModified(target, index, TargetInserted);
}

int ProjectMappingWidgetPrivate::remapLines(const QStringList &conditionVariables, bool force)
{
    const int notFound = params.projectMapping.getNotFoundTarget();
    const int targets = params.projectMapping.countTargets();
    const QList<ReleaseMappingC> releases = params.catalogMapping.getReleases();
    remapProjectLines(params.projectMapping.getSourcePath(), params.projectMapping, content,
                      releases.isEmpty() ? ReleaseMappingC() : releases.first(), conditionVariables,
                      force);
    return params.projectMapping.countTargets() < targets ? notFound : -1;
}

void ProjectMappingWidgetPrivate::closeGap(int removed)
{
    for (TargetMappingWidget *const widget : std::as_const(targetWidgets)) {
        if (removed < 0 || widget->index <= removed)
            continue;
        --widget->index;
        widget->updateMoveButtons();
    }
}

QStringList ProjectMappingWidgetPrivate::conditionVariablesAt(int position) const
{
    if (position < 0 || position >= targetWidgets.size())
        return {};
    return targetWidgets.at(position)->conditionVariables;
}

void ProjectMappingWidgetPrivate::announce()
{
    Q_EMIT q->projectMappingUpdated(params.projectMapping);
}

void ProjectMappingWidgetPrivate::onTargetModified(const PrjMappingTargetC &target, int index,
                                                   ProjectTargetNotificationType type)
{
    switch (type) {
    case TargetModified:
        params.projectMapping.updateTarget(index, target);
        announce();
        break;
    case TargetLinesChanged:
        params.projectMapping.updateTarget(index, target);
        closeGap(remapLines(conditionVariablesAt(index), false));
        announce();
        break;
    case TargetInserted:
        insertTarget(index);
        break;
    case TargetRemoved:
        removeTarget(target, index);
        break;
    case TargetMovedUp:
        moveTarget(index, index - 1);
        break;
    case TargetMovedDown:
        moveTarget(index, index + 1);
        break;
    }
}

void ProjectMappingWidgetPrivate::insertTarget(int index)
{
    TargetMappingWidget *const inserted = makeTargetWidget(index, q);
    for (TargetMappingWidget *const widget : std::as_const(targetWidgets)) {
        if (widget->index < index)
            continue;
        ++widget->index;
        widget->updateMoveButtons();
    }
    auto *const layout = static_cast<QVBoxLayout *>(targetsWidget->layout());
    layout->insertWidget(qMin(index, layout->count()), inserted, 0);
    targetWidgets.insert(qMin(qsizetype(index), targetWidgets.size()), inserted);
    updateMoveButtons();
    announce();
}

void ProjectMappingWidgetPrivate::removeTarget(const PrjMappingTargetC &target, int index)
{
    for (const LineTable::Iterator &line : target.lines())
        if (line.conflict())
            Q_EMIT q->targetLineConflictAccepted(line.sourceLine());
    const bool removed = removeTargetWidget(index);
    updateMoveButtons();
    keepLostLines();
    if (removed)
        announce();
}

bool ProjectMappingWidgetPrivate::removeTargetWidget(int index)
{
    bool removed = false;
    for (qsizetype position = targetWidgets.size() - 1; position >= 0; --position) {
        TargetMappingWidget *const widget = targetWidgets.at(position);
        if (widget->index == index) {
            // One of its slots is running, so it goes only later.
            targetWidgets.removeAt(position);
            targetsWidget->layout()->removeWidget(widget);
            widget->hide();
            widget->setParent(nullptr);
            widget->deleteLater();
            params.projectMapping.removeTarget(index);
            removed = true;
        } else if (widget->index > index) {
            --widget->index;
            widget->updateMoveButtons();
        }
    }
    return removed;
}

void ProjectMappingWidgetPrivate::keepLostLines()
{
    PrjMappingC &mapping = params.projectMapping;
    const int notFound = mapping.ensureNotFoundTarget();
    PrjMappingTargetC target = mapping.findTarget(notFound);
    for (const VKTab::LineInfo &info : content.getLineInfoList()) {
        const VKTab::LineId id = info.getLineId();
        if (!id.isValid())
            continue;
        if (!mapping.findLine(id.value(0), VKTab::LineView(content, id)).isValid())
            target.addLineId(id.value(0), -1, PRJMAPPING::ToCheck, QString());
    }
    mapping.updateTarget(notFound, target);
    mapping.updateMappingState();
}

void ProjectMappingWidgetPrivate::moveTarget(int index, int neighbour)
{
    TargetMappingWidget *const moved = widgetAt(index);
    TargetMappingWidget *const other = widgetAt(neighbour);
    if (!moved || !other)
        return;
    std::swap(moved->index, other->index);
    moved->updateMoveButtons();
    other->updateMoveButtons();
    if (!params.catalogMapping.getReleases().isEmpty())
        closeGap(remapLines(conditionVariablesAt(index), true));
    announce();
    relayoutTargets();
}
