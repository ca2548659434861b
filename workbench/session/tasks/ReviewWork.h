#pragma once

#include "LineExplanations.h"

#include <release/pattern/DifferencePatterns.h>

#include <QObject>

#include <functional>
#include <list>
#include <memory>
#include <thread>

class MappingDocument;
class ProjectComparer;

QT_BEGIN_NAMESPACE
class QTimer;
QT_END_NAMESPACE

/// Keeps the difference patterns of the open document up to date, and explains single lines. Tables
/// are read on other threads; what is known at the moment can be asked for at any time. Decisions
/// are taken in at once, at the cost of what they change; the candidates of other lines are those
/// from before until nobody has decided for a moment, and are worked out anew then. GUI thread.
class ReviewWork : public QObject
{
    Q_OBJECT

public:
    using Place = VelkRelease::DifferencePatterns::Place;

    /// \a document must live as long.
    explicit ReviewWork(MappingDocument *document, QObject *parent = nullptr);
    ~ReviewWork() override;

    /// Works only while it is wanted, and reads everything when it begins to be.
    void setWanted(bool wanted);
    [[nodiscard]] bool isWanted() const { return m_wanted; }
    /// Reads everything anew, as after the tables or the agreed replacements changed.
    void readAnew();

    /// The patterns of all lines are being read; those of an earlier state may be there still.
    [[nodiscard]] bool isReading() const { return m_isReading; }
    /// Projects that are read, of all; while isReading().
    [[nodiscard]] int projectsRead() const { return m_projectsRead; }
    [[nodiscard]] bool hasPatterns() const { return m_hasPatterns; }
    [[nodiscard]] const VelkRelease::DifferencePatterns &patterns() const { return m_patterns; }

    [[nodiscard]] ProjectId projectAt(int position) const;
    /// -1 if the release does not have it.
    [[nodiscard]] int positionOf(const ProjectId &project) const;
    [[nodiscard]] LineRef lineAt(const Place &place) const;
    [[nodiscard]] Place placeOf(const LineRef &line) const;

    /// explained() follows, unless another line is asked for before; once more when what is known
    /// of the line was brought up to date.
    void explain(const LineRef &line);
    /// paired() follows, unless other lines are asked for before. The first lines only, if there
    /// are too many.
    void pair(const ProjectId &project, const QList<int> &lines);

Q_SIGNALS:
    /// There are others, with other numbers.
    void patternsMade();
    /// The same with other lines, or more of them behind the others.
    void patternsChanged();
    void readingChanged();
    void explained(const LineExplanation &explanation);
    void paired(const LinePairs &pairs);

private:
    struct Job
    {
        std::atomic<bool> cancelled = false;
        std::atomic<bool> done = false;
        quint64 number = 0; ///< tells jobs apart that are gone
        std::jthread thread;
    };
    void start();
    void stop();
    void dropComparer();
    [[nodiscard]] std::shared_ptr<ProjectComparer> makeComparer(const ProjectId &project) const;
    void refreshComparer();
    void onMappingChanged(const ProjectId &project);
    void readPending();
    void tellChange();
    void takePatterns(VelkRelease::DifferencePatterns &&patterns);
    /// Runs \a work on a thread of its own; it hands its result over by post().
    std::shared_ptr<Job> run(const std::function<void(Job &)> &work);
    /// Calls \a take on this object's thread, if \a job is not cancelled until then.
    void post(Job &job, const std::function<void()> &take);
    void reap();

    MappingDocument *const m_document;
    bool m_wanted = false;
    bool m_isReading = false;
    bool m_hasPatterns = false;
    bool m_changeTold = false;
    int m_projectsRead = 0;
    VelkRelease::DifferencePatterns m_patterns;
    std::shared_ptr<Job> m_reading;
    std::shared_ptr<Job> m_pending;
    std::shared_ptr<Job> m_explaining;
    std::shared_ptr<Job> m_refreshing;
    std::shared_ptr<ProjectComparer> m_comparer; ///< of the project that was explained last
    std::shared_ptr<ProjectComparer> m_fresh;    ///< the same after what was decided, being read
    LineRef m_asked;                             ///< that was to be explained last
    QTimer *const m_refresh;
    quint64 m_lastJob = 0;
    std::list<std::shared_ptr<Job>> m_jobs; ///< those that have not ended
};
