#pragma once

#include <QString>

/// Where the catalogs of the two releases are, native; empty if that is not known.
struct ScriptRoots
{
    QString source;
    QString target;
};
