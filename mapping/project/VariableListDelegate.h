#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/ContentRef.h>

#include <QHash>
#include <QStyledItemDelegate>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QComboBox;
class QStandardItemModel;
class QTextDocument;
QT_END_NAMESPACE

class DlgFormulaEditor;
class OpenDialogs;

/// Edits the cells of a target's lists. A cell with a variable offers the variables of a table in a
/// box, together with "Formel..." and the ignore marker if wanted; a cell with a condition opens
/// the formula editor on a click, F2 or the blank. Formulas are shown in colour. The fields are set
/// after construction.
class VariableListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    VariableListDelegate(const VKTab::ContentRef &table, bool showFormula, QObject *parent);
    ~VariableListDelegate() override;

    /// What formulas are written over.
    void setVariables(const QHash<QString, MapVarValueC> &source,
                      const QHash<QString, MapVarValueC> &target);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *itemModel,
                      const QModelIndex &index) const override;

    std::function<void()> onChanged; ///< called after an edit; may be empty
    /// Called with each formula editor and the row that it is for, before it is shown; may be empty
    std::function<void(DlgFormulaEditor *, int)> onFormulaOpened;
    /// Called with the box of a cell when it is made; may be empty.
    std::function<void(QComboBox *, const QModelIndex &)> onBoxOpened;
    VKTab::ContentRef content; ///< whose variables are offered
    bool showFormulaItem;
    bool showIgnoreItem = false;
    bool formulaOnly = false;            ///< no box; the formula editor instead
    QStandardItemModel *model = nullptr; ///< not owned; for the special entries
    int valueColumn = -1;                ///< of model: the source variable, formula or marker
    int targetColumn = -1;               ///< of model: the target variable
    QHash<QString, MapVarValueC> sourceVariables;
    QHash<QString, MapVarValueC> targetVariables;
    std::shared_ptr<OpenDialogs> dialogs; ///< shared with whoever may end while one is open

public Q_SLOTS:
    /// Entry of the box that sent it; queued, after the choice.
    void onItemActivated(int index);
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *itemModel,
                     const QStyleOptionViewItem &option, const QModelIndex &index) override;

private:
    void writeFormula(int row);
    void ignoreVariable(int row);
    void callChanged() const;
    [[nodiscard]] std::function<void(DlgFormulaEditor *)> openedFor(int row) const;
};
