#pragma once

#include <geomcore/csv/TableError.h>
#include <geomcore/table/FileStamps.h>

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

#include <list>
#include <memory>
#include <mutex>

namespace Mapper {

class TargetTable;

/// Tables of target projects, shared by all mappers of the process. The few that were used last
/// stay open, so that mappers made for a single line find what earlier ones built; others stay as
/// long as a mapper holds them. A table whose project file, descriptor or lines were written since
/// is read anew. Any thread.
class VELKGEOMCORE_EXPORT TargetTables
{
public:
    [[nodiscard]] static TargetTables &instance();

    /// The table of a project. Null if it cannot be read; what is wrong goes to the log window,
    /// once for each state of the files, and into \a errors each time.
    [[nodiscard]] std::shared_ptr<const TargetTable> open(const QString &nativeProjectPath,
                                                          VKTab::TableErrorList *errors = nullptr);

private:
    static constexpr size_t MaxKept = 8;
    static constexpr size_t MaxKnown = 256;

    struct Entry
    {
        QString path;
        std::mutex mutex; ///< Held while the table is read.
        VKTab::FileStamps stamps;
        bool failed = false;
        std::weak_ptr<const TargetTable> table;
        std::shared_ptr<const TargetTable> kept;
    };
    [[nodiscard]] std::shared_ptr<Entry> entryFor(const QString &path);
    /// \a refusal: why it may not be read; empty if it may.
    [[nodiscard]] static std::shared_ptr<const TargetTable>
    read(Entry &entry, const QString &refusal, VKTab::TableErrorList *errors);
    void keep(const std::shared_ptr<Entry> &entry, const std::shared_ptr<const TargetTable> &table);

    std::mutex m_mutex;
    std::list<std::shared_ptr<Entry>> m_entries; ///< Last used first.
};

} // namespace Mapper
