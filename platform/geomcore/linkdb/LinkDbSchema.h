#pragma once

#include <QString>

class LinkDbConnection;

/// The tables of a link database. Their form has a number, kept in "linkdb_meta"; an older one is
/// brought up to date step by step, in one transaction, and a newer one is refused.
namespace LinkDbSchema {

inline constexpr int Version = 3;

/// Physical names.
inline constexpr const char *Documents = "plm_document";
inline constexpr const char *Hierarchy = "plm_hierarchy";

/// False with the connection's error. Several programs may do this at once.
[[nodiscard]] bool bringUpToDate(LinkDbConnection &connection, int version = Version);

} // namespace LinkDbSchema
