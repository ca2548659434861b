#include "NameRank.h"

#include <QString>

namespace Mapper {

namespace {

QString belowCatalog(QStringView path)
{
    QString text = path.toString();
    text.replace(u'\\', u'/');
    while (text.startsWith(u'/'))
        text.remove(0, 1);
    return text.mid(text.indexOf(u'/') + 1);
}

QString plainName(const QString &path)
{
    QString file = path.mid(path.lastIndexOf(u'/') + 1);
    const qsizetype ending = file.lastIndexOf(u'.');
    if (ending > 0)
        file.truncate(ending);
    QString plain;
    for (const QChar c : file) {
        if (c.isLetterOrNumber())
            plain += c.toLower();
    }
    return plain;
}

} // namespace

NameRank nameRank(QStringView sourcePath, QStringView targetPath)
{
    const QString source = belowCatalog(sourcePath);
    const QString target = belowCatalog(targetPath);
    if (source == target)
        return NameRank::Path;
    const QString name = plainName(source);
    return !name.isEmpty() && name == plainName(target) ? NameRank::Name : NameRank::Other;
}

} // namespace Mapper
