#include "HeaderNames.h"

#include <QSet>

namespace VKTab {

QStringList uniqueColumnNames(const QStringList &header)
{
    const QSet<QString> written(header.cbegin(), header.cend());
    QSet<QString> used;
    QStringList names;
    for (const QString &original : header) {
        QString name = original;
        if (name.isEmpty())
            name = QStringLiteral("Column%1").arg(names.size() + 1);
        const QString base = name;
        const bool keep = !original.isEmpty() && !used.contains(original);
        for (int i = 2; !keep && (used.contains(name) || written.contains(name)); ++i)
            name = QStringLiteral("%1_%2").arg(base).arg(i);
        used.insert(name);
        names.append(name);
    }
    return names;
}

} // namespace VKTab
