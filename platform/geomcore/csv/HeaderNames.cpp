#include "HeaderNames.h"

#include <QHash>
#include <QSet>

namespace VKTab {

QStringList uniqueColumnNames(const QStringList &header)
{
    const QSet<QString> written(header.cbegin(), header.cend());
    QSet<QString> used;
    QHash<QString, int> suffixes; // the last one tried for a name
    QStringList names;
    for (const QString &original : header) {
        const QString base = original.isEmpty()
                                 ? QStringLiteral("Column") + QString::number(names.size() + 1)
                                 : original;
        QString name = base;
        const bool keep = !original.isEmpty() && !used.contains(original);
        if (!keep && (used.contains(name) || written.contains(name))) {
            int &suffix = suffixes[base];
            suffix = qMax(suffix, 1);
            do {
                name = base + u'_' + QString::number(++suffix);
            } while (used.contains(name) || written.contains(name));
        }
        used.insert(name);
        names.append(name);
    }
    return names;
}

} // namespace VKTab
