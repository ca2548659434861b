#pragma once

#include <QDockWidget>

class PatternModel;
class ReviewWork;

QT_BEGIN_NAMESPACE
class QLabel;
class QTreeView;
QT_END_NAMESPACE

/// The list of difference patterns beside the tree. Enter or a double click chooses the pattern of
/// the current row, Escape none; the row of the chosen one stays selected.
class PatternDock : public QDockWidget
{
    Q_OBJECT

public:
    /// \a work must live as long; it works while the list is to be seen.
    PatternDock(ReviewWork *work, QWidget *parent);
    ~PatternDock() override;

    /// -1: none.
    [[nodiscard]] int chosen() const { return m_chosen; }
    /// Chooses a pattern that has lines; -1: none.
    void choose(int pattern);
    /// The first row behind the chosen one, else the first; none if there are no rows.
    void chooseNext();
    /// The first pattern behind the chosen one that has lines still, from the top again after the
    /// last; -1 if there is no other.
    [[nodiscard]] int nextOpen() const;
    /// Lines of the chosen pattern that were taken out, to be told.
    void setTakenOut(int lines);
    void focusList();
    void retranslate();

Q_SIGNALS:
    void chosenChanged(int pattern);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fitColumns();
    void takePatterns();
    void takeChanges();
    void writeSum();

    ReviewWork *const m_work;
    PatternModel *const m_model;
    QTreeView *m_list = nullptr;
    QLabel *m_sum = nullptr;
    int m_chosen = -1;
    int m_takenOut = 0;
};
