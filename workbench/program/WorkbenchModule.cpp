#include <workbench/window/WorkbenchRun.h>

#include <QtCore/qglobal.h>

/// What velkworkbench looks up once the plug-in library is loaded; the result is its exit status.
extern "C" Q_DECL_EXPORT int velkWorkbenchRun(PLinkDbGuiI *plugin, const StartOptions *options)
{
    return runWorkbench(plugin, *options);
}
