#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace velkbench {

/// What a join of two tables gave: for each old row the first equal new row, or -1.
struct JoinResult
{
    std::vector<std::int32_t> newRowOf;
    size_t hits = 0;
};

/// The hand-written program that the product is measured against: maps both CSV files, parses them
/// in place and joins them on all columns of the same name through one open hash. Cells are
/// compared byte for byte; there are no conditions, checks, records or messages.
JoinResult referenceJoin(const std::filesystem::path &oldCsv, const std::filesystem::path &newCsv);

/// Writes the least mapping file that holds the result: one compact array of [old, new, state]
/// rows.
void writeMinimalMapping(const JoinResult &result, const std::filesystem::path &file);

} // namespace velkbench
