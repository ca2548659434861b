#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

/// Where a link database is. There is no place for a password: that comes from the environment
/// (PGPASSWORD), from the user's password file (PGPASSFILE, "~/.pgpass"), from the desktop's secret
/// store or from a log-in, and is never kept.
///
/// As a text: "sqlite:FILE", or the path of a file alone, or
/// "postgresql://[USER@][HOST][:PORT]/DATABASE[?sslmode=MODE]" with the modes of PostgreSQL. The
/// folder of a local socket goes as "?host=FOLDER", with "port" and "user" beside it, and the time
/// to wait for a server as "?connect_timeout=SECONDS".
struct VELKGEOMCORE_EXPORT LinkDbSettings
{
    enum class Kind { None, SQLite, PostgreSQL };

    Kind kind = Kind::None;
    QString file;          ///< SQLite; references to the environment are resolved when it is opened
    QString host;          ///< empty: what PostgreSQL takes by itself
    int port = 0;          ///< 0: the usual one
    QString database;      ///< PostgreSQL
    QString user;          ///< empty: the name of the account
    QString sslMode;       ///< empty: "prefer"
    bool readOnly = false; ///< nothing is written, no tables are made; not part of the text
    int connectSeconds = 10; ///< until a server that does not answer is given up; at most 2 if the
                             ///< user has cancelled

    /// Of another kind than None if the text names a database; otherwise \a problem says why not.
    [[nodiscard]] static LinkDbSettings fromText(const QString &text, QString *problem = nullptr);
    [[nodiscard]] QString toText() const;
    /// For people: file, or database and host.
    [[nodiscard]] QString displayName() const;

    friend bool operator==(const LinkDbSettings &, const LinkDbSettings &) = default;
};
