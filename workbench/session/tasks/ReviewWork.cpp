#include "ReviewWork.h"

#include "ProjectComparer.h"

#include <workbench/session/change/TargetHead.h>
#include <workbench/session/document/MappingDocument.h>

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <utility>

using VelkRelease::DifferencePatterns;
using VelkRelease::OpenPair;

namespace {

constexpr qint64 TellEvery = 100; // milliseconds

constexpr int RefreshAfter = 1500; // milliseconds without a decision

/// The mappings differ in their lines alone.
bool haveSameRules(const PrjMappingC &a, const PrjMappingC &b)
{
    if (a.countTargets() != b.countTargets())
        return false;
    for (int i = 0; i < a.countTargets(); ++i) {
        if (!TargetHead::equal(a.targetAt(i), b.targetAt(i)))
            return false;
    }
    return true;
}

} // namespace

ReviewWork::ReviewWork(MappingDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_refresh(new QTimer(this))
{
    m_refresh->setSingleShot(true);
    m_refresh->setInterval(RefreshAfter);
    connect(m_refresh, &QTimer::timeout, this, &ReviewWork::refreshComparer);
    connect(document, &MappingDocument::mappingChanged, this, &ReviewWork::onMappingChanged);
    connect(document, &MappingDocument::releaseReplaced, this, &ReviewWork::readAnew);
    connect(document, &MappingDocument::aboutToClose, this, &ReviewWork::stop);
    connect(document, &MappingDocument::closed, this, &ReviewWork::stop);
}

ReviewWork::~ReviewWork()
{
    dropComparer();
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
    dropComparer();
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
    dropComparer();
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
    if (m_comparer && m_comparer->project() == project) {
        if (haveSameRules(m_comparer->mapping(), m_document->mapping(project)))
            m_refresh->start();
        else
            dropComparer();
    }
    if (!m_wanted || !m_hasPatterns)
        return;
    const int position = positionOf(project);
    if (position < 0)
        return;
    m_patterns.setMapping(position, m_document->mapping(project));
    tellChange();
    readPending();
}

void ReviewWork::dropComparer()
{
    m_refresh->stop();
    if (m_refreshing)
        m_refreshing->cancelled = true;
    m_refreshing.reset();
    for (std::shared_ptr<ProjectComparer> *comparer : {&m_comparer, &m_fresh}) {
        if (*comparer)
            (*comparer)->end();
        comparer->reset();
    }
}

std::shared_ptr<ProjectComparer> ReviewWork::makeComparer(const ProjectId &project) const
{
    return std::make_shared<ProjectComparer>(project, m_document->mapping(project),
                                             m_document->release().head(),
                                             m_document->catalogRoots().source);
}

/// Works out anew what the decisions changed, while the former answers still serve.
void ReviewWork::refreshComparer()
{
    if (!m_comparer || m_asked.project != m_comparer->project())
        return;
    if (m_fresh)
        m_fresh->end();
    if (m_refreshing)
        m_refreshing->cancelled = true;
    m_fresh = makeComparer(m_asked.project);
    m_refreshing = run([this, fresh = m_fresh, asked = m_asked](Job &job) {
        const LineExplanation explanation = fresh->explain(asked.line, fresh->mapping());
        post(job, [this, fresh, explanation] {
            m_refreshing.reset();
            m_fresh.reset();
            m_comparer = fresh;
            if (m_asked == explanation.line)
                Q_EMIT explained(explanation);
            else
                explain(m_asked);
        });
    });
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
    m_asked = line;
    if (!line.isValid() || !m_document->isOpen())
        return;
    if (!m_comparer || m_comparer->project() != line.project) {
        dropComparer();
        m_comparer = makeComparer(line.project);
    }
    const PrjMappingC current = m_document->mapping(line.project);
    m_explaining = run([this, comparer = m_comparer, line, current](Job &job) {
        if (job.cancelled)
            return;
        const LineExplanation explanation = comparer->explain(line.line, current);
        post(job, [this, explanation] {
            m_explaining.reset();
            Q_EMIT explained(explanation);
        });
    });
}

void ReviewWork::pair(const ProjectId &project, const QList<int> &lines)
{
    if (m_explaining)
        m_explaining->cancelled = true;
    m_explaining.reset();
    m_asked = LineRef();
    if (!project.isValid() || lines.isEmpty() || !m_document->isOpen())
        return;
    if (!m_comparer || m_comparer->project() != project) {
        dropComparer();
        m_comparer = makeComparer(project);
    }
    const PrjMappingC current = m_document->mapping(project);
    m_explaining = run([this, comparer = m_comparer, lines, current](Job &job) {
        const LinePairs pairs = comparer->pair(lines, current, job.cancelled);
        post(job, [this, pairs] {
            m_explaining.reset();
            Q_EMIT paired(pairs);
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
        return job->done && job != m_reading && job != m_pending && job != m_explaining &&
               job != m_refreshing;
    });
}
