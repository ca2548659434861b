#pragma once

#include "TableCellText.h"

#include <geomcore/value/LineId.h>

#include <QCache>
#include <QSet>
#include <QStaticText>
#include <QStyledItemDelegate>

/// Draws the cells of a table view: icons in the middle, ranges in italics, marked texts on a
/// ground of their own. Texts are kept laid out, since a picture of a table has hundreds of them
/// and the next picture has nearly the same.
class TableDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TableDelegate(QObject *parent);
    ~TableDelegate() override;

    void setMarkedText(const QString &text) { m_marked = TextSearch(text); }
    /// Numbers of variables whose cells in a line differ from something.
    void setMarkedCells(const VKTab::LineId &line, const QSet<int> &variables);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    /// A text as it fits into a width.
    struct LaidOut
    {
        QStaticText text;
        int room = -1; ///< that a cut text was cut for, -1 for a whole one
    };

    [[nodiscard]] bool isMarkedCell(const QModelIndex &index) const;
    void drawText(QPainter &painter, const QStyleOptionViewItem &option) const;
    [[nodiscard]] QStaticText laidOut(const QStyleOptionViewItem &option, int room) const;

    TextSearch m_marked;
    VKTab::LineId m_markedLine;
    QSet<int> m_markedVariables;
    mutable QFont m_font; ///< of the texts that are kept
    mutable QCache<QString, LaidOut> m_texts;
};
