#pragma once

#include "ProjectTargetNotificationType.h"

#include <linkdbgui/VelkLinkDbGuiGlobal.h>

#include <geomcore/records/PrjMappingTargetC.h>
#include <geomcore/table/ContentRef.h>

#include <QStringList>
#include <QWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

struct TargetMappingParamSet;

/// The panel of one target project: where it stands in the order, where the project is, and the
/// buttons that move, remove and open it. Every change goes to the callback, which may delete the
/// panel later, but not at once.
class VELKLINKDBGUI_EXPORT TargetMappingWidget : public QWidget
{
    Q_OBJECT

public:
    using Notify =
        std::function<void(const PrjMappingTargetC &, int, ProjectTargetNotificationType)>;

    /// \a notify may be empty; \a params is not owned.
    TargetMappingWidget(int index, const VKTab::ContentRef &sourceContent, const Notify &notify,
                        TargetMappingParamSet *params, bool remoteViewerMode, QWidget *parent);
    ~TargetMappingWidget() override;

    /// Enables the move buttons as the target's place among the targets with a path allows.
    void updateMoveButtons();

    int index;                      ///< of the target in the mapping; rewritten when targets move
    QStringList conditionVariables; ///< that the target's conditions read, each name once
    QPushButton *assignButton = nullptr;
    QPushButton *upButton = nullptr;
    QPushButton *downButton = nullptr;

private Q_SLOTS:
    void onRemoveTargetClicked();
    void onSelectProjectClicked();
    void onMoveTargetUp();
    void onMoveTargetDown();

private:
    Notify notify;
    TargetMappingParamSet *params;
    QLabel *pathLabel = nullptr;
    VKTab::ContentRef sourceContent;
    VKTab::ContentRef targetContent;
    QVBoxLayout *mainLayout = nullptr;
    QGridLayout *gridLayout = nullptr;
    QHBoxLayout *headerLayout = nullptr;
};
