#include "FormulaCompletionModel.h"

FormulaCompletionModel::FormulaCompletionModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

FormulaCompletionModel::~FormulaCompletionModel() = default;

void FormulaCompletionModel::setItems(const QList<FormulaItem> &items)
{
    beginResetModel();
    m_items = items;
    m_shown.clear();
    endResetModel();
}

void FormulaCompletionModel::setWord(const QString &word)
{
    QList<FormulaItem> exact;
    QList<FormulaItem> first;
    QList<FormulaItem> later;
    for (const FormulaItem &item : std::as_const(m_items)) {
        if (item.text == word)
            exact.append(item);
        else if (item.text.startsWith(word, Qt::CaseInsensitive))
            first.append(item);
        else if (item.text.contains(word, Qt::CaseInsensitive))
            later.append(item);
    }
    beginResetModel();
    m_shown = exact + first + later;
    endResetModel();
}

FormulaItem FormulaCompletionModel::item(int row) const
{
    return m_shown.value(row);
}

int FormulaCompletionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int FormulaCompletionModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant FormulaCompletionModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FormulaItem &item = m_shown.at(index.row());
    if (role == Qt::DisplayRole)
        return index.column() == 0 ? item.text : item.detail;
    if (role == Qt::ToolTipRole)
        return item.help;
    return {};
}
