#pragma once

#include "FormulaItem.h"

#include <QAbstractTableModel>

/// What may complete a word: those items that begin with it, then those that hold it elsewhere,
/// letter case ignored. Column 0 is the text, column 1 what is said beside it.
class FormulaCompletionModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit FormulaCompletionModel(QObject *parent = nullptr);
    ~FormulaCompletionModel() override;

    void setItems(const QList<FormulaItem> &items);
    /// An empty word shows all items.
    void setWord(const QString &word);
    [[nodiscard]] FormulaItem item(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    QList<FormulaItem> m_items;
    QList<FormulaItem> m_shown;
};
