#pragma once

#include <release/assign/CatalogReader.h>
#include <release/VelkReleaseGlobal.h>

#include <QHash>
#include <QString>

#include <memory>

namespace VelkRelease {

/// Compares lines of target tables by what they say: two lines are the same if all variables but
/// the line's numbers and internal ones are equal, numbers by value. Reads each table once, at the
/// first question about it; of a table that cannot be read no lines are the same.
class VELKRELEASE_EXPORT SameLines
{
public:
    /// \a targetRoot holds the catalog directories of the new release.
    explicit SameLines(const QString &targetRoot);

    [[nodiscard]] bool areSame(const QString &targetPath, int line, int otherLine);

private:
    QString m_root;
    QHash<QString, std::shared_ptr<const VKTab::TableData>> m_tables;
};

} // namespace VelkRelease
