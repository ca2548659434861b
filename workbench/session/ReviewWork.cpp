#include "ReviewWork.h"

#include "MappingDocument.h"

#include <geomcore/records/LineTable.h>

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <mutex>
#include <utility>

using VelkRelease::DifferencePatterns;
using VelkRelease::LineComparer;
using VelkRelease::OpenPair;

namespace {

constexpr qint64 TellEvery = 100; // milliseconds

bool isConfirmed(const PrjMappingC &mapping, int line)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const LineTable::Iterator entry = mapping.targetAt(i).lines().find(line);
        if (entry && entry.state() == PRJMAPPING::Verified)
            return true;
    }
    return false;
}

} // namespace

/// Reads the tables of a project once for all lines that are asked for.
struct ReviewWork::Comparer
{
    ProjectId project;
    PrjMappingC mapping;
    ReleaseMappingC head;
    QString sourceRoot;
    std::mutex mutex;
    std::unique_ptr<LineComparer> comparer;

    [[nodiscard]] LineExplanation explain(int line)
    {
        const std::lock_guard lock(mutex);
        if (!comparer)
            comparer = std::make_unique<LineComparer>(sourceRoot, mapping, head);
        LineExplanation explanation;
        explanation.line = {project, line};
        explanation.isConfirmed = isConfirmed(mapping, line);
        explanation.errors = comparer->errors();
        explanation.isRead = comparer->hasLine(line);
        if (!explanation.isRead)
            return explanation;
        explanation.designation = comparer->designation(line);
        explanation.assigned = comparer->assigned(line);
        explanation.candidates = comparer->candidates(line);
        return explanation;
    }
};

ReviewWork::ReviewWork(MappingDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    connect(document, &MappingDocument::mappingChanged, this, &ReviewWork::onMappingChanged);
    connect(document, &MappingDocument::releaseReplaced, this, &ReviewWork::readAnew);
    connect(document, &MappingDocument::aboutToClose, this, &ReviewWork::stop);
    connect(document, &MappingDocument::closed, this, &ReviewWork::stop);
}

ReviewWork::~ReviewWork()
{
    for (const std::shared_ptr<Job> &job : m_jobs)
        job->cancelled = true;
    m_jobs.clear(); // waits for their ends
}

void ReviewWork::setWanted(bool wanted)
{
    if (m_wanted == wanted)
        return;
    m_wanted = wanted;
    if (wanted)
        start();
    else
        stop();
}

void ReviewWork::readAnew()
{
    m_comparer.reset();
    if (m_wanted)
        start();
}

void ReviewWork::stop()
{
    for (std::shared_ptr<Job> *job : {&m_reading, &m_pending, &m_explaining}) {
        if (*job)
            (*job)->cancelled = true;
        job->reset();
    }
    m_comparer.reset();
    m_hasPatterns = false;
    m_patterns = DifferencePatterns();
    if (std::exchange(m_isReading, false))
        Q_EMIT readingChanged();
    Q_EMIT patternsMade();
}

void ReviewWork::start()
{
    for (std::shared_ptr<Job> *job : {&m_reading, &m_pending}) {
        if (*job)
            (*job)->cancelled = true;
        job->reset();
    }
    if (!m_document->isOpen())
        return;
    m_isReading = true;
    m_projectsRead = 0;
    const ReleaseMappingC release = m_document->release();
    const QString sourceRoot = m_document->catalogRoots().source;
    m_reading = run([this, release, sourceRoot](Job &job) {
        QElapsedTimer sinceTold;
        sinceTold.start();
        auto patterns =
            DifferencePatterns::compute(sourceRoot, release, job.cancelled, {}, [&](int projects) {
                if (!sinceTold.hasExpired(TellEvery))
                    return;
                sinceTold.restart();
                post(job, [this, projects] {
                    m_projectsRead = projects;
                    Q_EMIT readingChanged();
                });
            });
        if (!patterns)
            return;
        const auto made = std::make_shared<DifferencePatterns>(*std::move(patterns));
        post(job, [this, made] { takePatterns(std::move(*made)); });
    });
    Q_EMIT readingChanged();
}

