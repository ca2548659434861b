#pragma once

#include "ProjectEditor.h"

#include <mapping/project/TargetItemRole.h>

#include <formula/DlgFormulaEditor.h>
#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <gui/views/PButtonHeaderView.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QMenu>
#include <QPlainTextEdit>

/// Texts of a target's conditions in stored order.
inline QStringList conditionsOf(const PrjMappingTargetC &target)
{
    QStringList texts;
    const auto conditions = target.getConditions();
    for (const VarsetConditionI *const condition : conditions)
        texts += condition->getCondition();
    return texts;
}

/// "target=source" or the formula, in stored order.
inline QString modifiersOf(const PrjMappingTargetC &target)
{
    QStringList texts;
    const auto modifiers = target.getVarsetModifier();
    for (const VarsetModifierI *const modifier : modifiers) {
        if (const auto *const plain = dynamic_cast<const VarsetVarMappingC *>(modifier))
            texts += plain->getTargetVarName() + '=' + plain->getSourceVarName();
        else if (const auto *const value = dynamic_cast<const VarsetValueMappingC *>(modifier))
            texts += value->getFormula();
    }
    return texts.join("; ");
}

/// The lists of a panel, used as a modeller uses them.
struct TargetLists : Editor
{
    [[nodiscard]] QTableView *view(const char *name, int place = 0) const
    {
        return panel(place)->findChild<QTableView *>(QLatin1String(name));
    }
    [[nodiscard]] QTableView *conditions(int place = 0) const
    {
        return view("conditionView", place);
    }
    [[nodiscard]] QTableView *variables(int place = 0) const { return view("variableView", place); }
    static void clickAdd(QTableView *list)
    {
        const auto *const header = qobject_cast<PButtonHeaderView *>(list->horizontalHeader());
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          header->buttonRect(0).center());
    }
    static QPoint cell(const QTableView *list, int row, int column)
    {
        return list->visualRect(list->model()->index(row, column)).center();
    }
    static void clickCell(QTableView *list, int row, int column,
                          Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list->viewport(), button, Qt::NoModifier, cell(list, row, column));
    }
    /// The next formula editor gets a text and is ended by a button.
    void answerFormula(const QString &text, bool accept = true)
    {
        waiting.disconnect();
        waiting.start(1);
        QObject::connect(&waiting, &QTimer::timeout, &widget, [this, text, accept] {
            if (auto *const dialog =
                    qobject_cast<DlgFormulaEditor *>(QApplication::activeModalWidget())) {
                waiting.stop();
                answer(dialog, text, accept);
            }
        });
    }
    void answer(DlgFormulaEditor *dialog, const QString &text, bool accept)
    {
        ++formulas;
        formulaBefore = dialog->getFormula();
        if (whileFormulaIsOpen) {
            std::exchange(whileFormulaIsOpen, {})();
            return;
        }
        auto *const edit = dialog->findChild<QPlainTextEdit *>();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        edit->insertPlainText(text);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(
                              accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                          Qt::LeftButton);
        if (dialog->isVisible())
            dialog->reject();
    }
    /// Right click, or the key if the row is negative; gives the menu's texts.
    static QStringList openMenu(QTableView *list, int row, int column)
    {
        const QPoint pos =
            row < 0 ? QPoint(5, list->viewport()->height() - 1) : cell(list, row, column);
        QContextMenuEvent event(QContextMenuEvent::Mouse, pos, list->viewport()->mapToGlobal(pos));
        QCoreApplication::sendEvent(list->viewport(), &event);
        QStringList texts;
        if (const QMenu *const menu = shownMenu())
            for (const QAction *const action : menu->actions())
                texts += action->text();
        return texts;
    }
    static QMenu *shownMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    /// Of the menu that is shown.
    static void choose(const QString &text)
    {
        QMenu *const menu = shownMenu();
        QVERIFY(menu);
        for (QAction *const action : menu->actions())
            if (action->text() == text)
                QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                                  menu->actionGeometry(action).center());
    }
    static void closeMenu()
    {
        if (QMenu *const menu = shownMenu())
            QTest::keyClick(menu, Qt::Key_Escape);
    }
    /// The editor that is open in a list.
    static QComboBox *box(const QTableView *list)
    {
        return list->viewport()->findChild<QComboBox *>();
    }
    /// Chooses an entry in the open box by keys, and leaves the box if wanted.
    static void chooseEntry(QTableView *list, const QString &text, bool leave = true)
    {
        QComboBox *const editor = box(list);
        QVERIFY(editor);
        const int entry = editor->findText(text);
        QVERIFY2(entry >= 0, qPrintable(text));
        editor->showPopup();
        editor->view()->setCurrentIndex(editor->model()->index(entry, 0));
        QTest::keyClick(editor->view(), Qt::Key_Return);
        QCoreApplication::processEvents();
        if (leave && box(list))
            QTest::keyClick(box(list), Qt::Key_Return);
        if (leave)
            QTRY_VERIFY(!box(list));
    }
    /// Opens the box of a cell as F2 does.
    static void edit(QTableView *list, int row, int column)
    {
        list->setFocus();
        list->setCurrentIndex(list->model()->index(row, column));
        QTest::keyClick(list, Qt::Key_F2);
    }
    /// "target|text" of the rows that a list shows; conditions alone.
    static QStringList rows(const QTableView *list)
    {
        QStringList texts;
        const QAbstractItemModel *const model = list->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            QString text = model->index(row, 1).data().toString();
            if (model->columnCount() > 2)
                text += '|' + model->index(row, 2).data().toString();
            texts += text;
        }
        return texts;
    }
    /// Of a target of the mapping that was announced last.
    [[nodiscard]] PrjMappingTargetC stored(int target = 0) const
    {
        return announced().findTarget(target);
    }

    QTimer waiting;
    int formulas = 0; ///< editors that came
    QString formulaBefore;
    std::function<void()> whileFormulaIsOpen; ///< once, in place of an answer
};
