#pragma once

#include <geomcore/records/PrjMappingC.h>
#include <geomcore/table/Content.h>

#include <QString>
#include <QVariant>
#include <QVector>

#include <vector>

/// What the editor shows of source lines in its status column.
class LineStates
{
public:
    enum State : quint8 { Assigned, Confirmed, ToCheck, NotFound, Expired, Conflicted };

    /// Values of the status key "CatalogMapper", by state; empty for Assigned.
    [[nodiscard]] static const QVariantList &texts();
    [[nodiscard]] static State of(const VKTab::LineId &id, const VKTab::Content &table,
                                  const PrjMappingC &mapping);
    /// The same for many lines of the table, in time for a million of them: asks for values only of
    /// lines that several targets hold.
    [[nodiscard]] static std::vector<quint8> ofAll(const QVector<VKTab::LineId> &lines,
                                                   const VKTab::Content &table,
                                                   const PrjMappingC &mapping);
};
