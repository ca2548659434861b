#include "RangeRun.h"

#include <QCoreApplication>
#include <QThread>
#include <QThreadPool>

namespace {

VarsetMappingRunnable::Task withAccumulator(VarsetMappingRunnable::Task task,
                                            ProgressEventAccumulator *accumulator)
{
    task.accumulator = accumulator;
    return task;
}

} // namespace

RangeRun::RangeRun(const VarsetMappingRunnable::Task &task)
    : m_runnable(withAccumulator(task, &m_accumulator))
{
    m_runnable.setAutoDelete(false);
}

void RangeRun::exec()
{
    QThreadPool pool;
    pool.start(&m_runnable, 0);
    while (!pool.waitForDone(0)) {
        QCoreApplication::processEvents();
        QThread::msleep(100);
    }
}
