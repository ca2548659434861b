#pragma once

#include <QString>

/// What went wrong at a link database.
struct LinkDbError
{
    QString text;      ///< for the user; empty: nothing went wrong
    QString statement; ///< that failed, if it was one
    QString code;      ///< the database's own number of the error
    bool lost = false; ///< the connection went, and what was not committed with it
    bool cancelled = false;

    [[nodiscard]] bool isSet() const { return !text.isEmpty(); }
};
