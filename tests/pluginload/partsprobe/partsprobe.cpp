// The plug-in's parts in a library of the same kind that shows what the plug-in hides.

#include <linkdbgui/Loggers.h>
#include <mapping/project/ignoreMarker.h>

extern "C" Q_DECL_EXPORT StaticLoggerRecord *plmLoggerOfParts()
{
    return &plmDocumentsLogger();
}

extern "C" Q_DECL_EXPORT const QString *ignoreMarkerOfParts()
{
    return &ignoreMarker();
}
