#include "ReportHistory.h"

#include <release/history/CarriedHistory.h>
#include <release/history/DecisionHistory.h>
#include <release/history/SampleHistory.h>

#include <QFileInfo>

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
                                      sample.right, sample.bound, sample.drawn});
    }
    return true;
}

bool addCarried(ReleaseReport &report, const ReleaseMappingC &release, const QString &mappingFile,
                QString *error)
{
    const auto steps = readCarriedSteps(mappingFile, error);
    if (!steps)
        return false;
    const CarriedLines carried(*steps, report.sourceDate);
    for (const CarriedStep &step : *steps) {
        if (step.release == report.sourceDate)
            report.carried.push_back({step.time, step.author, QFileInfo(step.former).fileName(),
                                      step.formerTarget, int(step.lines.size()), 0});
    }
    for (int i = 0; i < release.countMappings(); ++i) {
        const PrjMappingC mapping = release.mappingAt(i);
        for (const int line : carried.linesOf(mapping)) {
            const auto step = carried.stepOf(mapping, line) - carried.steps().data();
            ++report.carried[std::size_t(step)].standing;
        }
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

bool addHistory(ReleaseReport &report, const ReleaseMappingC &release, const QString &mappingFile,
                QString *error)
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
    return addSamples(report, mappingFile, error) &&
           addCarried(report, release, mappingFile, error) && isRead;
}

} // namespace VelkRelease
