#include "NameRank.h"

#include <QString>
#include <QStringList>

#include <utility>

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

/// Runs of letters and runs of digits, in lower case.
QStringList runsOf(const QString &path)
{
    QString file = path.mid(path.lastIndexOf(u'/') + 1);
    const qsizetype ending = file.lastIndexOf(u'.');
    if (ending > 0)
        file.truncate(ending);
    QStringList runs;
    QChar before;
    for (const QChar c : std::as_const(file)) {
        const bool goesOn = c.isLetter() ? before.isLetter() : c.isNumber() && before.isNumber();
        if (goesOn)
            runs.last() += c.toLower();
        else if (c.isLetterOrNumber())
            runs.append(c.toLower());
        before = c;
    }
    return runs;
}

} // namespace

NameRank nameRank(QStringView sourcePath, QStringView targetPath)
{
    const QString source = belowCatalog(sourcePath);
    const QString target = belowCatalog(targetPath);
    if (source == target)
        return NameRank::Path;
    const QStringList name = runsOf(source);
    return !name.isEmpty() && name == runsOf(target) ? NameRank::Name : NameRank::Other;
}

} // namespace Mapper
