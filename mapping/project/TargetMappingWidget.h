#pragma once

#include "ProjectTargetNotificationType.h"

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/records/PrjMappingTargetC.h>
#include <geomcore/table/ContentRef.h>

#include <QHash>
#include <QPersistentModelIndex>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QMenu;
class QPoint;
class QPushButton;
class QStandardItem;
class QStandardItemModel;
class QTableView;
class QVBoxLayout;
QT_END_NAMESPACE

class DlgFormulaEditor;
class OpenDialogs;
class VariableListDelegate;
class VarsetModifierI;
struct TargetMappingParamSet;

/// The panel of one target project: where it stands in the order, where the project is, which lines
/// it is for and how its variables get their values, and the buttons that move, remove and open it.
/// Each edit of the lists replaces all conditions or all variable mappings of the target. Every
/// change goes to the callback, which may delete the panel later, but not at once.
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
    /// Instead of delete, for whoever ends the panel while one of its formula editors may be open:
    /// that is closed, nothing is told any more, and the panel goes as soon as it can.
    void discard();

    int index;                      ///< of the target in the mapping; rewritten when targets move
    QStringList conditionVariables; ///< that the target's conditions read, each name once
    QPushButton *assignButton = nullptr;
    QPushButton *upButton = nullptr;
    QPushButton *downButton = nullptr;

private Q_SLOTS:
    void onAddVariableMappingClicked();
    void onDeleteVarMapping(const QModelIndex &index, int buttonIndex);
    void onAddConditionClicked();
    void onDeleteConditionClicked(const QModelIndex &index, int buttonIndex);
    void onRemoveTargetClicked();
    void onSelectProjectClicked();
    void onAssignTarget();
    void onVarMappingContextMenu(const QPoint &pos);
    void onCopyVarMapping();
    void onPasteVarMapping();
    void onConditionContextMenu(const QPoint &pos);
    void onCopyCondition();
    void onPasteCondition();
    void onMoveTargetUp();
    void onMoveTargetDown();

private:
    void buildHeader();
    void buildLists();
    [[nodiscard]] QPushButton *addHeaderButton(const char *name, const QIcon &icon,
                                               const QString &toolTip);
    struct ListButtons
    {
        QString addToolTip;
        QString deleteToolTip;
        const char *addSlot;
        const char *deleteSlot;
        const char *menuSlot;
    };
    /// Right of the lists that are there.
    [[nodiscard]] QTableView *addList(const char *name, QStandardItemModel *&model,
                                      const QStringList &headers, const ListButtons &buttons);
    void addDelegates();
    VariableListDelegate *addDelegate(QTableView *view, int column, const VKTab::ContentRef &table,
                                      bool showFormula);
    void showPath(const QString &path, const QString &builtPath);
    void readTable(const QString &builtPath);
    void loadConditions(const PrjMappingTargetC &target);
    void loadVariableMappings(const PrjMappingTargetC &target);
    void collectVariables(const QString &condition);
    [[nodiscard]] QString assignedVariable(const QString &formula) const;
    /// Rules that the program proposed stand in italics until they are stored or a line of the
    /// target is confirmed; the path's tool tip says so.
    void showProposed(const PrjMappingTargetC &target);
    void appendCondition(const QString &text);
    void appendVariableMapping(const QString &targetName, QStandardItem *value);
    void storeConditions();
    void storeVariableMappings();
    [[nodiscard]] bool passesCheck(const PrjMappingTargetC &target, const VKTab::LineId &sourceLine,
                                   const VKTab::LineId &targetLine) const;
    void assignLine(const VKTab::LineId &sourceLine, const VKTab::LineId &targetLine);
    /// Null for a formula that does not parse; the caller owns it.
    [[nodiscard]] VarsetModifierI *makeModifier(int row) const;
    /// Lets a formula editor tell what its text would mean, and offers a condition for the selected
    /// lines. The row is that of the condition or mapping; the next one for a new condition.
    void watchCondition(DlgFormulaEditor *dialog, int row);
    void watchFormula(DlgFormulaEditor *dialog, int row);
    /// Tells above the box of a mapping's cell what the variable under the mouse would mean.
    void watchBox(QComboBox *box, const QModelIndex &cell);
    using ChangedTarget = std::function<std::optional<PrjMappingTargetC>(const QString &)>;
    void watch(DlgFormulaEditor *dialog, const ChangedTarget &changedTarget);
    void offerCondition(DlgFormulaEditor *dialog);
    /// The target with the text in that row; none if the text does not parse.
    [[nodiscard]] std::optional<PrjMappingTargetC> withCondition(int row,
                                                                 const QString &text) const;
    [[nodiscard]] std::optional<PrjMappingTargetC> withFormula(int row, const QString &text) const;
    /// The target with that mapping between plain variables in that row; none if one is missing.
    [[nodiscard]] std::optional<PrjMappingTargetC> withVariables(int row, const QString &source,
                                                                 const QString &targetName) const;
    /// The target with \a made, which may be null, in that row.
    [[nodiscard]] std::optional<PrjMappingTargetC> withModifier(int row,
                                                                const VarsetModifierI *made) const;
    /// A menu with "Kopieren" if a cell is under it and "Einfügen" if there is something to paste.
    void showCopyMenu(QTableView *view, const QPoint &pos, const char *copySlot,
                      const char *pasteSlot, bool canPaste);
    /// None if the copied mapping fits the tables of this target.
    [[nodiscard]] std::optional<QString> pasteError() const;
    [[nodiscard]] std::optional<QString> formulaError(const QString &formula) const;

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
    /// The cell under the last context menu.
    QPersistentModelIndex variableMenuIndex;
    QPersistentModelIndex conditionMenuIndex;
    std::shared_ptr<OpenDialogs> dialogs;
};
