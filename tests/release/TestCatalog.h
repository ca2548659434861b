#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Writes the projects of a catalog into a directory, for tests.
class TestCatalog
{
public:
    /// \a directory is made.
    explicit TestCatalog(const QString &directory);

    /// \a path below the catalog without ending. \a table as in tableOf(); \a key names the
    /// identifying columns. Empty dates are left out.
    void add(const QString &path, const QByteArray &table, const QStringList &key = {},
             const QByteArray &date = "2022-05-01T10:00:00Z", const QByteArray &tableDate = {});
    /// A project file that names no table.
    void addWithoutTable(const QString &path);
    void writeFile(const QString &path, const QByteArray &bytes) const;

private:
    QString m_directory;
};
