#pragma once

#include <workbench/session/tasks/NeighbourWork.h>

#include <QDockWidget>

class NeighbourModel;

QT_BEGIN_NAMESPACE
class QLabel;
class QTreeView;
QT_END_NAMESPACE

/// The list of places where neighbouring lines do not fit each other. Enter or a double click shows
/// the one of the current row.
class NeighbourDock : public QDockWidget
{
    Q_OBJECT

public:
    /// \a work must live as long; it works while the list is to be seen.
    NeighbourDock(NeighbourWork *work, QWidget *parent);
    ~NeighbourDock() override;

    /// Of the current row; null if there is none.
    [[nodiscard]] const NeighbourWork::Place *current() const;
    void focusList();
    void retranslate();

Q_SIGNALS:
    void chosen();

protected:
    void changeEvent(QEvent *event) override;

private:
    void update();
    void writeSum();

    NeighbourWork *const m_work;
    NeighbourModel *const m_model;
    QTreeView *m_list = nullptr;
    QLabel *m_sum = nullptr;
};
