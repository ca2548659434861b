#include "FilterWork.h"

#include <core/files/EditLock.h>
#include <release/share/SharedMapping.h>
#include <workbench/session/common/ProjectOrder.h>
#include <workbench/session/document/MappingDocument.h>

#include <QTimer>

#include <utility>

using VelkRelease::LineFilter;
using VelkRelease::LineTraits;

FilterWork::FilterWork(MappingDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_told(new QTimer(this))
{
    m_told->setSingleShot(true);
    m_told->setInterval(0);
    connect(m_told, &QTimer::timeout, this, &FilterWork::linesChanged);
    connect(document, &MappingDocument::mappingChanged, this, &FilterWork::onMappingChanged);
    connect(document, &MappingDocument::releaseReplaced, this, &FilterWork::readAnew);
    connect(document, &MappingDocument::aboutToClose, this, &FilterWork::stop);
    connect(document, &MappingDocument::closed, this, &FilterWork::stop);
}

FilterWork::~FilterWork()
{
    if (m_job)
        m_job->cancelled = true;
}

void FilterWork::setFilter(const LineFilter &filter)
{
    if (m_filter == filter)
        return;
    m_filter = filter;
    if (!m_isKnown && !m_job)
        start();
    Q_EMIT changed();
}

void FilterWork::setCarried(const VelkRelease::CarriedLines &carried)
{
    m_carried = carried;
    if (!m_isKnown)
        return;
    m_traits.setCarried(carried);
    Q_EMIT changed();
}

bool FilterWork::asksForMore() const
{
    LineFilter more = m_filter;
    if (!more.of(VelkRelease::LineTrait::State).isNot)
        more.of(VelkRelease::LineTrait::State) = {};
    return !more.isEmpty();
}

void FilterWork::setWanted(bool wanted)
{
    m_isWanted = wanted;
    if (wanted && !m_isKnown && !m_job)
        start();
}

void FilterWork::readAnew()
{
    stop();
    start();
}

void FilterWork::stop()
{
    if (m_job) {
        m_job->cancelled = true;
        m_job.reset(); // waits for its end
        Q_EMIT readingChanged();
    }
    ++m_jobNumber;
    m_errors.clear();
    m_traits = LineTraits();
    m_told->stop();
    if (std::exchange(m_isKnown, false))
        Q_EMIT changed();
}

void FilterWork::start()
{
    if (!m_document->isOpen() || (!m_isWanted && !asksForMore()))
        return;
    const ReleaseMappingC release = m_document->release();
    const QString file = m_document->mappingFile();
    m_job = std::make_unique<Job>();
    const VelkRelease::OpenReasonOptions options{
        .sourceRoot = m_document->catalogRoots().source,
        .isOthers = VelkRelease::SharedMapping(file).isInOthersFolder(),
        .cancelled = &m_job->cancelled};
    const int number = ++m_jobNumber;
    m_job->thread = std::jthread([this, release, file, options, number] {
        QStringList errors;
        std::optional<LineTraits> read = LineTraits::compute(release, options, file, &errors);
        if (!read)
            return;
        const auto traits = std::make_shared<LineTraits>(*std::move(read));
        QMetaObject::invokeMethod(
            this,
            [this, number, traits, errors] {
                if (number == m_jobNumber)
                    take(traits, errors);
            },
            Qt::QueuedConnection);
    });
    Q_EMIT readingChanged();
}

void FilterWork::take(const std::shared_ptr<LineTraits> &traits, const QStringList &errors)
{
    m_job.reset();
    m_traits = *traits;
    m_errors = errors;
    m_isKnown = true;
    m_traits.setCarried(m_carried);
    // What was decided meanwhile.
    const ReleaseMappingC release = m_document->release();
    for (int i = 0; i < release.countMappings(); ++i)
        m_traits.setMapping(i, release.mappingAt(i), EditLock::self().user);
    Q_EMIT readingChanged();
    Q_EMIT changed();
}

void FilterWork::onMappingChanged(const ProjectId &project)
{
    if (!m_isKnown)
        return;
    const ReleaseMappingC release = m_document->release();
    const int position = release.findPosition(project.path, project.version, project.tabVersion);
    if (position < 0 || position >= m_traits.projectCount())
        return readAnew();
    m_traits.setMapping(position, release.mappingAt(position), EditLock::self().user);
    m_told->start();
}

QHash<ProjectId, std::vector<int>> FilterWork::lines() const
{
    QHash<ProjectId, std::vector<int>> result;
    if (!isActive())
        return result;
    const ReleaseMappingC release = m_document->release();
    for (int i = 0; i < m_traits.projectCount(); ++i) {
        const std::vector<int> lines = m_traits.linesOf(i, m_filter);
        if (!lines.empty())
            result.insert(ProjectId::of(release.mappingAt(i)), lines);
    }
    return result;
}

FilterWork::Numbers FilterWork::numbers() const
{
    Numbers numbers;
    for (int i = 0; isActive() && i < m_traits.projectCount(); ++i) {
        const int lines = m_traits.count(i, m_filter);
        numbers.lines += lines;
        numbers.projects += lines > 0 ? 1 : 0;
    }
    return numbers;
}

bool FilterWork::accepts(const LineRef &line) const
{
    const int position = m_document->release().findPosition(line.project.path, line.project.version,
                                                            line.project.tabVersion);
    return isActive() && position >= 0 && position < m_traits.projectCount() &&
           m_traits.accepts(position, line.line, m_filter);
}

ProjectId FilterWork::nextProject(const ProjectId &from, bool forward) const
{
    if (!isActive())
        return {};
    const ProjectOrder &order = m_document->projects();
    const ReleaseMappingC release = m_document->release();
    const std::optional<int> next =
        order.next(order.placeOf(release, from), forward, [&](int place) {
            const int position = order.positionAt(place);
            return position < m_traits.projectCount() && m_traits.count(position, m_filter) > 0;
        });
    return next ? ProjectId::of(release.mappingAt(order.positionAt(*next))) : ProjectId();
}
