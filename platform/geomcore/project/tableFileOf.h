#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

/// What a project's reference to its table (the lexeme "SACHM") says relative to the project's
/// directory. It may be written so, or, beginning with the catalog's name, relative to the catalog
/// root; a file or directory beside the project that bears the catalog's name comes first. \a
/// catalogPath is the project's own path in the catalog, "catalog/folder/name.prj". Absolute
/// references stay as they are.
[[nodiscard]] VELKGEOMCORE_EXPORT QString tableReferenceOf(const QString &projectFile,
                                                           const QString &reference,
                                                           const QString &catalogPath);

/// Native path of the descriptor that a project names as its table; the one rule for all who ask.
/// References in it are resolved, both separators are read. \a catalogPath as above; without it
/// CatalogPlaces knows where the project lies. Empty for an empty reference. Whether the file is
/// there, and may be read, is the caller's to ask.
[[nodiscard]] VELKGEOMCORE_EXPORT QString tableFileOf(const QString &projectFile,
                                                      const QString &reference,
                                                      const QString &catalogPath = {});
