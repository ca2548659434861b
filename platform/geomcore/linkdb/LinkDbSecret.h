#pragma once

#include <QString>

struct LinkDbSettings;

/// Passwords of PostgreSQL servers in the desktop's secret store, which the program "secret-tool"
/// asks. They are kept there under "protocol" postgresql, "server" and "user":
///
///     secret-tool store --label=links protocol postgresql server db.example user anna
namespace LinkDbSecret {

/// Null if there is none, no store, or no such program. Waits for the user if the store is locked.
[[nodiscard]] QString find(const LinkDbSettings &settings, const QString &user);

} // namespace LinkDbSecret
