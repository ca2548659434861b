#pragma once

#include <QTimer>

QT_BEGIN_NAMESPACE
class QTreeView;
QT_END_NAMESPACE

/// Has rows fetched before a tree scrolls to them, those of its directories too; the view itself
/// does that for its top level alone.
class RowsInSight : public QObject
{
    Q_OBJECT

public:
    /// Belongs to \a tree, which has its model.
    explicit RowsInSight(QTreeView *tree);

private:
    void look() const;

    QTreeView *const m_tree;
    QTimer m_look; ///< when all is laid out
};
