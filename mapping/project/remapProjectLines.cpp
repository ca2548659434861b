#include "remapProjectLines.h"

#include <gui/progress/DefaultObserverDelegate.h>
#include <release/assign/assignProjectLines.h>

void remapProjectLines(const QString &sourcePath, PrjMappingC &mapping, VKTab::Content &table,
                       const ReleaseMappingC &release, const QStringList &conditionVariables,
                       bool force)
{
    DefaultObserverDelegate observer;
    observer.activate(1);
    VelkRelease::assignProjectLines(sourcePath, mapping, table, release, conditionVariables, force);
}
