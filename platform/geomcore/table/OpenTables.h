#pragma once

#include "FileStamps.h"
#include "TableData.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QString>

#include <memory>
#include <mutex>

namespace VKTab {

/// Tables that somebody in the process holds, whatever for: views, mappers, panels and runs over
/// one project share what its table was read into. Keeps no table by itself. Any thread.
class VELKGEOMCORE_EXPORT OpenTables
{
public:
    [[nodiscard]] static OpenTables &instance();

    /// As TableData::read(), but without reading if the table is held and neither its descriptor
    /// nor its lines were written since it was read.
    [[nodiscard]] TableReadResult open(const QString &descriptorFile);

private:
    struct Entry
    {
        FileStamps stamps;
        std::weak_ptr<const TableData> data;
    };
    [[nodiscard]] std::shared_ptr<const TableData> held(const Entry &entry,
                                                        const QString &descriptorFile) const;
    void note(const QString &descriptorFile, const Entry &entry);

    std::mutex m_mutex;
    QHash<QString, Entry> m_entries; ///< By descriptor.
};

} // namespace VKTab