void ReviewWork::takePatterns(DifferencePatterns &&patterns)
{
    m_patterns = std::move(patterns);
    m_hasPatterns = true;
    m_isReading = false;
    m_reading.reset();
    // What was decided meanwhile; a mapping that did not change costs nothing.
    const ReleaseMappingC release = m_document->release();
    for (int i = 0; i < release.countMappings(); ++i)
        m_patterns.setMapping(i, release.mappingAt(i));
    Q_EMIT readingChanged();
    Q_EMIT patternsMade();
    readPending();
}

void ReviewWork::onMappingChanged(const ProjectId &project)
{
    if (m_comparer && m_comparer->project == project)
        m_comparer.reset();
    if (!m_wanted || !m_hasPatterns)
        return;
    const int position = positionOf(project);
    if (position < 0)
        return;
    m_patterns.setMapping(position, m_document->mapping(project));
    tellChange();
    readPending();
}

/// Once for all projects of a step.
void ReviewWork::tellChange()
{
    if (std::exchange(m_changeTold, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_changeTold = false;
        Q_EMIT patternsChanged();
    });
}

void ReviewWork::readPending()
{
    if (m_pending || m_patterns.pendingLines() == 0)
        return;
    const auto lines = m_patterns.pending();
    const ReleaseMappingC release = m_document->release();
    const QString sourceRoot = m_document->catalogRoots().source;
    m_pending = run([this, lines, release, sourceRoot](Job &job) {
        using Read = std::vector<std::pair<int, std::vector<OpenPair>>>;
        const auto read = std::make_shared<Read>();
        for (const auto &[position, proposals] : lines) {
            QStringList errors;
            read->emplace_back(
                position, VelkRelease::readOpenPairs(sourceRoot, release.mappingAt(position),
                                                     release, proposals, errors, &job.cancelled));
        }
        post(job, [this, read] {
            m_pending.reset();
            for (const auto &[position, pairs] : *read)
                m_patterns.add(position, pairs);
            tellChange();
            readPending();
        });
    });
}

ProjectId ReviewWork::projectAt(int position) const
{
    const PrjMappingC mapping = m_document->release().mappingAt(position);
    return mapping.isValid() ? ProjectId::of(mapping) : ProjectId();
}

int ReviewWork::positionOf(const ProjectId &project) const
{
    return m_document->release().findPosition(project.path, project.version, project.tabVersion);
}

LineRef ReviewWork::lineAt(const Place &place) const
{
    return {projectAt(place.project), place.line};
}

ReviewWork::Place ReviewWork::placeOf(const LineRef &line) const
{
    return {positionOf(line.project), line.line};
}

void ReviewWork::explain(const LineRef &line)
{
    if (m_explaining)
        m_explaining->cancelled = true;
    m_explaining.reset();
    if (!line.isValid() || !m_document->isOpen())
        return;
    if (!m_comparer || m_comparer->project != line.project) {
        m_comparer = std::make_shared<Comparer>();
        m_comparer->project = line.project;
        m_comparer->mapping = m_document->mapping(line.project);
        m_comparer->head = m_document->release().head();
        m_comparer->sourceRoot = m_document->catalogRoots().source;
    }
    m_explaining = run([this, comparer = m_comparer, line](Job &job) {
        if (job.cancelled)
            return;
        const LineExplanation explanation = comparer->explain(line.line);
        post(job, [this, explanation] {
            m_explaining.reset();
            Q_EMIT explained(explanation);
        });
    });
}

std::shared_ptr<ReviewWork::Job> ReviewWork::run(const std::function<void(Job &)> &work)
{
    reap();
    auto job = std::make_shared<Job>();
    job->number = ++m_lastJob;
    m_jobs.push_back(job);
    // The thread ends before its job goes, for that is where it is joined.
    job->thread = std::jthread([work, at = job.get()] {
        work(*at);
        at->done = true;
    });
    return job;
}

void ReviewWork::post(Job &job, const std::function<void()> &take)
{
    const auto find = [this, number = job.number] {
        const auto found = std::find_if(m_jobs.begin(), m_jobs.end(), [number](const auto &known) {
            return known->number == number;
        });
        return found == m_jobs.end() ? nullptr : *found;
    };
    QMetaObject::invokeMethod(
        this,
        [find, take] {
            const std::shared_ptr<Job> known = find();
            if (known && !known->cancelled)
                take();
        },
        Qt::QueuedConnection);
}

void ReviewWork::reap()
{
    std::erase_if(m_jobs, [this](const std::shared_ptr<Job> &job) {
        return job->done && job != m_reading && job != m_pending && job != m_explaining;
    });
}
