#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QString>
#include <QStringList>

#include <memory>

namespace VKTab {
class TableData;
}

namespace VelkRelease {

/// A project file with its table.
struct CatalogProject
{
    /// Relative to the catalog root, beginning with the catalog.
    QString path;
    /// "DATE" of the project file; empty if it has none.
    QString date;
    QString version;
    QString tableVersion;
    /// Null if the project has no table or it cannot be read.
    std::shared_ptr<const VKTab::TableData> table;
    /// What could not be read, with file and place.
    QStringList errors;
    /// What is wrong in a table that was read: lines, formulas.
    QStringList warnings;
};

/// Reads the projects of one catalog of a release.
class VELKRELEASE_EXPORT CatalogReader
{
public:
    /// \a root is the directory of the release, \a catalog the name of a directory in it.
    CatalogReader(const QString &root, const QString &catalog);

    [[nodiscard]] const QString &catalog() const { return m_catalog; }
    /// Native path of the catalog's directory.
    [[nodiscard]] QString directory() const;
    [[nodiscard]] bool exists() const;
    /// Paths of all projects, sorted by code units. Hidden directories are left out, links to
    /// directories are not followed.
    [[nodiscard]] QStringList projectPaths() const;
    /// Any thread.
    [[nodiscard]] CatalogProject read(const QString &projectPath) const;

private:
    QString m_root;
    QString m_catalog;
};

} // namespace VelkRelease
