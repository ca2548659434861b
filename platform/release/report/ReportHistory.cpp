#include "ReportHistory.h"

#include <release/history/DecisionHistory.h>
#include <release/history/SampleHistory.h>

namespace VelkRelease {

namespace {

bool addSamples(ReleaseReport &report, const QString &mappingFile, QString *error)
{
    const auto samples = readJudgedSamples(mappingFile, error);
    if (!samples)
        return false;
    for (const JudgedSample &sample : *samples) {
        if (sample.release == report.sourceDate)
            report.samples.push_back({sample.time, sample.judge, sample.lines, sample.judged,
                                      sample.right, sample.bound});
    }
    return true;
}

/// The lines of one step come one after the other.
bool isSameStep(const ReleaseReport::Decision &known, const DecisionHistory::Decision &next)
{
    return known.time == next.time && known.who == next.author && known.what == next.action &&
           known.reason == next.reason;
}

} // namespace

bool addHistory(ReleaseReport &report, const QString &mappingFile, QString *error)
{
    DecisionHistory history;
    const bool isRead = history.read(mappingFile, error);
    for (const DecisionHistory::Decision &decision : history.decisions()) {
        if (decision.release != report.sourceDate)
            continue;
        if (!report.decisions.empty() && isSameStep(report.decisions.back(), decision))
            ++report.decisions.back().lines;
        else
            report.decisions.push_back(
                {decision.time, decision.author, decision.action, decision.reason, 1});
    }
    return addSamples(report, mappingFile, error) && isRead;
}

} // namespace VelkRelease
