#include "ProgressEventAccumulator.h"

#include "ProgressDelivery.h"

#include <core/progress/PProgressObserverNode.h>

#include <QBasicTimer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QList>
#include <QMutex>
#include <QTimerEvent>

namespace {

struct Queued
{
    PProgressEvent event;
    PProgressInfo info;
};

bool isIntermediate(const Queued &queued)
{
    return queued.event == PProgressEvent::Changed || queued.event == PProgressEvent::Text;
}

} // namespace

/// Lives on the thread of the observer; its queue is filled by all.
class ProgressEventAccumulatorPrivate : public QObject
{
public:
    ProgressEventAccumulatorPrivate(int milliseconds, int largestSize)
        : observer(PProgressObserverNode::current())
        , interval(milliseconds)
        , limit(largestSize)
    {
    }

    void add(PProgressEvent event, const PProgressInfo &info);
    void flush();
    bool event(QEvent *event) override;

    const std::shared_ptr<PProgressObserverNode> observer;

private:
    [[nodiscard]] qsizetype lastOf(quint64 id) const;
    bool join(PProgressEvent event, const PProgressInfo &info);
    void keepLimit();

    const int interval;
    const int limit;
    QMutex mutex;
    QList<Queued> queue;
    bool scheduled = false;
    QElapsedTimer sinceFlush;
    QBasicTimer timer;
};

qsizetype ProgressEventAccumulatorPrivate::lastOf(quint64 id) const
{
    qsizetype i = queue.size() - 1;
    while (i >= 0 && queue[i].info.id != id)
        --i;
    return i;
}

/// A later state replaces an earlier one. A nested progress that began and ended since the last
/// telling is of interest to nobody.
bool ProgressEventAccumulatorPrivate::join(PProgressEvent event, const PProgressInfo &info)
{
    if (event == PProgressEvent::Started)
        return false; // and no search of the whole queue for what cannot be there
    qsizetype last = lastOf(info.id);
    if (last < 0)
        return false;
    if (event != PProgressEvent::Done) {
        if (!isIntermediate(queue[last]))
            return false;
        const bool text =
            event == PProgressEvent::Text || queue[last].event == PProgressEvent::Text;
        queue[last] = {text ? PProgressEvent::Text : PProgressEvent::Changed, info};
        return true;
    }
    if (isIntermediate(queue[last])) {
        queue.removeAt(last);
        last = lastOf(info.id);
    }
    if (last < 0 || info.depth == 0)
        return false;
    queue.removeAt(last);
    return true;
}

void ProgressEventAccumulatorPrivate::keepLimit()
{
    for (qsizetype i = 0; limit >= 0 && queue.size() > limit && i < queue.size();) {
        if (isIntermediate(queue[i]))
            queue.removeAt(i);
        else
            ++i;
    }
}

void ProgressEventAccumulatorPrivate::add(PProgressEvent event, const PProgressInfo &info)
{
    const QMutexLocker lock(&mutex);
    if (!join(event, info)) {
        queue.append({event, info});
        keepLimit();
    }
    if (!scheduled && !queue.isEmpty()) {
        scheduled = true;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

bool ProgressEventAccumulatorPrivate::event(QEvent *event)
{
    if (event->type() == QEvent::Timer) {
        timer.stop();
        flush();
        return true;
    }
    if (event->type() != QEvent::User)
        return QObject::event(event);
    const qint64 wait = sinceFlush.isValid() ? interval - sinceFlush.elapsed() : 0;
    if (wait > 0)
        timer.start(int(wait), this);
    else
        flush();
    return true;
}

void ProgressEventAccumulatorPrivate::flush()
{
    QMutexLocker lock(&mutex);
    const QList<Queued> events = std::exchange(queue, {});
    scheduled = false;
    lock.unlock();
    sinceFlush.start();
    const ProgressDelivery delivery;
    for (const Queued &queued : events)
        observer->tell(queued.event, queued.info);
}

ProgressEventAccumulator::ProgressEventAccumulator(int milliseconds, int limit)
    : d(std::make_unique<ProgressEventAccumulatorPrivate>(milliseconds, limit))
{
}

ProgressEventAccumulator::~ProgressEventAccumulator()
{
    if (d->observer)
        d->flush();
}

void ProgressEventAccumulator::post(PProgressEvent event, const PProgressInfo &info)
{
    if (d->observer)
        d->add(event, info);
}
