#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QList>
#include <QString>

namespace VKTab {
class Content;
}

namespace VelkRelease {

/// What some lines of a table have in common.
struct CommonValues
{
    struct Entry
    {
        QString name;
        QString value;  ///< in plain notation
        QString clause; ///< as a condition
        int lines = 0;  ///< of the whole table that have it
    };
    /// Values that all lines have and not all of the table, those that fewest have first.
    QList<Entry> entries;
    /// The fewest of them that no further one makes more telling, joined; empty if there is none.
    /// It parses, and holds for all the lines.
    QString condition;
    int taken = 0; ///< lines of the whole table that the condition holds for
};

/// "NAME .EQ. 5", "NAME .EQ. 'it''s'": a condition on one value. A number stands as it is.
[[nodiscard]] VELKRELEASE_EXPORT QString equalsClause(const QString &name, const QString &value,
                                                      bool numeric);

/// \a lines: numbers of lines of the table; unknown ones do not count. Plain and computed variables
/// are looked at, hidden ones too. Numbers are equal by value, texts as they stand.
[[nodiscard]] VELKRELEASE_EXPORT CommonValues commonValues(const VKTab::Content &table,
                                                           const QList<int> &lines);

} // namespace VelkRelease
