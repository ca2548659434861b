#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

/// An address "svn://CATALOG/trunk/catalog/PATH", as target paths have it: the catalog's name
/// stands where a server's would.
struct VELKGEOMCORE_EXPORT RepositoryAddress
{
    QString catalog;
    QString path; ///< below the catalog; "/" between components, none of them empty, "." or ".."

    /// Without a catalog if the text is none, has no path, or has control characters in it.
    [[nodiscard]] static RepositoryAddress of(const QString &address);
    [[nodiscard]] bool isValid() const { return !catalog.isEmpty() && !path.isEmpty(); }
};

/// URL of the catalog's root in its repository: "SERVER/trunk/catalog", where \a server is empty
/// for "svn://CATALOG". Empty if that names no server, port and path in plain characters; other
/// schemes are refused, since some of them start programs.
[[nodiscard]] VELKGEOMCORE_EXPORT QString repositoryUrlOf(const QString &catalog,
                                                          const QString &server);
/// The URL of a path below a URL, percent-encoded.
[[nodiscard]] VELKGEOMCORE_EXPORT QString repositoryUrlBelow(const QString &url,
                                                             const QString &path);
