#pragma once

#include "FormulaItem.h"

#include <QPointer>
#include <QTreeView>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QPlainTextEdit;
QT_END_NAMESPACE

class FormulaCompletionModel;

/// List of what may complete the word before the cursor. The keys stay with the editor, which hands
/// those over that are the list's.
class FormulaCompletionPopup : public QTreeView
{
    Q_OBJECT

public:
    explicit FormulaCompletionPopup(QPlainTextEdit *edit);
    ~FormulaCompletionPopup() override;

    /// Shows the list below the cursor, or hides it if nothing completes the word any further.
    void showFor(const QString &word, const QList<FormulaItem> &items);
    /// True if the key was the list's.
    bool takeKey(const QKeyEvent &key);

Q_SIGNALS:
    void chosen(const FormulaItem &item);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void hideEvent(QHideEvent *event) override;

private:
    void place();
    void choose(const QModelIndex &index);

    QPlainTextEdit *const m_edit;
    FormulaCompletionModel *const m_model;
};
