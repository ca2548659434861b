#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include <QStringList>

class PrjMappingC;
class ReleaseMappingC;
namespace VKTab {
class Content;
}

/// Assigns the lines of a project's table anew and replaces \a mapping by the result. Of
/// \a release only the two dates are used. Of the value-range variables only those named in
/// \a conditionVariables are walked value by value; the first combination that finds a target
/// settles a line. With \a force only confirmed assignments are kept, else all. Runs synchronously
/// and shows progress; works on any thread.
VELKLINKDBGUI_EXPORT void remapProjectLines(const QString &sourcePath, PrjMappingC &mapping,
                                            VKTab::Content &table, const ReleaseMappingC &release,
                                            const QStringList &conditionVariables, bool force);
