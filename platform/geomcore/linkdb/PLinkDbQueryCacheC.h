#pragma once

#include "PLinkDbQueryI.h"

/// Walks once over the rows of a query, in the database's order.
class VELKGEOMCORE_EXPORT PLinkDbQueryCacheC
{
public:
    /// Null and a failed query have no rows.
    explicit PLinkDbQueryCacheC(const PRefPtr<PLinkDbQueryI> &query);

    /// To the first row, then to the next; false at the end.
    bool next();
    /// The current row; empty before the first and after the last.
    [[nodiscard]] PLinkDbRecordC record() const;
    /// Of the current row; invalid for a column that is not there.
    [[nodiscard]] QVariant value(int column) const;

private:
    [[nodiscard]] bool isOnRow() const;

    PRefPtr<PLinkDbQueryI> m_query;
    qsizetype m_row = -1;
};
