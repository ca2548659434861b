#pragma once

#include <cstddef>

/// How large the parts of a LineTable get.
namespace LinePages {

/// Rows of a page.
inline constexpr std::size_t PageRows = 256;
/// Pages of a part of the directory.
inline constexpr std::size_t ChunkPages = 64;

} // namespace LinePages
