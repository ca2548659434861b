#include "FolderPattern.h"

#include <QList>
#include <QStringList>
#include <QVarLengthArray>

#include <algorithm>

namespace VelkRelease {

namespace {

QList<QStringView> pieces(const QString &path)
{
    return QStringView(path).split(u'/', Qt::SkipEmptyParts);
}

/// Whether there is a name that both patterns mean. A name without wildcards means itself.
bool meet(QStringView one, QStringView other)
{
    // Of the row before and this one: whether the rest of one from here meets that of the other.
    QVarLengthArray<bool, 64> rests(other.size() + 1, false);
    for (qsizetype i = one.size(); i >= 0; --i) {
        bool diagonal = false; // of the row before, one further
        for (qsizetype j = other.size(); j >= 0; --j) {
            const bool below = rests[j];
            const bool isEndOne = i == one.size();
            const bool isEndOther = j == other.size();
            bool meets = isEndOne && isEndOther;
            if (!isEndOne && one[i] == u'*')
                meets = below || (!isEndOther && rests[j + 1]);
            else if (!isEndOther && other[j] == u'*')
                meets = rests[j + 1] || (!isEndOne && below);
            else if (!isEndOne && !isEndOther)
                meets = diagonal && (one[i] == other[j] || one[i] == u'?' || other[j] == u'?');
            rests[j] = meets;
            diagonal = below;
        }
    }
    return rests[0];
}

} // namespace

QString FolderPattern::cleaned(const QString &pattern)
{
    return pattern.split(u'/', Qt::SkipEmptyParts).join(u'/');
}

bool FolderPattern::holds(const QString &pattern, const QString &path)
{
    const QList<QStringView> folders = pieces(pattern);
    const QList<QStringView> names = pieces(path);
    return !folders.isEmpty() && folders.size() <= names.size() &&
           std::equal(folders.begin(), folders.end(), names.begin(), meet);
}

bool FolderPattern::overlap(const QString &one, const QString &other)
{
    const QList<QStringView> left = pieces(one);
    const QList<QStringView> right = pieces(other);
    const qsizetype common = std::min(left.size(), right.size());
    return common > 0 && std::equal(left.begin(), left.begin() + common, right.begin(), meet);
}

} // namespace VelkRelease
