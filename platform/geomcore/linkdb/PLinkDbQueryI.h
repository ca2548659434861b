#pragma once

#include "PLinkDbRecordC.h"

#include <core/text/PRefPtr.h>

/// Result of a SELECT, read as a whole: it outlives transactions and the connection, and no lock of
/// the database is held for it. Reading from it is safe on any thread.
class VELKGEOMCORE_EXPORT PLinkDbQueryI : public PRefObject
{
public:
    /// False if the statement failed; there are no rows then.
    [[nodiscard]] virtual bool isValid() const = 0;
    [[nodiscard]] virtual std::shared_ptr<const LinkDbColumns> columns() const = 0;
    [[nodiscard]] virtual qsizetype rowCount() const = 0;
    /// Values of a row in the order of the columns.
    [[nodiscard]] virtual const QVariantList &row(qsizetype index) const = 0;
};
