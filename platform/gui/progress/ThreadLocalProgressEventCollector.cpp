#include "ThreadLocalProgressEventCollector.h"

ThreadLocalProgressEventCollector::ThreadLocalProgressEventCollector(
    ProgressEventAccumulatorBase *accumulator, bool nested)
    : m_accumulator(accumulator)
    , m_nested(nested)
{
}

ThreadLocalProgressEventCollector::~ThreadLocalProgressEventCollector()
{
    deactivate();
}

void ThreadLocalProgressEventCollector::post(PProgressEvent event, const PProgressInfo &info)
{
    if (m_accumulator && (m_nested || info.depth == 0))
        m_accumulator->post(event, info);
}

void ThreadLocalProgressEventCollector::progressStarted(const PProgressInfo &info)
{
    post(PProgressEvent::Started, info);
}

void ThreadLocalProgressEventCollector::progressChanged(const PProgressInfo &info)
{
    post(PProgressEvent::Changed, info);
}

void ThreadLocalProgressEventCollector::progressText(const PProgressInfo &info)
{
    post(PProgressEvent::Text, info);
}

void ThreadLocalProgressEventCollector::progressDone(const PProgressInfo &info)
{
    post(PProgressEvent::Done, info);
}
