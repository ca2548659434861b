#pragma once

#include "TableCellText.h"

#include <geomcore/value/LineId.h>

#include <QSet>
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
    /// Numbers of variables whose cells in a line differ from something.
    void setMarkedCells(const VKTab::LineId &line, const QSet<int> &variables);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    [[nodiscard]] bool isMarkedCell(const QModelIndex &index) const;

    TextSearch m_marked;
    VKTab::LineId m_markedLine;
    QSet<int> m_markedVariables;
};
