#include "FuzzFolder.h"

#include <release/import/TableImport.h>

#include <cstdint>

using VelkRelease::ImportOptions;
using VelkRelease::TableImport;

namespace {

bool import(const QString &source, const QString &target, TableImport::State *state)
{
    TableImport table(source, target, {QStringLiteral("2024-01-01T00:00:00Z"), false, {}});
    const bool prepared = table.prepare();
    if (prepared != table.errors().isEmpty())
        __builtin_trap();
    if (prepared && !table.write())
        __builtin_trap();
    *state = table.state();
    return prepared;
}

} // namespace

/// Imports any bytes as a table, twice: nothing changes the second time.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const FuzzFolder folder;
    const QString source =
        folder.write("source.csv", {reinterpret_cast<const char *>(data), qsizetype(size)});
    const QString target = folder.path("table");
    TableImport::State state;
    if (!import(source, target, &state))
        return 0;
    if (!import(source, target, &state) || state != TableImport::State::Unchanged)
        __builtin_trap();
    return 0;
}
