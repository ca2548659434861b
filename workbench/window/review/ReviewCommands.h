#pragma once

#include <workbench/session/tasks/ReviewWork.h>

#include <release/pattern/SampleAcceptance.h>

#include <QObject>

#include <optional>
#include <set>

class DifferencePanel;
class EditorArea;
class LineCommands;
class MappingDocument;
class PatternDock;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Review of open lines by how they differ from their proposals: the chosen set of lines is that of
/// a pattern, or a part of it; tree and table show it alone. It is confirmed in one step, or
/// accepted by a sample. The line in sight is explained, and its candidates can be taken.
class ReviewCommands : public QObject
{
    Q_OBJECT

public:
    using Place = ReviewWork::Place;

    /// All must live as long; dialogs belong to \a window.
    ReviewCommands(MappingDocument *document, EditorArea *editor, LineCommands *lines,
                   QWidget *window);
    ~ReviewCommands() override;

    [[nodiscard]] ReviewWork *work() const { return m_work; }
    [[nodiscard]] PatternDock *dock() const { return m_dock; }
    [[nodiscard]] DifferencePanel *panel() const { return m_panel; }

    /// Shows the list and gives it the keys.
    void showPatterns();
    void showDifferences();
    /// Asks first if lines of the set are in doubt, or if the list does not tell their number;
    /// then goes on to the next pattern. Of lines without a successor that is confirmed, for a
    /// reason that is asked for.
    void confirmAll();
    /// The line in sight is not confirmed with the others of the set.
    void takeOut();
    void goNext() { go(true); }
    void goPrevious() { go(false); }
    void chooseNext();
    /// A candidate of the line in sight, from 1: assigned and confirmed.
    void takeCandidate(int key);
    /// Lines come by the chance of error, the least sure first, else by their places.
    void setLeastSureFirst(bool on);
    /// When all lines of the set are decided, the next pattern is chosen.
    void setGoesOn(bool on) { m_goesOn = on; }
    /// Agrees to replacements of values, and withdraws them.
    void editReplacements();

    /// Asks for the number of lines to be drawn from the set; without a set from the selected
    /// lines.
    void startSample();
    /// Of the line of the sample that is to be judged.
    void judge(bool right);
    [[nodiscard]] const std::optional<VelkRelease::SampleAcceptance> &sample() const
    {
        return m_sample;
    }

    /// Open lines of the set without those that were taken out, in their order.
    [[nodiscard]] std::vector<Place> lines() const;

Q_SIGNALS:
    void noted(const QString &text);
    /// A step was done that can be taken back.
    void done(const QString &text);

private:
    void choosePattern(int pattern);
    void chooseSet(const std::vector<Place> &places);
    void showSet();
    void go(bool forward);
    void goTo(const Place &place);
    void explainCurrent();
    void showExplanation(const LineExplanation &explanation);
    void showPairs(const LinePairs &pairs);
    [[nodiscard]] LineRef here() const;
    [[nodiscard]] bool isTold(const std::vector<Place> &places) const;
    [[nodiscard]] int doubtfulIn(const std::vector<Place> &places) const;
    [[nodiscard]] bool ask(const std::vector<Place> &places, const QString &details) const;
    void confirm(const std::vector<Place> &places, const QString &details, const QString &stepText);
    /// Those of which the list says that they have no successor.
    [[nodiscard]] QList<Place> goneOf(const std::vector<Place> &places) const;
    [[nodiscard]] bool askReason(const std::vector<Place> &places, const QString &details);
    void confirmGone(const QList<Place> &places);
    void noteReason(const QList<Place> &places) const;
    [[nodiscard]] bool goOn();
    void goToSample();
    void endSample();
    void noteSample() const;
    void split();

    MappingDocument *const m_document;
    EditorArea *const m_editor;
    LineCommands *const m_lines;
    QWidget *const m_window;
    ReviewWork *const m_work;
    PatternDock *const m_dock;
    DifferencePanel *const m_panel;
    std::vector<Place> m_set; ///< as it was chosen; decided ones are still in it
    std::set<Place> m_takenOut;
    bool m_leastSureFirst = false;
    bool m_goesOn = false;
    LineRef m_explained; ///< that the panel shows
    std::optional<VelkRelease::SampleAcceptance> m_sample;
    quint64 m_seed = 0;
    QString m_reason; ///< why lines have no successor, as it was given last
};
