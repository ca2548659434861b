#pragma once

#include <release/review/LineTraits.h>
#include <workbench/session/common/SessionTypes.h>

#include <QObject>

#include <atomic>
#include <memory>
#include <thread>

class MappingDocument;
QT_BEGIN_NAMESPACE
class QTimer;
QT_END_NAMESPACE

/// The filter over all lines of the open document, and which lines it accepts. What lines have is
/// read on another thread as soon as somebody wants to know; decisions are taken in at once. GUI
/// thread.
class FilterWork : public QObject
{
    Q_OBJECT

public:
    /// \a document must live as long.
    explicit FilterWork(MappingDocument *document, QObject *parent = nullptr);
    ~FilterWork() override;

    [[nodiscard]] const VelkRelease::LineFilter &filter() const { return m_filter; }
    void setFilter(const VelkRelease::LineFilter &filter);
    /// Reads what is not known yet, also for a filter that does not ask for it.
    void setWanted(bool wanted);
    void readAnew();
    /// What was taken over from former mappings.
    void setCarried(const VelkRelease::CarriedLines &carried);

    [[nodiscard]] bool isReading() const { return m_job != nullptr; }
    [[nodiscard]] bool isKnown() const { return m_isKnown; }
    /// There is a filter, and it is known what it means.
    [[nodiscard]] bool isActive() const { return m_isKnown && !m_filter.isEmpty(); }
    /// It asks for more than a choice of states, which needs no reading.
    [[nodiscard]] bool asksForMore() const;
    [[nodiscard]] const VelkRelease::LineTraits &traits() const { return m_traits; }
    /// What could not be read.
    [[nodiscard]] const QStringList &errors() const { return m_errors; }

    /// If active: the lines of each project that has any.
    [[nodiscard]] QHash<ProjectId, std::vector<int>> lines() const;
    struct Numbers
    {
        int lines = 0;
        int projects = 0;
    };
    [[nodiscard]] Numbers numbers() const;
    [[nodiscard]] bool accepts(const LineRef &line) const;
    /// The next project behind or before this one, in the order of the tree and round its end, that
    /// has lines; not valid if no other has.
    [[nodiscard]] ProjectId nextProject(const ProjectId &from, bool forward) const;

Q_SIGNALS:
    /// Another filter, or it is known only now what it means, or not any more.
    void changed();
    /// Decisions: other lines have what it asks for.
    void linesChanged();
    void readingChanged();

private:
    struct Job
    {
        std::atomic<bool> cancelled = false;
        std::jthread thread;
    };
    void start();
    void stop();
    void take(const std::shared_ptr<VelkRelease::LineTraits> &traits, const QStringList &errors);
    void onMappingChanged(const ProjectId &project);

    MappingDocument *const m_document;
    VelkRelease::LineFilter m_filter;
    VelkRelease::LineTraits m_traits;
    VelkRelease::CarriedLines m_carried;
    QStringList m_errors;
    std::unique_ptr<Job> m_job; ///< null: nothing is being read
    int m_jobNumber = 0;
    bool m_isWanted = false;
    bool m_isKnown = false;
    QTimer *const m_told; ///< one signal for many changes
};
