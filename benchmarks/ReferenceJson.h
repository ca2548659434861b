#pragma once

#include <geomcore/records/ReleaseMappingC.h>

#include <filesystem>

namespace velkbench {

/// Writes the same mapping file through RapidJSON's Writer into its string buffer and the buffer
/// into the file, without line feeds.
void writeWithRapidJson(const ReleaseMappingC &release, const std::filesystem::path &file);

/// Reads a file into memory and through RapidJSON's SAX reader with a handler that adds up the
/// numbers and counts the texts. Gives the number of values; throws std::runtime_error for no JSON.
size_t readWithRapidJson(const std::filesystem::path &file);

} // namespace velkbench
