#pragma once

#include "ProjectTargetNotificationType.h"
#include "TargetMappingParamSet.h"

#include <core/text/PPrivateData.h>
#include <geomcore/records/PrjMappingTargetC.h>
#include <geomcore/table/ContentRef.h>

#include <QList>
#include <QObject>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QVBoxLayout;
class QWidget;
QT_END_NAMESPACE

class ProjectMappingWidget;
class TargetMappingWidget;

class ProjectMappingWidgetPrivate : public QObject, public PPrivateData<ProjectMappingWidget>
{
    Q_OBJECT

public:
    explicit ProjectMappingWidgetPrivate(ProjectMappingWidget *owner);

    void buildLayout();
    void showTargets();
    void clearTargets();
    [[nodiscard]] TargetMappingWidget *makeTargetWidget(int index, QWidget *parent);
    /// Null if no panel has the index.
    [[nodiscard]] TargetMappingWidget *widgetAt(int index) const;
    void updateMoveButtons();

    /// Adds a target for a project before the not-found target.
    void addTarget(const QString &path);
    /// Takes what a target widget tells.
    void onTargetModified(const PrjMappingTargetC &target, int index,
                          ProjectTargetNotificationType type);
    /// Of all targets, each name once, in the order of the list of panels.
    [[nodiscard]] QStringList collectConditionVariables() const;
    /// Brings the panels into the order of their indexes.
    void relayoutTargets();

    VKTab::ContentRef content;
    QWidget *targetsWidget = nullptr;
    /// In the order of creation, not of indexes.
    QList<TargetMappingWidget *> targetWidgets;
    TargetMappingParamSet params;
    QVBoxLayout *mainLayout = nullptr;
    QHBoxLayout *buttonLayout = nullptr;
    bool remoteViewerMode = false;

public Q_SLOTS:
    void onAddTargetClicked();

private:
    [[nodiscard]] int insertIndex(const QString &path) const;
    /// False if this went while the message was open.
    [[nodiscard]] bool tellIfMissing(const QString &path);
    /// With the dates of the first release, or none without a release. Gives the index that the
    /// not-found target had if it was emptied and is gone, else -1.
    [[nodiscard]] int remapLines(const QStringList &conditionVariables, bool force);
    /// Brings the panels' indexes in line after the target with the index, if it is one, went.
    void closeGap(int removed);
    [[nodiscard]] QStringList conditionVariablesAt(int position) const;
    void announce();
    void insertTarget(int index);
    void removeTarget(const PrjMappingTargetC &target, int index);
    bool removeTargetWidget(int index);
    void keepLostLines();
    void moveTarget(int index, int neighbour);

    int m_load = 0; ///< differs for each project that was shown
};
