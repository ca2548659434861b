#include "PathAlias.h"

#include <QHash>
#include <QReadWriteLock>

#include <atomic>

namespace {

struct Aliases
{
    std::atomic_bool any = false; // without one nothing is locked
    QReadWriteLock lock;
    QHash<QString, QString> directories; ///< by begin, with "/" between components
};

Aliases &aliases()
{
    static Aliases all;
    return all;
}

/// With "/" between components and without braces round a reference at the begin.
QString comparable(const QString &path)
{
    QString text = path;
    text.replace(u'\\', u'/');
    const qsizetype brace = text.startsWith(u"${") ? text.indexOf(u'}') : -1;
    return brace < 0 ? text : u'$' + text.mid(2, brace - 2) + text.mid(brace + 1);
}

bool isBegin(const QString &begin, const QString &path)
{
    return path.startsWith(begin) && (path.size() == begin.size() || path.at(begin.size()) == u'/');
}

} // namespace

void PathAlias::set(const QString &begin, const QString &directory)
{
    Aliases &all = aliases();
    const QWriteLocker guard(&all.lock);
    if (directory.isEmpty())
        all.directories.remove(begin);
    else
        all.directories.insert(begin, directory);
    all.any = !all.directories.isEmpty();
}

PString PathAlias::replacedIn(const PString &path)
{
    Aliases &all = aliases();
    if (!all.any || !path.startsWith(u'$'))
        return path;
    const QString text = comparable(path);
    const QReadLocker guard(&all.lock);
    for (auto it = all.directories.cbegin(); it != all.directories.cend(); ++it)
        if (isBegin(it.key(), text))
            return *it + text.mid(it.key().size());
    return path;
}
