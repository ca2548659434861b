#pragma once

#include <geomcore/mapper/LineCandidatesC.h>

#include <QDockWidget>

class CandidateModel;
class DifferenceModel;
struct LineExplanation;
struct LinePairs;
class PairModel;

QT_BEGIN_NAMESPACE
class QLabel;
class QTableView;
class QTreeView;
QT_END_NAMESPACE

/// The line in sight: old and new value of every variable side by side, and its candidates. Shows
/// what it is given.
class DifferencePanel : public QDockWidget
{
    Q_OBJECT

public:
    explicit DifferencePanel(QWidget *parent);
    ~DifferencePanel() override;

    void show(const LineExplanation &explanation);
    /// Several lines: what they have in common, and each with what it has besides.
    void show(const LinePairs &pairs);
    /// No line, or one of which nothing is known yet.
    void clear();
    /// The candidate of a key, from 1; null if there is none.
    [[nodiscard]] const LineCandidateC *candidate(int key) const;
    void retranslate();

Q_SIGNALS:
    /// The user wants the candidate of this key, from 1.
    void candidateChosen(int key);

protected:
    void changeEvent(QEvent *event) override;

private:
    DifferenceModel *const m_differences;
    CandidateModel *const m_candidates;
    PairModel *const m_pairs;
    QLabel *m_head = nullptr;
    QTableView *m_values = nullptr;
    QTableView *m_several = nullptr; ///< in the place of the others while several lines are shown
    QTreeView *m_list = nullptr;
    QWidget *m_single = nullptr; ///< tables of one line
};
