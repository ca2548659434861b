#pragma once

#include "PLinkDbC.h"

#include <QDateTime>
#include <QList>
#include <QVariantMap>

class LinkDbConnection;

/// Rows that a DELETE took out of the tables of documents or of their hierarchy, as the link
/// database's journal keeps them.
struct VELKGEOMCORE_EXPORT LinkDbDeletedRow
{
    qint64 id = 0;
    QDateTime time; ///< UTC
    QString user;
    QString batch; ///< the same for all rows of one statement
    QString table; ///< physical name
    QVariantMap values;
};

namespace LinkDbDeletedRows {

/// The youngest first, at most \a limit.
[[nodiscard]] VELKGEOMCORE_EXPORT QList<LinkDbDeletedRow> list(PLinkDbC &linkDb, int limit = 1000);
/// Writes rows back and takes them out of the journal, in the open transaction; commit() is the
/// caller's. All or none; false with PLinkDbC::lastError(). Columns that the table has no more are
/// left out.
VELKGEOMCORE_EXPORT bool restore(PLinkDbC &linkDb, const QList<LinkDbDeletedRow> &rows);

/// Before a DELETE: notes the rows that it will take, by its own condition. True for other
/// statements. On the connection's thread, inside of changeAll().
[[nodiscard]] bool note(LinkDbConnection &connection, const QString &statement);

} // namespace LinkDbDeletedRows
