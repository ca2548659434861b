#include "remapProjectLines.h"

#include "tellUnreadableTargets.h"

#include <core/progress/PProgress.h>
#include <core/text/PString.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <release/assign/assignProjectLines.h>

#include <optional>

void remapProjectLines(const QString &sourcePath, PrjMappingC &mapping, VKTab::Content &table,
                       const ReleaseMappingC &release, const QStringList &conditionVariables,
                       bool force)
{
    DefaultObserverDelegate observer;
    std::optional<PProgress> progress;
    VelkRelease::LineSteps steps;
    steps.begin = [&](int lines) {
        observer.activate(PProgressObserverBase::Thread);
        progress.emplace(0, double(lines), 1.0, false, false);
        progress->setText(PString::translate("Zeilen werden neu zugewiesen", "VelkLinkDbGui"));
    };
    steps.beforeLine = [&] {
        progress->nextStep();
    };
    const VelkRelease::AssignmentOutcome outcome = VelkRelease::assignProjectLines(
        sourcePath, mapping, table, release, conditionVariables, force, nullptr, &steps);
    if (progress)
        progress->done();
    if (outcome.isLeft)
        tellUnreadableTargets(outcome.unreadableTargets);
}
