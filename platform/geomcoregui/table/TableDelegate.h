#pragma once

#include "TableCellText.h"

#include <QStyledItemDelegate>

/// Draws the cells of a table view: icons in the middle, ranges in italics, marked texts on a
/// ground of their own.
class TableDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TableDelegate(QObject *parent);
    ~TableDelegate() override;

    void setMarkedText(const QString &text) { m_marked = TextSearch(text); }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    TextSearch m_marked;
};
