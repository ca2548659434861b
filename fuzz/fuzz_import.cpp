#include "FuzzFolder.h"

#include <release/import/TableImport.h>

#include <cstdint>

using VelkRelease::ImportOptions;
using VelkRelease::TableImport;

namespace {

bool import(const FuzzFolder &folder, const QString &source, TableImport::State *state)
{
    ImportOptions options;
    options.date = QStringLiteral("2024-01-01T00:00:00Z");
    options.root = folder.path("");
    TableImport table(source, folder.path("table"), options);
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
    TableImport::State state;
    if (!import(folder, source, &state))
        return 0;
    if (!import(folder, source, &state) || state != TableImport::State::Unchanged)
        __builtin_trap();
    return 0;
}
