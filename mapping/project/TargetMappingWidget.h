#pragma once

#include "ProjectTargetNotificationType.h"

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/records/PrjMappingTargetC.h>
#include <geomcore/table/ContentRef.h>

#include <QHash>
#include <QStringList>
#include <QWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QModelIndex;
class QPushButton;
class QStandardItemModel;
class QTableView;
class QVBoxLayout;
QT_END_NAMESPACE

class VarsetModifierI;
struct TargetMappingParamSet;

/// The panel of one target project: where it stands in the order, where the project is, which lines
/// it is for and how its variables get their values, and the buttons that move, remove and open it.
/// Conditions and variable mappings can be deleted. Every change goes to the callback, which may
/// delete the panel later, but not at once.
class TargetMappingWidget : public QWidget
{
    Q_OBJECT

public:
    using Notify =
        std::function<void(const PrjMappingTargetC &, int, ProjectTargetNotificationType)>;

    /// \a callback may be empty; \a paramSet is not owned. Reads the target's table.
    TargetMappingWidget(int targetIndex, const VKTab::ContentRef &source, const Notify &callback,
                        TargetMappingParamSet *paramSet, bool remoteViewerMode, QWidget *parent);
    ~TargetMappingWidget() override;

    /// Enables the move buttons as the target's place among the targets with a path allows.
    void updateMoveButtons();

    int index;                      ///< of the target in the mapping; rewritten when targets move
    QStringList conditionVariables; ///< that the target's conditions read, each name once
    QPushButton *assignButton = nullptr;
    QPushButton *upButton = nullptr;
    QPushButton *downButton = nullptr;

private Q_SLOTS:
    void onDeleteVarMapping(const QModelIndex &index, int buttonIndex);
    void onDeleteConditionClicked(const QModelIndex &index, int buttonIndex);
    void onRemoveTargetClicked();
    void onSelectProjectClicked();
    void onAssignTarget();
    void onMoveTargetUp();
    void onMoveTargetDown();

private:
    void buildHeader();
    void buildLists();
    [[nodiscard]] QPushButton *addHeaderButton(const char *name, const QIcon &icon,
                                               const QString &toolTip);
    [[nodiscard]] QTableView *addList(const char *name, QStandardItemModel *&model, int column,
                                      const QStringList &headers, const QString &deleteToolTip,
                                      const char *deleteSlot);
    void showPath(const QString &path, const QString &builtPath);
    void readTable(const QString &builtPath);
    void loadConditions(const PrjMappingTargetC &target);
    void loadVariableMappings(const PrjMappingTargetC &target);
    void collectVariables(const QString &condition);
    [[nodiscard]] QString assignedVariable(const QString &formula) const;
    /// As long as nothing can be entered, empty lists would only take room.
    void collapseEmptyLists();
    void storeConditions();
    void storeVariableMappings();
    [[nodiscard]] bool passesCheck(const PrjMappingTargetC &target, const VKTab::LineId &sourceLine,
                                   const VKTab::LineId &targetLine) const;
    void assignLine(const VKTab::LineId &sourceLine, const VKTab::LineId &targetLine);
    /// Null for a formula that does not parse; the caller owns it.
    [[nodiscard]] VarsetModifierI *makeModifier(int row) const;

    Notify notify;
    TargetMappingParamSet *params;
    QLabel *pathLabel = nullptr;
    QTableView *conditionView = nullptr;
    QTableView *variableView = nullptr;
    VKTab::ContentRef sourceContent;
    VKTab::ContentRef targetContent;
    /// Values of the first line of each table; only the names matter.
    QHash<QString, MapVarValueC> sourceVariables;
    QHash<QString, MapVarValueC> targetVariables;
    QStandardItemModel *conditionModel = nullptr;
    QStandardItemModel *variableModel = nullptr;
    QVBoxLayout *mainLayout = nullptr;
    QGridLayout *gridLayout = nullptr;
    QHBoxLayout *headerLayout = nullptr;
};
