#include "AgreedReplacement.h"

bool AgreedReplacement::holdsIn(const QString &sourcePath) const
{
    if (folder.isEmpty())
        return true;
    QString path = sourcePath;
    path.replace(u'\\', u'/');
    return path == folder ||
           (path.startsWith(folder) && (folder.endsWith(u'/') || path.at(folder.size()) == u'/'));
}
